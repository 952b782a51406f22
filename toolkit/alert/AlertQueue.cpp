#include "toolkit/alert/AlertQueue.h"

#include "toolkit/alert/Alert.h"
#include "toolkit/window/Overlay.h"
#include "toolkit/window/Window.h"

#include <cmath>
#include <utility>

namespace brimsound::toolkit {

namespace {

constexpr double dimming = 0.4;

/// Shows an alert in the middle of the dimmed window.
class AlertOverlay : public Overlay {
public:
    explicit AlertOverlay(Alert& alert)
        : Overlay(dimming)
        , _alert(alert)
    {
        add(alert);
    }

    void layOut() override
    {
        const auto [width, height] = frame().size;
        const auto size = _alert.sizeIn(frame().size);
        _alert.setFrame(makeRect(std::round((width - size.width) / 2), std::round((height - size.height) / 2),
            size.width, size.height));
    }

    void escape() override { _alert.cancelButton().press(); }

private:
    Alert& _alert;
};

} // namespace

AlertQueue::AlertQueue(Window& window)
    : _window(window)
{
}

AlertQueue::~AlertQueue() = default;

void AlertQueue::add(Alert& alert)
{
    _waiting.push_back(keep(&alert));
    if (!_current)
        showNext();
}

void AlertQueue::dismissCurrent()
{
    if (_current)
        _current->accessibleChanged(AccessibleChange::WillHide);
    _current = nullptr;
    if (_overlay)
        std::exchange(_overlay, nullptr)->disappear(true);
    showNext();
}

void AlertQueue::dismissAll()
{
    _waiting.clear();
    if (_current)
        dismissCurrent();
}

void AlertQueue::showNext()
{
    if (_waiting.empty())
        return;
    _current = std::move(_waiting.front());
    _waiting.pop_front();
    _overlay = make<AlertOverlay>(*_current);
    _overlay->appearIn(_window, true);
    _current->accessibleChanged(AccessibleChange::AlertShown);
    _window.focus().giveTo(_current->cancelButton());
    if (const auto shown = _current; shown->onShown)
        shown->onShown();
}

} // namespace brimsound::toolkit
