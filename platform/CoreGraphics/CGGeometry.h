// Points, sizes and rectangles. All lengths are in points (one point is one pixel at scale 1).
#pragma once

namespace brimsound {

using CGFloat = double;

struct CGPoint {
    CGFloat x = 0;
    CGFloat y = 0;

    bool operator==(const CGPoint&) const = default;
};

struct CGSize {
    CGFloat width = 0;
    CGFloat height = 0;

    bool operator==(const CGSize&) const = default;
};

struct CGRect {
    CGPoint origin;
    CGSize size;

    bool operator==(const CGRect&) const = default;
};

/// The rectangle with its origin, the top left corner, at (x, y).
constexpr CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height)
{
    return { { x, y }, { width, height } };
}

} // namespace brimsound
