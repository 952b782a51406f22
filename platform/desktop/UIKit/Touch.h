// Touches as the views see them.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

namespace brimsound::desktop {

/// A mouse button reaches its view at once; a finger may turn out to scroll first.
enum class Pointer { Finger, Mouse };

/// One finger, or the mouse while its button is down.
struct Touch {
    /// In points of the window.
    CGPoint location;
    Pointer pointer = Pointer::Finger;
};

} // namespace brimsound::desktop
