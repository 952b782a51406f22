#include "platform/UIKit/UIControl.h"

#include "platform/desktop/UIKit/ControlTargets.h"

#include <algorithm>

namespace brimsound {

using desktop::ControlTargets;

namespace {

ControlTargets& targetsOf(const UIControl& control)
{
    return dynamic_cast<ControlTargets&>(desktop::nativeOf(control));
}

UIControlEvents bit(toolkit::ControlEvent event)
{
    switch (event) {
    case toolkit::ControlEvent::TouchDown:
        return UIControlEventTouchDown;
    case toolkit::ControlEvent::DragInside:
        return UIControlEventTouchDragInside;
    case toolkit::ControlEvent::DragOutside:
        return UIControlEventTouchDragOutside;
    case toolkit::ControlEvent::DragEnter:
        return UIControlEventTouchDragEnter;
    case toolkit::ControlEvent::DragExit:
        return UIControlEventTouchDragExit;
    case toolkit::ControlEvent::TouchUpInside:
        return UIControlEventTouchUpInside;
    case toolkit::ControlEvent::TouchUpOutside:
        return UIControlEventTouchUpOutside;
    case toolkit::ControlEvent::TouchCancel:
        return UIControlEventTouchCancel;
    case toolkit::ControlEvent::ValueChanged:
        return UIControlEventValueChanged;
    }
    return 0;
}

} // namespace

UIControl::UIControl(Peer* peer)
    : UIView(peer)
{
    desktop::nativeOf<toolkit::Control>(*this).onEvent
        = [this](toolkit::ControlEvent event) { sendActionsForControlEvents(bit(event)); };
}

void UIControl::addTargetActionForControlEvents(
    NSObject& target, std::string_view action, UIControlEvents events)
{
    targetsOf(*this).add(target, action, events);
}

void UIControl::sendActionsForControlEvents(UIControlEvents events)
{
    const auto kept = brimsound::retain(this);
    targetsOf(*this).send(*this, events);
}

namespace desktop {

void ControlTargets::add(NSObject& target, std::string_view action, UIControlEvents events)
{
    const auto known = std::ranges::find_if(
        _targets, [&](const Target& entry) { return entry.object == &target && entry.action == action; });
    if (known != _targets.end())
        known->events |= events;
    else
        _targets.push_back({ &target, std::string(action), target.methodForSelector(action), events });
}

void ControlTargets::send(UIControl& sender, UIControlEvents events) const
{
    const Argument argument = static_cast<NSObject*>(&sender);
    // By index, because an action may add targets.
    for (std::size_t i = 0; i < _targets.size(); ++i) { // NOLINT(modernize-loop-convert)
        if ((_targets[i].events & events) && _targets[i].method)
            _targets[i].method->invoke(*_targets[i].object, { &argument, 1 });
    }
}

} // namespace desktop

} // namespace brimsound
