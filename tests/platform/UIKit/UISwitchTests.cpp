#include "platform/UIKit/UISwitch.h"

#include "tests/platform/UIKit/Geometry.h"
#include "toolkit/time/Clock.h"

#include <gtest/gtest.h>

namespace brimsound::tests {

namespace {

TEST(AUISwitch, IsOffAndOfThePlatformsSizeAtFirst)
{
    const auto toggle = make<UISwitch>();
    EXPECT_FALSE(toggle->isOn());
    EXPECT_EQ(toggle->bounds().size, (CGSize { 51, 31 }));
}

TEST(AUISwitch, MovesItsKnobOnlyWhenItIsSetWithAnAnimation)
{
    // Ends what other tests left moving.
    toolkit::Clock::shared().advance(1);
    const auto toggle = make<UISwitch>();
    toggle->setOn(true, Animated::No);
    EXPECT_TRUE(toggle->isOn());
    EXPECT_FALSE(toolkit::Clock::shared().isAnimating());
    toggle->setOn(false, Animated::Yes);
    EXPECT_FALSE(toggle->isOn());
    EXPECT_TRUE(toolkit::Clock::shared().isAnimating());
    toolkit::Clock::shared().advance(1);
}

} // namespace

} // namespace brimsound::tests
