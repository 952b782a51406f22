#include "settings/SBEqualizerBackgroundView.h"
#include "tests/unit/settings/TestPlatform.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>

namespace brimsound::tests {

namespace {

using testing::DoubleNear;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pointwise;

using Gains = std::array<float, 10>;
/// Red, green, blue, alpha.
using Components = std::array<CGFloat, 4>;

constexpr Gains rising { -12, -9, -6, -3, 0, 3, 6, 9, 12, 1.5f };

Gains all(float gain)
{
    Gains gains;
    gains.fill(gain);
    return gains;
}

/// The default size is 100 x 50 points.
RetainPtr<SBEqualizerBackgroundView> curve(
    const float* gains = nullptr, const CGRect& frame = CGRectMake(0, 0, 100, 50))
{
    return make<SBEqualizerBackgroundView>(frame, gains);
}

std::vector<CGRect> framesOf(const UIView& view)
{
    std::vector<CGRect> frames;
    for (const auto& bar : view.subviews())
        frames.push_back(bar->frame());
    return frames;
}

std::vector<CGFloat> heightsOf(const UIView& view)
{
    std::vector<CGFloat> heights;
    for (const auto& bar : view.subviews())
        heights.push_back(bar->frame().size.height);
    return heights;
}

Components componentsOf(const UIView& bar)
{
    Components components {};
    auto& [red, green, blue, alpha] = components;
    bar.backgroundColor()->getRedGreenBlueAlpha(red, green, blue, alpha);
    return components;
}

std::vector<Components> colorsOf(const UIView& view)
{
    std::vector<Components> colors;
    for (const auto& bar : view.subviews())
        colors.push_back(componentsOf(*bar));
    return colors;
}

const Components yellow { 1, 1, 0, 1 };
const Components blue { 0, 0, 1, 1 };

RetainPtr<UIColor> blueColor()
{
    return UIColor::colorWithRedGreenBlueAlpha(0, 0, 1, 1);
}

TEST(ANewCurve, ShowsTenYellowBarsOfHalfTheHeight)
{
    const auto view = curve();
    ASSERT_EQ(view->subviews().size(), 10u);
    EXPECT_THAT(heightsOf(*view), Each(25));
    EXPECT_THAT(colorsOf(*view), Each(yellow));
    EXPECT_EQ(view->gains(), nullptr);
}

TEST(ANewCurve, WithoutAFrameIsEmpty)
{
    const auto view = make<SBEqualizerBackgroundView>();
    EXPECT_EQ(view->frame(), CGRect());
    EXPECT_THAT(framesOf(*view), Each(CGRect()));
    EXPECT_EQ(view->gains(), nullptr);
}

TEST(ANewCurve, TakesItsFrameAndGains)
{
    const auto gains = all(12);
    const auto view = curve(gains.data(), CGRectMake(3, 4, 200, 80));
    EXPECT_EQ(view->frame(), CGRectMake(3, 4, 200, 80));
    EXPECT_THAT(heightsOf(*view), Each(80));
    EXPECT_THAT(std::vector<float>(view->gains(), view->gains() + 10), Each(12));
}

TEST(ABar, StandsOnTheBottomEdgeAsHighAsItsGain)
{
    const auto view = curve(rising.data());
    const auto frames = framesOf(*view);
    EXPECT_EQ(frames[0], CGRectMake(0, 50, 10, 0));
    EXPECT_EQ(frames[1], CGRectMake(10, 43.75, 10, 6.25));
    EXPECT_EQ(frames[4], CGRectMake(40, 25, 10, 25));
    EXPECT_EQ(frames[8], CGRectMake(80, 0, 10, 50));
}

TEST(ABar, IsAsWideAsATenthOfTheView)
{
    const auto view = curve(rising.data(), CGRectMake(0, 0, 232, 44));
    const auto frames = framesOf(*view);
    for (std::size_t i = 0; i < frames.size(); ++i) {
        EXPECT_EQ(frames[i].origin.x, static_cast<double>(i) * 232 / 10);
        EXPECT_EQ(frames[i].size.width, 23.2);
        EXPECT_EQ(frames[i].origin.y, 44 - frames[i].size.height);
    }
}

TEST(ABar, AddsTwelveInSinglePrecisionAndContinuesInDouble)
{
    // In double precision the sum would not be rounded.
    const auto gains = all(0.1f);
    const auto view = curve(gains.data(), CGRectMake(0, 0, 100, 44));
    const float sum = 0.1f + 12.0f;
    EXPECT_NE(static_cast<double>(sum), 0.1f + 12.0);
    EXPECT_THAT(heightsOf(*view), Each(44 * static_cast<double>(sum) / 12 * 0.5));
}

TEST(ABar, GoesBeyondTheViewForGainsBeyondTwelve)
{
    Gains gains = all(24);
    gains[1] = -24;
    const auto view = curve(gains.data());
    const auto frames = framesOf(*view);
    EXPECT_EQ(frames[0], CGRectMake(0, -25, 10, 75));
    EXPECT_EQ(frames[1], CGRectMake(10, 75, 10, -25));
}

TEST(ABar, HasTheColorOfItsGain)
{
    const auto view = curve(rising.data());
    const auto colors = colorsOf(*view);
    EXPECT_EQ(colors[0], (Components { 0, 1, 0, 1 }));
    EXPECT_EQ(colors[2], (Components { 0.5, 1, 0, 1 }));
    EXPECT_EQ(colors[4], yellow);
    EXPECT_EQ(colors[6], (Components { 1, 0.5, 0, 1 }));
    EXPECT_EQ(colors[8], (Components { 1, 0, 0, 1 }));
}

TEST(ABar, DoesNotFadeBeyondTwelve)
{
    for (const float gain : { -12.0f, -18.0f, -24.0f, -1000.0f }) {
        const auto gains = all(gain);
        EXPECT_THAT(colorsOf(*curve(gains.data())), Each(Components { 0, 1, 0, 1 })) << gain;
    }
    for (const float gain : { 12.0f, 18.0f, 24.0f, 1000.0f }) {
        const auto gains = all(gain);
        EXPECT_THAT(colorsOf(*curve(gains.data())), Each(Components { 1, 0, 0, 1 })) << gain;
    }
}

/// Hue, saturation, brightness, alpha.
Components hsbOf(const UIView& bar)
{
    Components components {};
    auto& [hue, saturation, brightness, alpha] = components;
    EXPECT_TRUE(bar.backgroundColor()->getHueSaturationBrightnessAlpha(hue, saturation, brightness, alpha));
    return components;
}

TEST(ASaturation, LeavesHueBrightnessAndAlpha)
{
    const auto pure = curve(rising.data());
    const auto pale = curve();
    pale->setSaturation(0.1f);
    pale->setGains(rising.data());
    for (std::size_t i = 0; i < 10; ++i) {
        const auto expected = hsbOf(*pure->subviews()[i]);
        EXPECT_THAT(hsbOf(*pale->subviews()[i]),
            ElementsAre(DoubleNear(expected[0], 1e-9), DoubleNear(static_cast<double>(0.1f), 1e-9),
                DoubleNear(expected[2], 1e-9), DoubleNear(expected[3], 1e-9)));
    }
    EXPECT_EQ(heightsOf(*pale), heightsOf(*pure));
}

TEST(ASaturation, PalesGainsBeyondTwelveAsThoseOfTwelve)
{
    for (const float sign : { -1.0f, 1.0f }) {
        const auto view = curve();
        view->setSaturation(0.1f);
        const auto limit = all(sign * 12);
        view->setGains(limit.data());
        const auto colors = colorsOf(*view);
        const auto beyond = all(sign * 30);
        view->setGains(beyond.data());
        EXPECT_EQ(colorsOf(*view), colors);
        EXPECT_THAT(colors, Each(ElementsAre(testing::_, testing::_, DoubleNear(0.9, 1e-6), 1)));
    }
}

TEST(ASaturation, PalesTheBarsWithoutGainsToo)
{
    const auto view = curve();
    view->setSaturation(0.3f);
    EXPECT_THAT(colorsOf(*view), Each(yellow)) << "the bars do not change yet";
    view->setGains(nullptr);
    EXPECT_THAT(colorsOf(*view), Each(ElementsAre(1, 1, DoubleNear(static_cast<double>(1 - 0.3f), 1e-6), 1)));
}

TEST(ASaturation, OfZeroIsApplied)
{
    const auto view = curve();
    view->setSaturation(0);
    view->setGains(rising.data());
    EXPECT_THAT(colorsOf(*view), Each(Components { 1, 1, 1, 1 }));
}

TEST(ASaturation, OfMinusAHalfIsNotApplied)
{
    const auto view = curve();
    view->setColor(blueColor());
    view->setSaturation(-0.5f);
    view->setGains(rising.data());
    EXPECT_THAT(colorsOf(*view), Each(blue)) << "the fixed color stays";
    view->setColor(nullptr);
    view->setGains(nullptr);
    EXPECT_THAT(colorsOf(*view), Each(yellow));
}

TEST(ASaturation, JustAboveMinusAHalfDropsAFixedColor)
{
    const auto view = curve();
    view->setColor(blueColor());
    view->setSaturation(std::nextafter(-0.5f, 0.0f));
    EXPECT_THAT(colorsOf(*view), Each(blue)) << "the bars do not change yet";
    view->setGains(rising.data());
    EXPECT_NE(colorsOf(*view)[0], blue);
    EXPECT_NE(colorsOf(*view)[0], (Components { 0, 1, 0, 1 })) << "and is applied";
}

TEST(ASaturation, CanBeRemovedAgain)
{
    const auto view = curve();
    view->setSaturation(0.1f);
    view->setSaturation(-1);
    view->setGains(rising.data());
    EXPECT_EQ(colorsOf(*view), colorsOf(*curve(rising.data())));
}

TEST(ASaturation, LeavesAColorAloneThatCannotBeSplit)
{
    TestPlatform platform;
    const auto view = curve();
    view->setSaturation(0.1f);
    Gains gains = all(0);
    gains[3] = std::numeric_limits<float>::quiet_NaN();
    platform.takeTrace();
    view->setGains(gains.data());
    EXPECT_THAT(platform.takeTrace(), ElementsAre("log Brimsound: HOLY SHIT AN ERROR WITH THE COLOR"));
    EXPECT_TRUE(std::isnan(componentsOf(*view->subviews()[3])[0]));
    EXPECT_EQ(componentsOf(*view->subviews()[4])[0], 1);
}

TEST(AColorThatCannotBeSplit, IsAcceptedWithoutASaturation)
{
    TestPlatform platform;
    const auto gains = all(std::numeric_limits<float>::quiet_NaN());
    curve(gains.data());
    EXPECT_THAT(platform.takeTrace(), IsEmpty());
}

TEST(AnInfiniteGain, DoesNotMoveTheOtherBars)
{
    constexpr auto infinity = std::numeric_limits<float>::infinity();
    for (const float gain : { infinity, -infinity }) {
        Gains gains = rising;
        gains[3] = gain;
        const auto view = curve(gains.data());
        for (std::size_t i = 0; i < gains.size(); ++i) {
            if (i != 3) {
                EXPECT_EQ(framesOf(*view)[i], framesOf(*curve(rising.data()))[i]) << i;
            }
        }
    }
}

TEST(AFixedColor, IsAppliedAtOnceAndMovesNothing)
{
    const auto view = curve(rising.data());
    const auto frames = framesOf(*view);
    view->setColor(blueColor());
    EXPECT_THAT(colorsOf(*view), Each(blue));
    EXPECT_EQ(framesOf(*view), frames);
}

TEST(AFixedColor, StaysWhileTheHeightsFollowTheGains)
{
    const auto view = curve();
    view->setColor(blueColor());
    view->setGains(rising.data());
    EXPECT_THAT(colorsOf(*view), Each(blue));
    EXPECT_EQ(heightsOf(*view), heightsOf(*curve(rising.data())));
    view->setGains(nullptr);
    EXPECT_THAT(colorsOf(*view), Each(blue));
}

TEST(AFixedColor, IsRetainedOnceHoweverOftenItIsSet)
{
    const auto color = blueColor();
    const auto view = curve();
    view->setColor(color);
    const auto held = color->retainCount();
    // Shows that the view's own copy is compared, not the color of the bars.
    view->subviews()[0]->setBackgroundColor(UIColor::whiteColor());
    view->setColor(color);
    EXPECT_EQ(color->retainCount() + 1, held) << "the bar released it, and no other object retained it";
    EXPECT_EQ(componentsOf(*view->subviews()[0]), (Components { 1, 1, 1, 1 }));
}

TEST(AFixedColor, IsReleasedForAnother)
{
    const auto color = blueColor();
    const auto count = color->retainCount();
    const auto view = curve();
    view->setColor(color);
    view->setColor(UIColor::whiteColor());
    EXPECT_EQ(color->retainCount(), count);
    EXPECT_THAT(colorsOf(*view), Each(Components { 1, 1, 1, 1 }));
}

TEST(AFixedColor, SetToNullStaysOnTheBarsUntilTheNextGains)
{
    const auto view = curve(rising.data());
    view->setColor(blueColor());
    view->setColor(nullptr);
    EXPECT_THAT(colorsOf(*view), Each(blue));
    view->setGains(view->gains());
    EXPECT_EQ(colorsOf(*view), colorsOf(*curve(rising.data())));
}

TEST(AFixedColor, OverridesASaturation)
{
    const auto view = curve();
    view->setSaturation(0.1f);
    view->setColor(blueColor());
    view->setGains(rising.data());
    EXPECT_THAT(colorsOf(*view), Each(blue));
}

TEST(TheGainsOfACurve, AreACopyOfItsOwn)
{
    const auto view = curve();
    {
        auto gains = rising;
        view->setGains(gains.data());
        gains.fill(12);
    }
    EXPECT_TRUE(std::equal(rising.begin(), rising.end(), view->gains()));
    view->setFrame(CGRectMake(0, 0, 100, 100));
    EXPECT_EQ(view->subviews()[4]->frame().size.height, 50);
}

TEST(TheGainsOfACurve, KeepTheirBufferUntilTheyAreSetToNull)
{
    const auto view = curve(rising.data());
    auto* const buffer = view->gains();
    const auto flat = all(0);
    view->setGains(flat.data());
    EXPECT_EQ(view->gains(), buffer);
    EXPECT_EQ(buffer[9], 0);
    view->setGains(nullptr);
    EXPECT_EQ(view->gains(), nullptr);
    EXPECT_THAT(heightsOf(*view), Each(25));
    EXPECT_THAT(colorsOf(*view), Each(yellow));
    view->setGains(nullptr);
    EXPECT_EQ(view->gains(), nullptr);
    view->setGains(rising.data());
    EXPECT_TRUE(std::equal(rising.begin(), rising.end(), view->gains()));
}

TEST(TheGainsOfACurve, SetToTheBufferItselfAreLaidOutAgain)
{
    const auto view = curve(rising.data());
    auto* const buffer = view->gains();
    buffer[0] = 12;
    EXPECT_EQ(view->subviews()[0]->frame().size.height, 0);
    view->setGains(buffer);
    EXPECT_EQ(view->gains(), buffer);
    EXPECT_EQ(buffer[0], 12);
    EXPECT_EQ(view->subviews()[0]->frame().size.height, 50);
    EXPECT_EQ(componentsOf(*view->subviews()[0]), (Components { 1, 0, 0, 1 }));
}

TEST(TheGainsOfACurve, OutliveTheView)
{
    auto view = curve(rising.data());
    const auto* const buffer = view->gains();
    view = nullptr;
    EXPECT_TRUE(std::equal(rising.begin(), rising.end(), buffer));
}

TEST(TheBarsOfACurve, AreMadeOnce)
{
    const auto view = curve();
    const auto bars = view->subviews();
    view->setGains(rising.data());
    view->setColor(blueColor());
    view->setGains(nullptr);
    view->setFrame(CGRectMake(0, 0, 10, 10));
    EXPECT_EQ(view->subviews(), bars);
}

TEST(ResizingACurve, LaysTheBarsOutWithItsGains)
{
    const auto view = curve(rising.data());
    view->setFrame(CGRectMake(7, 8, 200, 80));
    EXPECT_EQ(view->frame(), CGRectMake(7, 8, 200, 80));
    EXPECT_EQ(framesOf(*view), framesOf(*curve(rising.data(), CGRectMake(0, 0, 200, 80))));
}

TEST(ResizingACurve, WithoutGainsKeepsHalfTheHeight)
{
    const auto view = curve();
    view->setFrame(CGRectMake(0, 0, 100, 80));
    EXPECT_THAT(heightsOf(*view), Each(40));
    EXPECT_EQ(view->gains(), nullptr);
}

TEST(ResizingACurve, IsNotAnimated)
{
    TestPlatform platform;
    const auto view = curve(rising.data());
    view->setFrame(CGRectMake(0, 0, 100, 100));
    EXPECT_EQ(shownFrame(*view->subviews()[8]), CGRectMake(80, 0, 10, 100));
}

TEST(AnimatedGains, MoveTheBarsOverHalfASecond)
{
    TestPlatform platform;
    const auto from = all(-12);
    const auto to = all(12);
    const auto view = curve(from.data());
    const auto& bar = *view->subviews()[3];
    view->setGainsAnimated(to.data(), Animated::Yes);
    EXPECT_EQ(bar.frame(), CGRectMake(30, 0, 10, 50)) << "the bar already has its new frame";
    EXPECT_EQ(shownFrame(bar), CGRectMake(30, 50, 10, 0)) << "and is displayed at its old frame";

    platform.passTime(0.25);
    EXPECT_NEAR(shownFrame(bar).size.height, 25, 0.5);
    EXPECT_THAT(shownBackground(bar), Pointwise(DoubleNear(0.05), { 0.5, 0.5, 0.0, 1.0 }));
    platform.passTime(0.2);
    EXPECT_LT(shownFrame(bar).size.height, 50);
    platform.passTime(0.06);
    EXPECT_EQ(shownFrame(bar), bar.frame());
    EXPECT_THAT(shownBackground(bar), ElementsAre(1, 0, 0, 1));
}

TEST(AnimatedGains, AreStoredAtOnce)
{
    TestPlatform platform;
    const auto view = curve();
    view->setGainsAnimated(rising.data(), Animated::Yes);
    EXPECT_TRUE(std::equal(rising.begin(), rising.end(), view->gains()));
    view->setGainsAnimated(nullptr, Animated::Yes);
    EXPECT_EQ(view->gains(), nullptr);
    platform.passTime(1);
    EXPECT_THAT(heightsOf(*view), Each(25));
}

TEST(AnimatedGains, AreReplacedByGainsWithoutAnimation)
{
    TestPlatform platform;
    const auto loud = all(12);
    const auto flat = all(0);
    const auto view = curve();
    view->setGainsAnimated(loud.data(), Animated::Yes);
    platform.passTime(0.1);
    view->setGains(flat.data());
    EXPECT_EQ(shownFrame(*view->subviews()[0]), CGRectMake(0, 25, 10, 25));
    platform.passTime(1);
    EXPECT_EQ(shownFrame(*view->subviews()[0]), CGRectMake(0, 25, 10, 25));
}

} // namespace

} // namespace brimsound::tests
