// Plain colour values for drawing.
#pragma once

#include "platform/UIKit/UIColor.h"

namespace brimsound::desktop {

/// Components from 0 to 1, not premultiplied.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    constexpr Color withAlpha(double newAlpha) const { return { red, green, blue, newAlpha }; }
    bool operator==(const Color&) const = default;
};

/// The components of a colour; fully transparent for null.
Color colorOf(const RetainPtr<UIColor>&);

} // namespace brimsound::desktop
