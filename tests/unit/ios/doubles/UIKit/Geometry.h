// Printing rectangles in failure messages.
#pragma once

#import <CoreGraphics/CoreGraphics.h>

#include <ostream>

inline bool operator==(const CGRect& a, const CGRect& b)
{
    return NSEqualRects(a, b);
}

inline bool operator==(const CGPoint& a, const CGPoint& b)
{
    return NSEqualPoints(a, b);
}

inline void PrintTo(const CGRect& rect, std::ostream* out)
{
    *out << rect.origin.x << ' ' << rect.origin.y << ' ' << rect.size.width << ' ' << rect.size.height;
}

inline void PrintTo(const CGPoint& point, std::ostream* out)
{
    *out << point.x << ' ' << point.y;
}
