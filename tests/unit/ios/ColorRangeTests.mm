// The product's colors are clamped on every release, as iOS 9 clamps them.
#include "platform/UIKit/UIColor.h"

#include <gmock/gmock.h>

#include <array>

namespace brimsound::tests {

namespace {

using testing::Each;
using testing::ElementsAre;

std::array<CGFloat, 4> componentsOf(const UIColor& color)
{
    std::array<CGFloat, 4> components {};
    auto& [red, green, blue, alpha] = components;
    EXPECT_TRUE(color.getRedGreenBlueAlpha(red, green, blue, alpha));
    return components;
}

TEST(AColor, HasItsComponentsClampedFromZeroToOne)
{
    EXPECT_THAT(
        componentsOf(*UIColor::colorWithRedGreenBlueAlpha(0.25, -1, 7, 1.5)), ElementsAre(0.25, 0, 1, 1));
    EXPECT_THAT(componentsOf(*UIColor::colorWithHueSaturationBrightnessAlpha(-0.5, 3, 1.5, 2)),
        ElementsAre(1, 0, 0, 1));
    EXPECT_THAT(componentsOf(*UIColor::colorWithWhiteAlpha(1.5, 1)), Each(1));
    EXPECT_THAT(componentsOf(*UIColor::colorWithWhiteAlpha(-0.5, -1)), Each(0));
}

} // namespace

} // namespace brimsound::tests
