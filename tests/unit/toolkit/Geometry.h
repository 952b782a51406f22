// Prints geometry in the messages of failed tests.
#pragma once

#include "toolkit/geometry/Geometry.h"

#include <ostream>

namespace brimsound::toolkit {

inline void PrintTo(const Point& point, std::ostream* out)
{
    *out << "(" << point.x << ", " << point.y << ")";
}

inline void PrintTo(const Size& size, std::ostream* out)
{
    *out << size.width << " x " << size.height;
}

inline void PrintTo(const Rect& rect, std::ostream* out)
{
    PrintTo(rect.size, out);
    *out << " at ";
    PrintTo(rect.origin, out);
}

} // namespace brimsound::toolkit
