// Switches.
#pragma once

#include "toolkit/control/Control.h"
#include "toolkit/time/Animation.h"

namespace brimsound::toolkit {

/// A tap flips the switch; so does drawing the knob to the other side.
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
    /// Where the knob stands: 0 at the off side, 1 at the on side.
    double _knob = 0;
    Animation _slide;
    /// Where the touch last counted as a draw, and whether it has been one.
    double _drawnFrom = 0;
    bool _wasDrawn = false;
};

} // namespace brimsound::toolkit
