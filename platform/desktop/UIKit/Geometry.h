// Conversions between the geometry of the platform's interface and of the toolkit.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "toolkit/geometry/Geometry.h"

namespace brimsound::desktop {

constexpr CGPoint cgPoint(toolkit::Point point)
{
    return { point.x, point.y };
}

constexpr CGSize cgSize(toolkit::Size size)
{
    return { size.width, size.height };
}

constexpr CGRect cgRect(const toolkit::Rect& rect)
{
    return { cgPoint(rect.origin), cgSize(rect.size) };
}

constexpr toolkit::Point toolkitPoint(CGPoint point)
{
    return { point.x, point.y };
}

constexpr toolkit::Size toolkitSize(CGSize size)
{
    return { size.width, size.height };
}

constexpr toolkit::Rect toolkitRect(const CGRect& rect)
{
    return { toolkitPoint(rect.origin), toolkitSize(rect.size) };
}

} // namespace brimsound::desktop
