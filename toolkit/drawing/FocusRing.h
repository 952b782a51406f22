// The sign that a view has the keyboard.
#pragma once

#include "toolkit/drawing/Canvas.h"

namespace brimsound::toolkit {

/// How far the middle of the ring's line keeps within the edges of a view that has no better place for it.
inline constexpr double focusRingInset = 4;

/// A line around a rectangle with rounded corners, in the view's own coordinates; none around an empty one.
struct FocusRing {
    Rect rect;
    double radius = 10;
};

void drawFocusRing(const FocusRing&, Canvas&);

} // namespace brimsound::toolkit
