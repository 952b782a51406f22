#include "presets/Filter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <limits>
#include <numbers>

namespace brimsound::presets {
namespace {

using Shape = FilterShape;

struct Expected {
    Filter filter;
    double frequency;
    double gain;
};

class TheResponseOfACookbookFilter : public testing::TestWithParam<Expected> { };

TEST_P(TheResponseOfACookbookFilter, HasThisGain)
{
    const auto& [filter, frequency, gain] = GetParam();
    EXPECT_NEAR(responseOf(filter, frequency), gain, 0.0006);
}

INSTANTIATE_TEST_SUITE_P(Peak, TheResponseOfACookbookFilter,
    testing::Values(Expected { { Shape::Peak, 1000, 6, 1.41 }, 500, 1.137 },
        Expected { { Shape::Peak, 1000, 6, 1.41 }, 1000, 6 }));
INSTANTIATE_TEST_SUITE_P(LowShelf, TheResponseOfACookbookFilter,
    testing::Values(Expected { { Shape::LowShelf, 105, 6, 0.7 }, 60, 5.360 },
        Expected { { Shape::LowShelf, 105, 6, 0.7 }, 105, 3 },
        Expected { { Shape::LowShelf, 105, 6, 0.7 }, 20000, 0 }));
INSTANTIATE_TEST_SUITE_P(HighShelf, TheResponseOfACookbookFilter,
    testing::Values(Expected { { Shape::HighShelf, 10000, -5, 0.7 }, 6000, -0.431 },
        Expected { { Shape::HighShelf, 10000, -5, 0.7 }, 16000, -4.788 },
        Expected { { Shape::HighShelf, 10000, -5, 0.7 }, 20, 0 }));
// A pass filter with Q 1/sqrt 2 is 3 dB down at its corner.
INSTANTIATE_TEST_SUITE_P(Pass, TheResponseOfACookbookFilter,
    testing::Values(Expected { { Shape::LowPass, 1000, 0, std::numbers::sqrt2 / 2 }, 1000, -3.0103 },
        Expected { { Shape::LowPass, 1000, 0, std::numbers::sqrt2 / 2 }, 20, 0 },
        Expected { { Shape::HighPass, 1000, 0, std::numbers::sqrt2 / 2 }, 1000, -3.0103 },
        Expected { { Shape::HighPass, 1000, 0, std::numbers::sqrt2 / 2 }, 20000, 0 },
        Expected { { Shape::BandPass, 1000, 0, 2 }, 1000, 0 },
        Expected { { Shape::Notch, 1000, 0, 2 }, 20, 0 }));

TEST(TheResponseOfANotch, IsLimitedWhereItIsSilent)
{
    EXPECT_EQ(responseOf({ Shape::Notch, 12000, 0, 30 }, 12000), -120);
    EXPECT_LT(responseOf({ Shape::Notch, 1000, 0, 30 }, 1000), -90);
}

TEST(TheResponseOfACookbookFilter, IsExactAtLowFrequencies)
{
    // The cookbook's formula evaluated directly.
    const double omega = 2 * std::numbers::pi * 25 / comparisonRate;
    const double alpha = std::sin(omega) / (2 * 3.0);
    const double a = std::pow(10, -9.0 / 40);
    const auto z = std::polar(1.0, -2 * std::numbers::pi * 30 / comparisonRate);
    const auto h = (1 + alpha * a - 2 * std::cos(omega) * z + (1 - alpha * a) * z * z)
        / (1 + alpha / a - 2 * std::cos(omega) * z + (1 - alpha / a) * z * z);
    EXPECT_NEAR(responseOf({ Shape::Peak, 25, -9, 3 }, 30), 20 * std::log10(std::abs(h)), 1e-6);
}

TEST(AnRlcPeak, HasItsGainAtItsCenterAndNoneFarAway)
{
    for (const int stages : { 1, 2, 4 }) {
        const Filter filter { Shape::RlcPeak, 1000, 7, 2, stages };
        EXPECT_NEAR(responseOf(filter, 1000), 7, 1e-9);
        EXPECT_NEAR(responseOf(filter, 1), 0, 1e-3);
        EXPECT_NEAR(responseOf(filter, 23900), 0, 0.1);
    }
}

TEST(AnRlcPeak, DiffersFromTheCookbooks)
{
    struct Difference {
        double q;
        double largest;
    };
    for (const auto [q, largest] : { Difference { 0.7, 0.24 }, { 1.41, 0.44 }, { 4.36, 1.0 } }) {
        double difference = 0;
        for (double frequency = 20; frequency < 20000; frequency *= 1.01) {
            const double rlc = responseOf({ Shape::RlcPeak, 1000, 6, q }, frequency);
            const double cookbook = responseOf({ Shape::Peak, 1000, 6, q }, frequency);
            difference = std::max(difference, std::abs(rlc - cookbook));
        }
        EXPECT_NEAR(difference, largest, 0.03) << q;
    }
}

TEST(AnRlcShelf, HasItsGainOnItsSideOnly)
{
    EXPECT_NEAR(responseOf({ Shape::RlcLowShelf, 500, -6, 0.5 }, 1), -6, 0.01);
    EXPECT_NEAR(responseOf({ Shape::RlcLowShelf, 500, -6, 0.5 }, 23990), 0, 0.01);
    EXPECT_NEAR(responseOf({ Shape::RlcHighShelf, 500, -6, 0.5 }, 1), 0, 0.01);
    EXPECT_NEAR(responseOf({ Shape::RlcHighShelf, 500, -6, 0.5 }, 23990), -6, 0.01);
    EXPECT_NEAR(responseOf({ Shape::RlcHighShelf, 500, -6, 0.5 }, 500), -3, 0.01);
}

TEST(TheSlopeOfAShelf, ConvertsToItsQAndBack)
{
    EXPECT_NEAR(shelfQ(5, 10.8 / 12), 0.669, 0.0006);
    for (const double gain : { -10.0, 0.0, 6.0 }) {
        for (const double q : { 0.4, 0.7, 1.2 })
            EXPECT_NEAR(shelfQ(gain, shelfSlope(gain, q)), q, 1e-9);
    }
}

TEST(AFilter, IsMeaninglessWithNumbersThatAreNotFiniteOrNotAboveZero)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(isMeaningless({ Shape::Peak, 1000, -6, 1 }));
    EXPECT_TRUE(isMeaningless({ Shape::Peak, 0, 6, 1 }));
    EXPECT_TRUE(isMeaningless({ Shape::Peak, 1000, 6, 0 }));
    EXPECT_TRUE(isMeaningless({ Shape::Peak, nan, 6, 1 }));
    EXPECT_TRUE(isMeaningless({ Shape::Peak, 1000, infinity, 1 }));
    EXPECT_TRUE(isMeaningless({ Shape::Peak, 1000, 6, nan }));
}

TEST(AFilter, IsUnusableBeyondTheRangesOfSound)
{
    EXPECT_FALSE(unusable({ Shape::Peak, 20, 6, 1 }));
    EXPECT_EQ(unusable({ Shape::Peak, 0.5, 6, 1 }), "its frequency is below 1 Hz");
    EXPECT_EQ(unusable({ Shape::Peak, 24000, 6, 1 }), "its frequency is not below 24 kHz");
    EXPECT_EQ(unusable({ Shape::Peak, 1000, -101, 1 }), "its gain is beyond 100 dB");
    EXPECT_EQ(unusable({ Shape::Peak, 1000, 6, 0.001 }), "its Q is not from 0.01 to 1000");
    EXPECT_EQ(unusable({ Shape::Peak, 1000, 6, 2000 }), "its Q is not from 0.01 to 1000");
}

} // namespace
} // namespace brimsound::presets
