#pragma once

#include "toolkit/geometry/Geometry.h"

namespace brimsound::toolkit {

/// Components from 0 to 1, not premultiplied.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    constexpr Color withAlpha(double newAlpha) const { return { red, green, blue, newAlpha }; }
    bool operator==(const Color&) const = default;
};

/// Linear interpolation.
constexpr Color between(const Color& from, const Color& to, double share)
{
    return { between(from.red, to.red, share), between(from.green, to.green, share),
        between(from.blue, to.blue, share), between(from.alpha, to.alpha, share) };
}

inline constexpr Color transparent { 0, 0, 0, 0 };

} // namespace brimsound::toolkit
