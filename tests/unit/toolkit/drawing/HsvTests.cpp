#include "toolkit/drawing/Hsv.h"

#include <gtest/gtest.h>

namespace brimsound::tests {

namespace {

using toolkit::Color;
using toolkit::colorOf;
using toolkit::hsvOf;

TEST(AColorByItsHue, IsRedGreenAndBlueAThirdOfTheCircleApart)
{
    EXPECT_EQ(colorOf({ 0, 1, 1 }, 1), (Color { 1, 0, 0, 1 }));
    EXPECT_EQ(colorOf({ 1.0 / 3, 1, 1 }, 1), (Color { 0, 1, 0, 1 }));
    EXPECT_EQ(colorOf({ 2.0 / 3, 1, 1 }, 0.5), (Color { 0, 0, 1, 0.5 }));
    EXPECT_EQ(colorOf({ 1, 1, 1 }, 1), (Color { 1, 0, 0, 1 }));
}

TEST(AColorByItsHue, IsGrayWithoutASaturation)
{
    EXPECT_EQ(colorOf({ 0.7, 0, 0.4 }, 1), (Color { 0.4, 0.4, 0.4, 1 }));
}

TEST(AColor, ReturnsTheHueThatItWasMadeFrom)
{
    for (const double hue : { 0.0, 0.1, 0.3, 0.5, 0.7, 0.95 }) {
        const auto hsv = hsvOf(colorOf({ hue, 0.4, 0.8 }, 0.3));
        EXPECT_NEAR(hsv.hue, hue, 1e-9);
        EXPECT_NEAR(hsv.saturation, 0.4, 1e-9);
        EXPECT_EQ(hsv.value, 0.8);
    }
}

TEST(AColor, ThatIsGrayHasNoHue)
{
    for (const double gray : { 0.0, 0.5, 1.0 }) {
        const auto hsv = hsvOf({ gray, gray, gray });
        EXPECT_EQ(hsv.hue, 0);
        EXPECT_EQ(hsv.saturation, 0);
        EXPECT_EQ(hsv.value, gray);
    }
}

} // namespace

} // namespace brimsound::tests
