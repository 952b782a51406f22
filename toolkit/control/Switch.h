#pragma once

#include "toolkit/control/Control.h"
#include "toolkit/time/Animation.h"

namespace brimsound::toolkit {

/// A switch, initially off. A tap flips it; so does dragging the knob to the other side. It is off at the
/// side where lines of text start.
class Switch : public Control {
public:
    Switch();

    bool isOn() const { return _on; }
    /// Sends no event.
    void setOn(bool, bool animated);

    void draw(Canvas&) const override;
    double overhang() const override;
    FocusRing focusRing() const override;
    Role role() const override { return Role::Switch; }
    Accessible accessible() const override;

protected:
    void trackingBegan(Point, Pointer) override;
    void trackingMoved(Point) override;
    void pressed() override;

private:
    void flip();

    bool _on = false;
    /// The position of the knob: 0 for off, 1 for on.
    double _knob = 0;
    Animation _slide;
    /// Where the current drag of the knob began, and whether the touch has dragged it.
    double _dragStart = 0;
    bool _wasDragged = false;
};

} // namespace brimsound::toolkit
