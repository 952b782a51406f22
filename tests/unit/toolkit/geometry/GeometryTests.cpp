#include "tests/unit/toolkit/Geometry.h"

#include <gtest/gtest.h>

#include <limits>

namespace brimsound::tests {

namespace {

using toolkit::makeRect;
using toolkit::Point;
using toolkit::Rect;

TEST(ARectangle, ContainsItsTopLeftEdgesAndNotTheOthers)
{
    const auto rect = makeRect(10, 20, 30, 40);
    EXPECT_TRUE(contains(rect, Point { 10, 20 }));
    EXPECT_TRUE(contains(rect, Point { 39.9, 59.9 }));
    EXPECT_FALSE(contains(rect, Point { 40, 30 }));
    EXPECT_FALSE(contains(rect, Point { 20, 60 }));
    EXPECT_TRUE(contains(rect, rect));
    EXPECT_FALSE(contains(rect, makeRect(10, 20, 31, 40)));
}

TEST(ARectangle, DoesNotIntersectOneThatItTouches)
{
    const auto rect = makeRect(0, 0, 10, 10);
    EXPECT_TRUE(intersects(rect, makeRect(9, 9, 5, 5)));
    EXPECT_FALSE(intersects(rect, makeRect(10, 0, 5, 5)));
    EXPECT_EQ(intersection(rect, makeRect(5, 8, 20, 20)), makeRect(5, 8, 5, 2));
    EXPECT_EQ(intersection(rect, makeRect(50, 0, 5, 5)).size.width, 0);
}

TEST(ARectangle, IsUnitedWithWhatHasASizeOnly)
{
    const auto rect = makeRect(5, 5, 10, 10);
    EXPECT_EQ(unite(rect, makeRect(100, 100, 0, 50)), rect);
    EXPECT_EQ(unite(Rect {}, rect), rect);
    EXPECT_EQ(unite(rect, makeRect(0, 10, 2, 20)), makeRect(0, 5, 15, 25));
}

TEST(ARectangle, ShrinksAndGrowsOnAllSides)
{
    EXPECT_EQ(inset(makeRect(0, 0, 10, 20), 1, -2), makeRect(1, -2, 8, 24));
}

TEST(ARectangle, IsFiniteWhereAllItsNumbersAre)
{
    EXPECT_TRUE(isFinite(makeRect(1, 2, 3, 4)));
    EXPECT_FALSE(isFinite(makeRect(1, std::numeric_limits<double>::quiet_NaN(), 3, 4)));
    EXPECT_FALSE(isFinite(makeRect(1, 2, std::numeric_limits<double>::infinity(), 4)));
}

} // namespace

} // namespace brimsound::tests
