#include "platform/UIKit/UIColor.h"

#include <gmock/gmock.h>

#include <array>
#include <limits>

namespace brimsound::tests {

namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

using Components = std::array<CGFloat, 4>;

Components rgbOf(const UIColor& color)
{
    Components components {};
    auto& [red, green, blue, alpha] = components;
    EXPECT_TRUE(color.getRedGreenBlueAlpha(red, green, blue, alpha));
    return components;
}

Components hsbOf(const UIColor& color)
{
    Components components {};
    auto& [hue, saturation, brightness, alpha] = components;
    EXPECT_TRUE(color.getHueSaturationBrightnessAlpha(hue, saturation, brightness, alpha));
    return components;
}

Components hsbOf(CGFloat red, CGFloat green, CGFloat blue)
{
    return hsbOf(*UIColor::colorWithRedGreenBlueAlpha(red, green, blue, 1));
}

Components rgbFrom(CGFloat hue, CGFloat saturation, CGFloat brightness)
{
    return rgbOf(*UIColor::colorWithHueSaturationBrightnessAlpha(hue, saturation, brightness, 1));
}

TEST(AColor, IsSplitIntoHueSaturationAndBrightness)
{
    EXPECT_THAT(hsbOf(1, 0, 0), ElementsAre(0, 1, 1, 1));
    EXPECT_THAT(hsbOf(1, 1, 0), ElementsAre(DoubleNear(1.0 / 6, 1e-12), 1, 1, 1));
    EXPECT_THAT(hsbOf(0, 1, 0), ElementsAre(DoubleNear(2.0 / 6, 1e-12), 1, 1, 1));
    EXPECT_THAT(hsbOf(0, 1, 1), ElementsAre(DoubleNear(3.0 / 6, 1e-12), 1, 1, 1));
    EXPECT_THAT(hsbOf(0, 0, 1), ElementsAre(DoubleNear(4.0 / 6, 1e-12), 1, 1, 1));
    EXPECT_THAT(hsbOf(1, 0, 1), ElementsAre(DoubleNear(5.0 / 6, 1e-12), 1, 1, 1));
    EXPECT_THAT(hsbOf(0.5, 0.25, 0.25), ElementsAre(0, 0.5, 0.5, 1));
}

TEST(AGray, HasNoHueAndNoSaturation)
{
    EXPECT_THAT(hsbOf(*UIColor::colorWithWhiteAlpha(0.25, 0.5)), ElementsAre(0, 0, 0.25, 0.5));
    EXPECT_THAT(hsbOf(*UIColor::blackColor()), ElementsAre(0, 0, 0, 1));
}

TEST(AColor, IsMadeOfHueSaturationAndBrightness)
{
    EXPECT_THAT(rgbFrom(0, 1, 1), ElementsAre(1, 0, 0, 1));
    EXPECT_THAT(rgbFrom(1, 1, 1), ElementsAre(1, 0, 0, 1));
    EXPECT_THAT(rgbFrom(1.0 / 6, 1, 1), Pointwise(DoubleNear(1e-12), { 1.0, 1.0, 0.0, 1.0 }));
    EXPECT_THAT(rgbFrom(0.5, 0.5, 0.5), Pointwise(DoubleNear(1e-12), { 0.25, 0.5, 0.5, 1.0 }));
    EXPECT_EQ(rgbOf(*UIColor::colorWithHueSaturationBrightnessAlpha(0, 1, 1, 0.25))[3], 0.25);
}

TEST(AColor, IsTheSameWhenItIsPutTogetherAgain)
{
    for (const double red : { 0.0, 0.2, 0.7, 1.0 }) {
        for (const double green : { 0.0, 0.3, 0.7, 1.0 }) {
            for (const double blue : { 0.0, 0.1, 0.7, 1.0 }) {
                const auto [hue, saturation, brightness, alpha] = hsbOf(red, green, blue);
                EXPECT_THAT(rgbFrom(hue, saturation, brightness),
                    Pointwise(DoubleNear(1e-12), { red, green, blue, alpha }));
            }
        }
    }
}

TEST(AColor, ThatIsNoNumberCannotBeSplit)
{
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    Components components { 7, 7, 7, 7 };
    auto& [hue, saturation, brightness, alpha] = components;
    EXPECT_FALSE(UIColor::colorWithRedGreenBlueAlpha(0, notANumber, 0, 1)
                     ->getHueSaturationBrightnessAlpha(hue, saturation, brightness, alpha));
    EXPECT_THAT(components, ElementsAre(7, 7, 7, 7)) << "nothing was handed out";
}

TEST(Yellow, IsRedAndGreen)
{
    EXPECT_THAT(rgbOf(*UIColor::yellowColor()), ElementsAre(1, 1, 0, 1));
}

TEST(AColor, HasNoComponentsBeyondItsRange)
{
    const auto components = [](const RetainPtr<UIColor>& color) {
        std::array<CGFloat, 4> all {};
        color->getRedGreenBlueAlpha(all[0], all[1], all[2], all[3]);
        return all;
    };
    EXPECT_EQ(components(UIColor::colorWithRedGreenBlueAlpha(-0.5, 1.5, 2, 3)), (Components { 0, 1, 1, 1 }));
    EXPECT_EQ(components(UIColor::colorWithRedGreenBlueAlpha(1, -9, 0, -1)), (Components { 1, 0, 0, 0 }));
    EXPECT_EQ(components(UIColor::colorWithWhiteAlpha(2, -1)), (Components { 1, 1, 1, 0 }));
    EXPECT_EQ(
        components(UIColor::colorWithHueSaturationBrightnessAlpha(-1, 2, 3, 4)), (Components { 1, 0, 0, 1 }));
}

} // namespace

} // namespace brimsound::tests
