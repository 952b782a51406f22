#include "toolkit/control/Control.h"

#include "toolkit/window/Window.h"

#include <utility>

namespace brimsound::toolkit {

bool Control::begin()
{
    const auto kept = keep(this);
    auto* around = window();
    if (!around || !around->hold(*this))
        return false;
    _held = true;
    _touchInside = true;
    send(ControlEvent::TouchDown);
    return true;
}

void Control::commit(Side side)
{
    const auto kept = keep(this);
    if (!_held)
        return;
    if (auto* around = window())
        around->letGo(*this);
    end(side == Side::Inside);
}

bool Control::press()
{
    return holdFor([] {});
}

bool Control::holdFor(const std::function<void()>& action)
{
    const auto kept = keep(this);
    const auto around = keep(window());
    if (!begin())
        return false;
    action();
    commit();
    // A listener may have removed the control from the window, which still holds it.
    around->letGo(*this);
    return true;
}

bool Control::isInside(Point point) const
{
    return contains(inset(bounds(), -touchMargin(), -touchMargin()), point);
}

void Control::touchBegan(const Touch& touch)
{
    const auto kept = keep(this);
    _held = true;
    _touchInside = true;
    trackingBegan(fromWindow(touch.location), touch.pointer);
    if (_held)
        send(ControlEvent::TouchDown);
}

void Control::touchMoved(const Touch& touch)
{
    const auto kept = keep(this);
    if (!_held)
        return;
    const auto point = fromWindow(touch.location);
    trackingMoved(point);
    sendDrag(isInside(point) ? Side::Inside : Side::Outside);
}

void Control::sendDrag(Side side)
{
    const bool inside = side == Side::Inside;
    const bool wasInside = std::exchange(_touchInside, inside);
    // Any of the events may cancel the touch.
    if (_held && inside != wasInside)
        send(inside ? ControlEvent::DragEnter : ControlEvent::DragExit);
    if (_held)
        send(inside ? ControlEvent::DragInside : ControlEvent::DragOutside);
}

void Control::touchEnded(const Touch& touch)
{
    const auto kept = keep(this);
    if (_held)
        end(isInside(fromWindow(touch.location)));
}

void Control::end(bool inside)
{
    _held = false;
    trackingEnded();
    if (inside)
        pressed();
    send(inside ? ControlEvent::TouchUpInside : ControlEvent::TouchUpOutside);
}

void Control::touchCanceled()
{
    const auto kept = keep(this);
    if (!std::exchange(_held, false))
        return;
    trackingEnded();
    send(ControlEvent::TouchCancel);
}

void Control::send(ControlEvent event)
{
    if (onEvent)
        onEvent(event);
}

} // namespace brimsound::toolkit
