// Views that turn touches into events.
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

/// A control keeps a touch that it has, wherever the finger goes. Keys, screen readers and scripts work it
/// without a touch, with the same events in the same order: begin, whatever the kind of control brings,
/// commit.
class Control : public View {
public:
    using View::View;

    /// Told of every event. What it does may take the control away.
    std::function<void(ControlEvent)> onEvent;

    /// From the first touch to the last, or from begin to commit.
    bool isHeld() const { return _held; }

    /// Scrolls the control into view and takes hold of it. False when a finger could not: it is covered, or
    /// something is touched already.
    bool begin();
    /// Lets go, where a touch would be. Nothing when the hold was taken away since.
    enum class Side { Inside, Outside };
    void commit(Side = Side::Inside);
    /// Begins and commits. False when begin is.
    bool press();

    bool isFocusable() const override { return true; }
    bool activate() override { return press(); }
    bool takesTouches() const override { return true; }
    bool yieldsToScrolling() const override { return false; }
    void touchBegan(const Touch&) override;
    void touchMoved(const Touch&) override;
    void touchEnded(const Touch&) override;
    void touchCancelled() override;

protected:
    /// Begins, does that and commits. False when begin is.
    bool holdFor(const std::function<void()>& action);
    /// Tells of a move of whatever holds the control.
    void sendDrag(Side);
    /// Whether the finger is where letting go counts.
    bool isTouchInside() const { return _touchInside; }
    void send(ControlEvent);

    /// How far beyond its edges, in points, the control still counts a touch as inside.
    virtual double touchMargin() const { return 70; }
    // Told of a touch, in the control's own coordinates, before the events are sent.
    virtual void trackingBegan(Point, Pointer) { }
    virtual void trackingMoved(Point) { }
    virtual void trackingEnded() { }
    /// Let go of inside, before TouchUpInside.
    virtual void pressed() { }

private:
    bool isInside(Point) const;
    void end(bool inside);

    bool _held = false;
    bool _touchInside = false;
};

} // namespace brimsound::toolkit
