#include "toolkit/geometry/Geometry.h"

#include <algorithm>
#include <cmath>

namespace brimsound::toolkit {

Rect inset(const Rect& rect, double dx, double dy)
{
    return makeRect(rect.left() + dx, rect.top() + dy, rect.size.width - 2 * dx, rect.size.height - 2 * dy);
}

Rect between(const Rect& from, const Rect& to, double share)
{
    return makeRect(between(from.left(), to.left(), share), between(from.top(), to.top(), share),
        between(from.size.width, to.size.width, share), between(from.size.height, to.size.height, share));
}

Rect mirrored(const Rect& rect, double width)
{
    return { { width - rect.right(), rect.top() }, rect.size };
}

bool isFinite(const Rect& rect)
{
    return std::isfinite(rect.origin.x) && std::isfinite(rect.origin.y) && std::isfinite(rect.size.width)
        && std::isfinite(rect.size.height);
}

bool contains(const Rect& rect, Point point)
{
    return point.x >= rect.left() && point.x < rect.right() && point.y >= rect.top()
        && point.y < rect.bottom();
}

bool contains(const Rect& outer, const Rect& inner)
{
    return inner.left() >= outer.left() && inner.top() >= outer.top() && inner.right() <= outer.right()
        && inner.bottom() <= outer.bottom();
}

bool intersects(const Rect& a, const Rect& b)
{
    return a.left() < b.right() && b.left() < a.right() && a.top() < b.bottom() && b.top() < a.bottom();
}

Rect intersection(const Rect& a, const Rect& b)
{
    const double left = std::max(a.left(), b.left());
    const double top = std::max(a.top(), b.top());
    const double right = std::min(a.right(), b.right());
    const double bottom = std::min(a.bottom(), b.bottom());
    return makeRect(left, top, std::max(0.0, right - left), std::max(0.0, bottom - top));
}

Rect unite(const Rect& a, const Rect& b)
{
    if (a.size.width <= 0 || a.size.height <= 0)
        return b;
    if (b.size.width <= 0 || b.size.height <= 0)
        return a;
    const double left = std::min(a.left(), b.left());
    const double top = std::min(a.top(), b.top());
    const double right = std::max(a.right(), b.right());
    const double bottom = std::max(a.bottom(), b.bottom());
    return makeRect(left, top, right - left, bottom - top);
}

} // namespace brimsound::toolkit
