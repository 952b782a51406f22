// The screen that the program is shown on.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

namespace brimsound {

class UIScreen {
public:
    static const UIScreen& mainScreen();

    /// Pixels a point.
    CGFloat scale() const;
    /// What there is of it for the program, in points.
    CGRect bounds() const;
};

} // namespace brimsound
