#pragma once

#include "toolkit/drawing/Color.h"
#include "toolkit/geometry/Geometry.h"

namespace brimsound::toolkit {

struct RowAppearance {
    /// The color of the hairline at the row's bottom edge.
    Color separator = transparent;
    /// The frame of the row's group in the row's own coordinates, and the radius of the group's corners.
    Rect group;
    double groupRadius = 0;

    bool operator==(const RowAppearance&) const = default;
};

} // namespace brimsound::toolkit
