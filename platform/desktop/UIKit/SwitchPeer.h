// What stands behind a UISwitch.
#pragma once

#include "platform/UIKit/UISwitch.h"
#include "platform/desktop/UIKit/ControlPeer.h"
#include "platform/desktop/UIKit/Knob.h"

namespace brimsound::desktop {

/// A tap flips the switch; so does drawing the knob to the other side.
struct SwitchPeer : ControlPeer {
    bool isOn = false;
    /// Where the knob stands: 0 at the off side, 1 at the on side.
    double knob = 0;
    /// Counts the knob's movements, so that a new one ends the one before.
    unsigned movement = 0;
    /// Where the touch last counted as a draw, and whether it has been one.
    double drawnFrom = 0;
    bool wasDrawn = false;

    SwitchPeer() { overhang = knobShadowReach; }

    void beginTracking(CGPoint, Pointer) override;
    void continueTracking(CGPoint) override;
    void endTracking(CGPoint, bool inside) override;
    FocusRing focusRing() const override;
    void draw(Canvas&) const override;
    Accessible accessible() const override;

    void flip();
};

} // namespace brimsound::desktop
