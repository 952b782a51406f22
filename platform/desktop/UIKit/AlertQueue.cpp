#include "platform/desktop/UIKit/AlertQueue.h"

#include "platform/desktop/UIKit/AlertPeer.h"
#include "platform/desktop/UIKit/Window.h"
#include "platform/desktop/effects/Effects.h"

#include <cmath>

namespace brimsound::desktop {

namespace {

constexpr double dimming = 0.4;

/// Dims the window and keeps the alert in its middle.
class AlertOverlay : public Overlay {
public:
    explicit AlertOverlay(UIAlertView& alert)
        : Overlay(dimming)
        , _alert(alert)
    {
        addSubview(alert);
    }

    void layoutSubviews() override
    {
        const auto [width, height] = bounds().size;
        const auto size = sizeOf(_alert, bounds().size);
        _alert.setFrame(CGRectMake(std::round((width - size.width) / 2),
            std::round((height - size.height) / 2), size.width, size.height));
    }

    void escape() override { peerOf(_alert).cancelButton().press(); }

private:
    UIAlertView& _alert;
};

} // namespace

AlertQueue::AlertQueue(UIView& window)
    : _window(window)
{
}

AlertQueue::~AlertQueue() = default;

void AlertQueue::add(UIAlertView& alert)
{
    _waiting.push_back(retain(&alert));
    if (!_current)
        showNext();
}

UIAlertView* AlertQueue::current() const
{
    return _current.get();
}

void AlertQueue::dismissCurrent()
{
    if (_current)
        accessibleChanged(*_current, AccessibleChange::WillHide);
    _current = nullptr;
    if (_overlay)
        std::exchange(_overlay, nullptr)->disappear(Animated::Yes);
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
    _overlay->appearIn(_window, Animated::Yes);
    accessibleChanged(*_current, AccessibleChange::AlertShown);
    if (auto* window = windowOf(_window))
        window->focus().giveTo(peerOf(*_current).cancelButton());
    effects().alertShown(peerOf(*_current).message, buttonTitlesOf(*_current));
}

} // namespace brimsound::desktop
