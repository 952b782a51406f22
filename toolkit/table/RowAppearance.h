// How a row is drawn among the others of its table.
#pragma once

#include "toolkit/drawing/Color.h"
#include "toolkit/geometry/Geometry.h"

namespace brimsound::toolkit {

struct RowAppearance {
    /// The color of the hairline at the row's foot.
    Color separator = transparent;
    /// The group of rows that the row is part of, in the row's own coordinates, and the radius of its
    /// corners.
    Rect group;
    double groupRadius = 0;

    bool operator==(const RowAppearance&) const = default;
};

} // namespace brimsound::toolkit
