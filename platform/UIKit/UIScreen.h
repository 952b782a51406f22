#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

namespace brimsound {

class UIScreen {
public:
    static const UIScreen& mainScreen();

    /// Pixels per point.
    CGFloat scale() const;
    /// The part of the screen that the program can use, in points.
    CGRect bounds() const;
};

} // namespace brimsound
