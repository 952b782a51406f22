// Points, sizes and rectangles, in points: one point is one pixel at scale 1.
#pragma once

namespace brimsound::toolkit {

struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

struct Size {
    double width = 0;
    double height = 0;

    bool operator==(const Size&) const = default;
};

/// The origin is the top left corner.
struct Rect {
    Point origin;
    Size size;

    double left() const { return origin.x; }
    double top() const { return origin.y; }
    double right() const { return origin.x + size.width; }
    double bottom() const { return origin.y + size.height; }
    Point middle() const { return { origin.x + size.width / 2, origin.y + size.height / 2 }; }

    bool operator==(const Rect&) const = default;
};

constexpr Rect makeRect(double x, double y, double width, double height)
{
    return { { x, y }, { width, height } };
}

constexpr Point operator+(Point a, Point b)
{
    return { a.x + b.x, a.y + b.y };
}

constexpr Point operator-(Point a, Point b)
{
    return { a.x - b.x, a.y - b.y };
}

/// The rectangle moved by the distance.
constexpr Rect offset(const Rect& rect, Point by)
{
    return { rect.origin + by, rect.size };
}

/// The rectangle with each side moved inward, or outward for negative distances.
Rect inset(const Rect&, double dx, double dy);

/// Linear interpolation.
constexpr double between(double from, double to, double share)
{
    return from + (to - from) * share;
}
Rect between(const Rect& from, const Rect& to, double share);

/// The rectangle as far from the right end of that width as it is from the left.
Rect mirrored(const Rect&, double width);

bool isFinite(const Rect&);
bool contains(const Rect&, Point);
bool contains(const Rect& outer, const Rect& inner);
bool intersects(const Rect&, const Rect&);
/// The intersection; its size is zero when the rectangles do not meet.
Rect intersection(const Rect&, const Rect&);
/// The smallest rectangle around both.
Rect unite(const Rect&, const Rect&);

} // namespace brimsound::toolkit
