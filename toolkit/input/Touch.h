// Touch and mouse input of views.
#pragma once

#include "toolkit/geometry/Geometry.h"

namespace brimsound::toolkit {

/// A mouse press reaches its view immediately, a finger only when it does not scroll.
enum class Pointer { Finger, Mouse };

/// How far a finger must move, in points, to count as moving.
inline constexpr double touchSlop = 10;

/// One finger, or the mouse while its button is down.
struct Touch {
    /// In points of the window.
    Point location;
    Pointer pointer = Pointer::Finger;
    /// Whether the press is the second one of a double click.
    bool isDoubleClick = false;
};

} // namespace brimsound::toolkit
