#include "platform/UIKit/UIControl.h"

#include "platform/desktop/UIKit/ControlPeer.h"

#include <algorithm>

namespace brimsound {

using desktop::ControlPeer;

namespace {

/// How far beyond its edges, in points, a control still counts a touch as inside.
constexpr double touchMargin = 70;

ControlPeer& peerOf(const UIControl& control)
{
    return static_cast<ControlPeer&>(control.peer());
}

} // namespace

UIControl::UIControl(Peer* peer)
    : UIView(peer)
{
}

void UIControl::addTargetActionForControlEvents(
    NSObject& target, std::string_view action, UIControlEvents events)
{
    auto& targets = peerOf(*this).targets;
    const auto known = std::ranges::find_if(targets,
        [&](const ControlPeer::Target& entry) { return entry.object == &target && entry.action == action; });
    if (known != targets.end())
        known->events |= events;
    else
        targets.push_back({ &target, std::string(action), target.methodForSelector(action), events });
}

void UIControl::sendActionsForControlEvents(UIControlEvents events)
{
    const auto kept = brimsound::retain(this);
    const Argument sender = static_cast<NSObject*>(this);
    const auto& targets = peerOf(*this).targets;
    // By position: an action may add targets.
    for (std::size_t i = 0; i < targets.size(); ++i) { // NOLINT(modernize-loop-convert)
        if ((targets[i].events & events) && targets[i].method)
            targets[i].method->invoke(*targets[i].object, { &sender, 1 });
    }
}

namespace desktop {

void ControlPeer::touchBegan(const Touch& touch)
{
    isTracking = true;
    isTouchInside = true;
    beginTracking(convertFromWindow(touch.location, *view), touch.pointer);
    if (isTracking)
        send(UIControlEventTouchDown);
}

void ControlPeer::touchMoved(const Touch& touch)
{
    if (!isTracking)
        return;
    const auto point = convertFromWindow(touch.location, *view);
    const bool inside = contains(insetBy(boundsOf(*this), -touchMargin, -touchMargin), point);
    const bool wasInside = std::exchange(isTouchInside, inside);
    continueTracking(point);
    // Any of the actions may take the touch away.
    if (isTracking && inside != wasInside)
        send(inside ? UIControlEventTouchDragEnter : UIControlEventTouchDragExit);
    if (isTracking)
        send(inside ? UIControlEventTouchDragInside : UIControlEventTouchDragOutside);
}

void ControlPeer::touchEnded(const Touch& touch)
{
    if (!std::exchange(isTracking, false))
        return;
    const auto point = convertFromWindow(touch.location, *view);
    const bool inside = contains(insetBy(boundsOf(*this), -touchMargin, -touchMargin), point);
    endTracking(point, inside);
    send(inside ? UIControlEventTouchUpInside : UIControlEventTouchUpOutside);
}

void ControlPeer::touchCancelled()
{
    if (!std::exchange(isTracking, false))
        return;
    cancelTracking();
    send(UIControlEventTouchCancel);
}

void ControlPeer::send(UIControlEvents events)
{
    static_cast<UIControl*>(view)->sendActionsForControlEvents(events);
}

} // namespace desktop

} // namespace brimsound
