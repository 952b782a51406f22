// Conversion of points, sizes and rectangles between the platform and the product.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

#import <CoreGraphics/CoreGraphics.h>

namespace brimsound::ios {

inline ::CGPoint native(const CGPoint& point)
{
    return ::CGPointMake(point.x, point.y);
}

inline ::CGSize native(const CGSize& size)
{
    return ::CGSizeMake(size.width, size.height);
}

inline ::CGRect native(const CGRect& rect)
{
    return ::CGRectMake(rect.origin.x, rect.origin.y, rect.size.width, rect.size.height);
}

inline CGPoint ours(const ::CGPoint& point)
{
    return { point.x, point.y };
}

inline CGSize ours(const ::CGSize& size)
{
    return { size.width, size.height };
}

inline CGRect ours(const ::CGRect& rect)
{
    return { ours(rect.origin), ours(rect.size) };
}

} // namespace brimsound::ios
