// What lies over a whole window for a while.
#pragma once

#include "platform/UIKit/Animated.h"
#include "platform/UIKit/UIView.h"

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

    /// Escape was pressed while this is in front.
    virtual void escape() { }

private:
    void fade(double from, double to);

    /// Counts fades, so that a new one ends the one before.
    unsigned _fade = 0;
};

} // namespace brimsound::desktop
