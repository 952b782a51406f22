#pragma once

#include "toolkit/drawing/Canvas.h"

namespace brimsound::toolkit {

/// The distance of the ring from the edges of a view that does not choose another place for it, to the middle
/// of its line, in points.
inline constexpr double focusRingInset = 4;

/// The line around the view that has the keyboard focus: a rectangle with rounded corners, in the view's own
/// coordinates. An empty rectangle is not drawn.
struct FocusRing {
    Rect rect;
    double radius = 10;
};

void drawFocusRing(const FocusRing&, Canvas&);

} // namespace brimsound::toolkit
