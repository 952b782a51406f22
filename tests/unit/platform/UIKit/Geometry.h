// Geometry in the messages of failed tests.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

#include <ostream>

namespace brimsound {

inline void PrintTo(const CGPoint& point, std::ostream* out)
{
    *out << "(" << point.x << ", " << point.y << ")";
}

inline void PrintTo(const CGSize& size, std::ostream* out)
{
    *out << size.width << " x " << size.height;
}

inline void PrintTo(const CGRect& rect, std::ostream* out)
{
    PrintTo(rect.size, out);
    *out << " at ";
    PrintTo(rect.origin, out);
}

} // namespace brimsound
