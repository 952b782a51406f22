#include "toolkit/window/Overlay.h"

#include <utility>

namespace brimsound::toolkit {

namespace {

constexpr double fadeTime = 0.2;
/// The initial alpha: large enough for the overlay to receive touches immediately.
constexpr double firstAlpha = 0.1;

} // namespace

Overlay::Overlay(double dimming)
{
    setBackground(Color { 0, 0, 0, dimming });
}

void Overlay::appearIn(View& window, bool animated)
{
    setFrame(window.bounds());
    window.add(*this);
    if (animated)
        fade(firstAlpha, 1);
}

void Overlay::disappear(bool animated)
{
    _leaving = true;
    if (animated)
        fade(alpha(), 0, [this] { removeFromParent(); });
    else
        removeFromParent();
}

void Overlay::fade(double from, double to, std::function<void()> completion)
{
    setAlpha(from);
    _fade.start(
        fadeTime, linear, [this, from, to](double progress) { setAlpha(from + (to - from) * progress); },
        std::move(completion));
}

} // namespace brimsound::toolkit
