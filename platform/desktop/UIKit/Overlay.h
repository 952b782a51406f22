// What lies over a whole window for a while.
#pragma once

#include "platform/UIKit/UISwitch.h"
#include "platform/UIKit/UIView.h"
#include "platform/desktop/UIKit/Key.h"

namespace brimsound::desktop {

/// Dims the window and keeps touches and keys from what lies below.
class Overlay : public UIView {
public:
    /// `dimming` is the alpha of the black that covers the window.
    explicit Overlay(double dimming);

    /// Appears over everything in the window.
    void appearIn(UIView& window, Animated);
    /// Takes no touches from now on, and leaves the window when it has faded.
    void disappear(Animated);

    /// A key was pressed while this is the frontmost overlay.
    virtual void keyPressed(Key) { }

private:
    void fade(double from, double to);

    /// Counts fades, so that a new one ends the one before.
    unsigned _fade = 0;
};

} // namespace brimsound::desktop
