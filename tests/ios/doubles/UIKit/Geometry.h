// Rectangles and sizes of Core Graphics as the toolkit's, and back.
#pragma once

#include "toolkit/geometry/Geometry.h"

#import <CoreGraphics/CoreGraphics.h>

namespace brimsound::doubles {

inline ::CGSize cgSize(toolkit::Size size)
{
    return CGSizeMake(size.width, size.height);
}

inline ::CGRect cgRect(const toolkit::Rect& rect)
{
    return CGRectMake(rect.left(), rect.top(), rect.size.width, rect.size.height);
}

inline toolkit::Size toolkitSize(::CGSize size)
{
    return { size.width, size.height };
}

inline toolkit::Rect toolkitRect(const ::CGRect& rect)
{
    return { { rect.origin.x, rect.origin.y }, toolkitSize(rect.size) };
}

} // namespace brimsound::doubles
