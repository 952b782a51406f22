// Touches as the views see them.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

namespace brimsound::desktop {

/// A mouse button reaches its view at once; a finger may turn out to scroll first. A touch by the keyboard
/// stands for a key, or for what assistive technology asked for: nobody points.
enum class Pointer { Finger, Mouse, Keyboard };

/// How far a finger moves, in points, before it is taken to be going somewhere.
inline constexpr double touchSlop = 10;

/// One finger, or the mouse while its button is down.
struct Touch {
    /// In points of the window.
    CGPoint location;
    Pointer pointer = Pointer::Finger;
};

} // namespace brimsound::desktop
