#include "toolkit/window/Sheet.h"

#include <utility>

namespace brimsound::toolkit {

namespace {

constexpr double dimming = 0.4;

} // namespace

Sheet::Sheet(View& content, std::function<void()> onEscape)
    : Overlay(dimming)
    , _content(keep(&content))
    , _onEscape(std::move(onEscape))
{
    add(content);
}

void Sheet::layOut()
{
    _content->setFrame(bounds());
}

void Sheet::escape()
{
    if (_onEscape)
        _onEscape();
}

} // namespace brimsound::toolkit
