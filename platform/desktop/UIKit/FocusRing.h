// The sign that a view has the keyboard.
#pragma once

#include "platform/desktop/UIKit/Canvas.h"

namespace brimsound::desktop {

/// How far the middle of the ring's line keeps within the edges of a view that has no better place for it.
inline constexpr double focusRingInset = 4;

/// A line around a rectangle with rounded corners, in the view's own coordinates; none around an empty one.
struct FocusRing {
    CGRect rect;
    double radius = 10;
};

void drawFocusRing(const FocusRing&, Canvas&);

} // namespace brimsound::desktop
