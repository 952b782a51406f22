#include "settings/GainColor.h"
#include "settings/SBEqualizerBackgroundView.h"
#include "tests/support/AllocationCount.h"

#include <gtest/gtest.h>

#include <array>

namespace brimsound::tests {

namespace {

constexpr std::array<float, 10> gains { -12, -9, -6, -3, 0, 3, 6, 9, 12, 1.5f };
constexpr std::array<float, 10> otherGains { 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 };

TEST(UpdatingACurve, AllocatesNothingButItsColors)
{
    const auto color = allocationsOf([] { uiColor(gainColor(3)); });
    ASSERT_GT(color, 0u);
    const auto view = make<SBEqualizerBackgroundView>(CGRectMake(0, 0, 232, 44), gains.data());
    EXPECT_EQ(allocationsOf([&] { view->setGains(otherGains.data()); }), 10 * color);
    EXPECT_EQ(allocationsOf([&] { view->setFrame(CGRectMake(0, 0, 320, 44)); }), 10 * color);
}

TEST(UpdatingACurve, WithASaturationTakesTwoColorsABar)
{
    const auto color = allocationsOf([] { uiColor(gainColor(3)); });
    const auto view = make<SBEqualizerBackgroundView>(CGRectMake(0, 0, 232, 44), gains.data());
    view->setSaturation(0.1f);
    EXPECT_EQ(allocationsOf([&] { view->setGains(otherGains.data()); }), 20 * color);
}

TEST(UpdatingACurve, WithAFixedColorAllocatesNothing)
{
    const auto view = make<SBEqualizerBackgroundView>(CGRectMake(0, 0, 232, 44), gains.data());
    view->setColor(UIColor::whiteColor());
    EXPECT_EQ(allocationsOf([&] { view->setGains(otherGains.data()); }), 0u);
    EXPECT_EQ(allocationsOf([&] { view->setFrame(CGRectMake(0, 0, 320, 44)); }), 0u);
}

TEST(GivingACurveItsFirstGains, AllocatesTheOneBuffer)
{
    const auto view = make<SBEqualizerBackgroundView>(CGRectMake(0, 0, 232, 44));
    view->setColor(UIColor::whiteColor());
    EXPECT_EQ(allocationsOf([&] { view->setGains(gains.data()); }), 1u);
    EXPECT_EQ(allocationsOf([&] { view->setGains(otherGains.data()); }), 0u);
}

} // namespace

} // namespace brimsound::tests
