// Touches as the views see them.
#pragma once

#include "toolkit/geometry/Geometry.h"

namespace brimsound::toolkit {

/// A mouse button reaches its view at once; a finger may turn out to scroll first.
enum class Pointer { Finger, Mouse };

/// How far a finger moves, in points, before it is taken to be going somewhere.
inline constexpr double touchSlop = 10;

/// One finger, or the mouse while its button is down.
struct Touch {
    /// In points of the window.
    Point location;
    Pointer pointer = Pointer::Finger;
};

} // namespace brimsound::toolkit
