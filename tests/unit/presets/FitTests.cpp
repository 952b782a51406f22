#include "presets/Fit.h"

#include "presets/Conversion.h"
#include "tests/support/ExampleResponses.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace brimsound::presets {
namespace {

using Shape = FilterShape;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

MATCHER_P2(IsNear, value, distance, "")
{
    return std::abs(arg - value) <= distance;
}

Finding warning(const std::string& text)
{
    return { Severity::Warning, {}, text };
}

Level levelOf(const Response& response)
{
    return response.levelIsKnown ? Level::Counts : Level::IsFree;
}

TEST(TheFit, IsNeverFurtherFromTheTargetThanItsSamplesAtTheCenters)
{
    for (const auto& [name, response] : tests::exampleResponses()) {
        const auto points = pointsOf(response);
        const auto level = levelOf(response);
        const auto fitted = compare(points, level, fit(points, level));
        const auto sampled = compare(points, level, sampleAtCenters(points));
        EXPECT_LE(fitted.rms, sampled.rms) << name;
        EXPECT_LE(fitted.largest, sampled.largest) << name;
    }
}

TEST(TheFit, KeepsTheBandsOfATrebleShelfTogether)
{
    const auto points = pointsOf({ { { Shape::HighShelf, 10000, -5, 0.7 } }, {}, true });
    const auto gains = fit(points, Level::Counts);
    EXPECT_THAT(gains[4], IsNear(0, 0.1));
    EXPECT_THAT(gains[7], IsNear(-4, 0.5));
    EXPECT_THAT(gains[8], IsNear(-4.5, 0.5));
    EXPECT_THAT(gains[9], IsNear(-5, 0.5));
    EXPECT_LT(compare(points, Level::Counts, gains).rms, 0.12);
}

TEST(TheFit, StaysWithinTheLimitsOfTheSliders)
{
    const Response response { { { Shape::LowShelf, 500, 20, 0.7 }, { Shape::HighShelf, 5000, -20, 0.7 } }, {},
        true };
    const auto gains = fit(pointsOf(response), Level::Counts);
    EXPECT_THAT(gains[0], IsNear(12, 1e-6));
    EXPECT_THAT(gains[9], IsNear(-12, 1e-6));
    for (const double gain : gains)
        EXPECT_LE(std::abs(gain), 12);
}

TEST(TheFit, IsFlatForAFlatTarget)
{
    const Response response { { { Shape::Peak, 1000, 0, 1 } }, {}, true };
    EXPECT_THAT(fit(pointsOf(response), Level::Counts), Each(IsNear(0, 1e-6)));
}

TEST(AnUnknownLevel, MakesNoDifference)
{
    const Curve curve { { 60, -7 }, { 1000, -10 }, { 3000, -4 }, { 16000, -9 } };
    const auto gains = fit(pointsOf({ {}, { curve }, false }), Level::IsFree);
    for (const double shift : { -50, -5, 30 }) {
        Curve shifted = curve;
        for (auto& point : shifted)
            point.gain += shift;
        const auto same = fit(pointsOf({ {}, { shifted }, false }), Level::IsFree);
        for (std::size_t band = 0; band < gains.size(); ++band)
            EXPECT_NEAR(gains[band], same[band], 0.01) << shift;
    }
}

TEST(TheDifference, IsMeasuredFrom40HertzTo16Kilohertz)
{
    // The response of flat sliders is 0 dB, so the difference is the curve itself.
    const Curve curve { { 39, 12 }, { 40, 3 }, { 16000, 3 }, { 16100, 12 } };
    const auto difference = compare(pointsOf({ {}, { curve }, true }), Level::Counts, {});
    EXPECT_NEAR(difference.rms, 3, 1e-9);
    EXPECT_NEAR(difference.largest, 3, 1e-9);
    EXPECT_NEAR(compare(pointsOf({ {}, { curve }, true }), Level::IsFree, {}).rms, 0, 1e-9);
}

TEST(TheDifference, TellsWhereItIsLargest)
{
    const auto difference
        = compare(pointsOf({ { { Shape::Peak, 2000, 6, 4 } }, {}, true }), Level::Counts, {});
    EXPECT_NEAR(difference.frequency, 2000, 30);
    EXPECT_NEAR(difference.largest, 6, 0.1);
}

TEST(TheTarget, IsEvaluatedAt240Frequencies)
{
    const auto points = pointsOf({ { { Shape::Peak, 1000, 6, 1 } }, { { { 1000, 2 } } }, true });
    ASSERT_EQ(points.size(), 240U);
    EXPECT_NEAR(points.front().frequency, 20, 1e-9);
    EXPECT_NEAR(points.back().frequency, 20000, 1e-6);
    EXPECT_NEAR(points.front().gain, 2, 0.1);
    // A point below 40 Hz stands for a tenth of what one above stands for.
    EXPECT_NEAR(points[100].weight / points[5].weight, 10, 1e-9);
}

TEST(TheTarget, OfADenseCurveIsItsOwnPointsInTheAudibleRange)
{
    Curve curve { { 10, 1 } };
    for (int i = 0; i < 61; ++i)
        curve.push_back({ 20 * std::pow(1000, i / 60.0), static_cast<double>(i % 5) });
    curve.push_back({ 21000, 1 });
    const auto points = pointsOf({ {}, { curve }, true });
    ASSERT_EQ(points.size(), 61U);
    EXPECT_EQ(points[7].frequency, curve[8].frequency);
    EXPECT_EQ(points[7].gain, curve[8].gain);
    curve.pop_back();
    curve.pop_back();
    EXPECT_EQ(pointsOf({ {}, { curve }, true }).size(), 240U);
}

TEST(TheTarget, OfACurveThatIsDenseOnlyInAPartOfTheRangeIsInterpolated)
{
    Curve low;
    Curve linear;
    for (int i = 0; i <= 100; ++i) {
        low.push_back({ 20.0 + i, -i / 20.0 });
        linear.push_back({ 20 + 199.8 * i, -i / 20.0 });
    }
    EXPECT_EQ(pointsOf({ {}, { low }, false }).size(), 240U);
    EXPECT_EQ(pointsOf({ {}, { linear }, false }).size(), 240U);
    // Constant above 120 Hz.
    const auto gains = fit(pointsOf({ {}, { low }, true }), Level::Counts);
    for (std::size_t band = 2; band < gains.size(); ++band)
        EXPECT_NEAR(gains[band], -5, 1) << band;
}

TEST(TheTarget, IsLimitedTo24Decibels)
{
    const auto points = pointsOf({ {}, { { { 100, 90 }, { 10000, -90 } } }, true });
    EXPECT_EQ(points.front().gain, 24);
    EXPECT_EQ(points.back().gain, -24);
}

TEST(TheTarget, OfUnknownLevelHasItsMedianAtZero)
{
    const auto points = pointsOf({ {}, { { { 100, -90 }, { 10000, -70 } } }, false });
    EXPECT_NEAR(points[120].gain, 0, 1e-9);
    EXPECT_NEAR(points.back().gain - points.front().gain, 20, 1e-9);
    const double huge = std::numeric_limits<double>::max();
    for (const auto& point : pointsOf({ {}, { { { 100, huge } }, { { 100, huge } } }, false }))
        EXPECT_EQ(point.gain, 24);
}

TEST(ACurve, IsLinearOverTheLogarithmOfTheFrequencyAndConstantOutside)
{
    const Curve curve { { 100, 2 }, { 10000, 6 } };
    EXPECT_EQ(gainAt(curve, 20), 2);
    EXPECT_EQ(gainAt(curve, 100), 2);
    EXPECT_NEAR(gainAt(curve, 1000), 4, 1e-9);
    EXPECT_EQ(gainAt(curve, 20000), 6);
}

TEST(ACurve, IsFiniteForNumbersOfAnySize)
{
    const double smallest = std::numeric_limits<double>::denorm_min();
    const double huge = std::numeric_limits<double>::max();
    EXPECT_TRUE(std::isfinite(gainAt({ { smallest, huge }, { 100, -huge } }, 20)));
}

TEST(Positions, AreCopied)
{
    Findings findings;
    const Positions positions { { 1, 2, 3, 4, 5, -5, -4, -3, -2, -1 } };
    const auto conversion = convert(positions, Copying::Allowed, findings);
    EXPECT_EQ(conversion.gains, positions.gains);
    EXPECT_FALSE(conversion.difference);
    EXPECT_THAT(findings.all(), IsEmpty());
}

TEST(Positions, AreLimitedWithAWarningEach)
{
    Findings findings;
    const auto conversion
        = convert(Positions { { 20, 0, 0, 0, 0, 0, 0, 0, 0, -12.5 } }, Copying::Allowed, findings);
    EXPECT_THAT(conversion.gains, ElementsAre(12, 0, 0, 0, 0, 0, 0, 0, 0, -12));
    EXPECT_THAT(findings.all(),
        ElementsAre(warning("the gain of 20 dB at 60 Hz is limited to 12 dB"),
            warning("the gain of -12.5 dB at 16 kHz is limited to -12 dB")));
}

TEST(Positions, AreFittedWhenCopyingIsForbidden)
{
    Findings findings;
    const auto conversion
        = convert(Positions { { 0, 0, 0, 0, 6, 0, 0, 0, 0, 0 } }, Copying::Forbidden, findings);
    ASSERT_TRUE(conversion.difference);
    EXPECT_GT(conversion.gains[4], 4);
    EXPECT_NE(conversion.gains[4], 6);
}

TEST(AConversion, WarnsOfWhatTenBandsCannotFollow)
{
    Findings findings;
    convert(Response { { { Shape::Peak, 2000, 12, 6 } }, {}, true }, Copying::Allowed, findings);
    ASSERT_EQ(findings.all().size(), 1U);
    EXPECT_THAT(findings.all()[0].text, testing::StartsWith("ten bands only follow it roughly: up to "));
    EXPECT_THAT(findings.all()[0].text, testing::EndsWith(" kHz"));
}

Finding reported(Shape shape, double frequency, double gain)
{
    Findings findings;
    convert(Response { { { shape, frequency, gain, 0.7, 1, "7" } }, {}, true }, Copying::Allowed, findings);
    return findings.all().empty() ? Finding {} : findings.all().front();
}

TEST(AConversion, WarnsOfFiltersBeyondTheBands)
{
    const auto lost = [](const std::string& frequency) {
        return Finding { Severity::Warning, "7",
            "a filter at " + frequency + " is beyond the bands and is lost" };
    };
    EXPECT_EQ(reported(Shape::Peak, 25, 2), lost("25 Hz"));
    EXPECT_EQ(reported(Shape::RlcPeak, 25, 2), lost("25 Hz"));
    EXPECT_EQ(reported(Shape::Peak, 19000, -1), lost("19 kHz"));
    EXPECT_EQ(reported(Shape::LowShelf, 35, 1), lost("35 Hz"));
    EXPECT_EQ(reported(Shape::RlcHighShelf, 20000, 1), lost("20 kHz"));
    EXPECT_EQ(reported(Shape::HighPass, 20, 0), lost("20 Hz"));
    EXPECT_EQ(reported(Shape::LowPass, 19500, 0), lost("19.5 kHz"));
    EXPECT_EQ(reported(Shape::Peak, 25, 0), Finding {});
    EXPECT_EQ(reported(Shape::Peak, 1000, 1), Finding {});
}

TEST(AConversion, NotesFiltersThatReachBeyondTheBands)
{
    const auto note = [](const std::string& text) { return Finding { Severity::Note, "7", text }; };
    const auto below = note("the filter at 105 Hz falls back to 0 dB below 60 Hz");
    EXPECT_EQ(reported(Shape::LowShelf, 105, 1), below);
    EXPECT_EQ(reported(Shape::RlcLowShelf, 105, -1), below);
    EXPECT_EQ(reported(Shape::HighPass, 105, 0), below);
    const auto above = note("the filter at 10 kHz falls back to 0 dB above 16 kHz");
    EXPECT_EQ(reported(Shape::HighShelf, 10000, 1), above);
    EXPECT_EQ(reported(Shape::RlcHighShelf, 10000, -1), above);
    EXPECT_EQ(reported(Shape::LowPass, 10000, 0), above);
    EXPECT_EQ(reported(Shape::LowShelf, 105, 0), Finding {});
}

TEST(AConversion, WarnsOfNarrowNotches)
{
    Findings findings;
    convert(Response { { { Shape::Notch, 50, 0, 30, 1, "7" } }, {}, true }, Copying::Allowed, findings);
    EXPECT_EQ(findings.all().front(),
        (Finding { Severity::Warning, "7", "a notch at 50 Hz is narrower than the bands and is lost" }));
}

TEST(AConversion, NamesTheBandsThatEndAtTheLimit)
{
    Findings findings;
    convert(Response { { { Shape::LowShelf, 200, 20, 0.7 } }, {}, true }, Copying::Allowed, findings);
    EXPECT_THAT(findings.all(),
        Contains(Field(&Finding::text, testing::StartsWith("more than 12 dB would be needed at 60 Hz"))));
}

} // namespace
} // namespace brimsound::presets
