#pragma once

#include "toolkit/view/View.h"

#include <cstdint>
#include <functional>

namespace brimsound::toolkit {

enum class ControlEvent : std::uint8_t {
    TouchDown,
    DragInside,
    DragOutside,
    DragEnter,
    DragExit,
    TouchUpInside,
    TouchUpOutside,
    TouchCancel,
    ValueChanged,
};

/// A view that turns touches into events. It keeps a touch until the touch ends, wherever the finger moves.
/// Keys, screen readers and scripts operate the control without a touch, through begin and commit, with the
/// same events in the same order.
class Control : public View {
public:
    using View::View;

    /// Called for every event. The function may remove the control.
    std::function<void(ControlEvent)> onEvent;

    /// Whether a touch is on the control, or begin was called and commit was not.
    bool isHeld() const { return _held; }

    /// Scrolls the control into view and sends TouchDown. Returns false when a touch could not do so: the
    /// control is covered, or another touch is active.
    bool begin();
    /// Sends the events of a touch that ends inside or outside of the control. Does nothing when the control
    /// was canceled after begin.
    enum class Side { Inside, Outside };
    void commit(Side = Side::Inside);
    /// Calls begin and commit. Returns false when begin does.
    bool press();

    bool isFocusable() const override { return true; }
    bool activate() override { return press(); }
    bool takesTouches() const override { return true; }
    bool yieldsToScrolling() const override { return false; }
    void touchBegan(const Touch&) override;
    void touchMoved(const Touch&) override;
    void touchEnded(const Touch&) override;
    void touchCanceled() override;

protected:
    /// Calls begin, the action and commit. Returns false when begin does.
    bool holdFor(const std::function<void()>& action);
    /// Sends the events of a drag.
    void sendDrag(Side);
    /// Whether the end of the touch would count as inside.
    bool isTouchInside() const { return _touchInside; }
    void send(ControlEvent);

    /// How far beyond the edges a touch still counts as inside, in points.
    virtual double touchMargin() const { return 70; }
    // Called for a touch, in the control's own coordinates, before the events are sent.
    virtual void trackingBegan(Point, Pointer) { }
    virtual void trackingMoved(Point) { }
    virtual void trackingEnded() { }
    /// Called when a touch ended inside, before TouchUpInside is sent.
    virtual void pressed() { }

private:
    bool isInside(Point) const;
    void end(bool inside);

    bool _held = false;
    bool _touchInside = false;
};

} // namespace brimsound::toolkit
