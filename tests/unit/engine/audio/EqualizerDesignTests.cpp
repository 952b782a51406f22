#include "desktop/engine/audio/EqualizerDesign.h"

#include "desktop/engine/audio/FilterResponse.h"
#include "tests/unit/engine/audio/Signals.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace brimsound::audio::tests {

using testing::Each;
using testing::ElementsAre;

namespace {

constexpr std::array<double, 6> commonRates { 44100, 48000, 88200, 96000, 176400, 192000 };

BandGains all(double gain)
{
    BandGains sliders;
    sliders.fill(gain);
    return sliders;
}

/// The largest deviations over many sets of sliders.
struct Worst {
    /// The largest difference between the response and a slider.
    double error = 0;
    /// The largest excess over the highest slider, or over 0 dB.
    double overshoot = 0;
    double filterGain = 0;

    void take(const EqualizerDesign& design, const BandGains& sliders)
    {
        const auto targets = design.solve(sliders, 0);
        double highest = 0;
        for (std::size_t band = 0; band < targets.bands; ++band) {
            const double miss = std::abs(responseAt(targets, centers[band]) - sliders[band]);
            // The condition is negated so that NaN counts.
            if (!(miss <= error))
                error = miss;
            highest = std::max(highest, sliders[band]);
            filterGain = std::max(filterGain, std::abs(targets.gains[band]));
        }
        overshoot = std::max(overshoot, maximumResponse(targets) - highest);
    }
};

Worst worstOfPresets(double rate)
{
    Worst worst;
    const EqualizerDesign design(rate);
    for (const auto& [name, sliders] : presets())
        worst.take(design, sliders);
    return worst;
}

Worst worstOfRandomSets(double rate)
{
    Worst worst;
    const EqualizerDesign design(rate);
    std::mt19937 generator(1);
    std::uniform_real_distribution<double> gain(-12, 12);
    for (int set = 0; set < 1000; ++set) {
        BandGains sliders;
        std::ranges::generate(sliders, [&] { return gain(generator); });
        worst.take(design, sliders);
    }
    return worst;
}

// All sets of sliders at their upper or lower ends.
Worst worstOfCorners(double rate)
{
    Worst worst;
    const EqualizerDesign design(rate);
    for (unsigned corner = 0; corner < 1U << bandCount; ++corner) {
        BandGains sliders;
        for (std::size_t band = 0; band < bandCount; ++band)
            sliders[band] = corner >> band & 1U ? 12 : -12;
        worst.take(design, sliders);
    }
    return worst;
}

void expectWithin(const Worst& worst, double overshoot)
{
    EXPECT_LT(worst.error, 0.011);
    EXPECT_LT(worst.overshoot, overshoot);
    EXPECT_LT(worst.filterGain, 29);
}

std::string rateName(const testing::TestParamInfo<double>& info)
{
    return "At" + std::to_string(static_cast<int>(info.param)) + "Hz";
}

} // namespace

class ADesign : public testing::TestWithParam<double> {
protected:
    static bool isCommon() { return GetParam() >= 44100; }
};

TEST_P(ADesign, MatchesTheSlidersOfEveryPreset)
{
    expectWithin(worstOfPresets(GetParam()), isCommon() ? 0.4 : 0.5);
}

TEST_P(ADesign, MatchesAllSlidersAtOneEnd)
{
    for (const double gain : { -12.0, 12.0 }) {
        Worst worst;
        worst.take(EqualizerDesign(GetParam()), all(gain));
        expectWithin(worst, isCommon() ? 0.2 : 0.4);
    }
}

TEST_P(ADesign, MatchesSlidersAnywhere)
{
    expectWithin(worstOfRandomSets(GetParam()), isCommon() ? 1 : 1.1);
}

TEST_P(ADesign, MatchesSlidersAtEitherEnd)
{
    expectWithin(worstOfCorners(GetParam()), isCommon() ? 1 : 1.1);
}

INSTANTIATE_TEST_SUITE_P(CommonRates, ADesign, testing::ValuesIn(commonRates), rateName);
// Some bands are above half of these rates, or just below it.
INSTANTIATE_TEST_SUITE_P(OtherRates, ADesign,
    testing::Values(
        8000, 11025, 12000, 12001, 12500, 16000, 22050, 24010, 28001, 32000, 32001, 33000, 352800, 384000),
    rateName);

TEST(BandsAtHalfTheRateOrAbove, AreLeftOut)
{
    const auto bandsAt = [](double rate) { return EqualizerDesign(rate).solve(all(12), 0).bands; };
    EXPECT_EQ(bandsAt(100), 0U);
    EXPECT_EQ(bandsAt(8000), 6U);
    EXPECT_EQ(bandsAt(12000), 6U);
    EXPECT_EQ(bandsAt(16000), 7U);
    EXPECT_EQ(bandsAt(22050), 7U);
    EXPECT_EQ(bandsAt(32000), 9U);
    EXPECT_EQ(bandsAt(32001), 10U);
    EXPECT_EQ(bandsAt(44100), 10U);
}

TEST(BandsAtHalfTheRateOrAbove, HaveAFilterThatDoesNothing)
{
    const auto targets = EqualizerDesign(32000).solve(all(12), 0);
    EXPECT_EQ(targets.gains[9], 0);
    EXPECT_EQ(targets.tangents[9], 0);
    EXPECT_EQ(targets.inverseQ[9], 0);
}

TEST(BandsAtHalfTheRateOrAbove, DoNotChangeTheOthers)
{
    auto sliders = all(3);
    const auto targets = EqualizerDesign(16000).solve(sliders, 0);
    std::fill(sliders.begin() + 7, sliders.end(), -12);
    EXPECT_EQ(EqualizerDesign(16000).solve(sliders, 0).gains, targets.gains);
}

TEST(FlatSliders, MakeFiltersOfExactlyZero)
{
    EXPECT_THAT(EqualizerDesign(48000).solve(all(0), 0).gains, Each(0));
}

TEST(SlidersBeyondTheirEnds, AreClampedToTheirEnds)
{
    const EqualizerDesign design(48000);
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double far : { 12.5, 1e30, infinity }) {
        EXPECT_EQ(design.solve(all(far), far).gains, design.solve(all(12), 12).gains);
        EXPECT_EQ(design.solve(all(-far), far).gains, design.solve(all(-12), 12).gains);
        EXPECT_EQ(design.solve(all(0), far).preamp, 12);
        EXPECT_EQ(design.solve(all(0), -far).preamp, -12);
    }
}

TEST(ASliderThatIsNaN, CountsAsZero)
{
    const auto nan = std::numeric_limits<double>::quiet_NaN();
    const auto targets = EqualizerDesign(48000).solve(all(nan), nan);
    EXPECT_THAT(targets.gains, Each(0));
    EXPECT_EQ(targets.preamp, 0);
}

TEST(Targets, CarryTheRateAndTheFilters)
{
    const auto targets = EqualizerDesign(48000).solve(all(0), -3);
    EXPECT_EQ(targets.rate, 48000);
    EXPECT_EQ(targets.preamp, -3);
    EXPECT_NEAR(targets.tangents[7], 1, 1e-15);
    std::array<double, bandCount> q;
    std::ranges::transform(targets.inverseQ, q.begin(), [](double inverse) { return 1 / inverse; });
    const auto about = [](double value) { return testing::DoubleNear(value, 0.0001); };
    // The bells at 48 kHz, from the bandwidths 1.2 * 1.5025, 1.2 * 1.1846 ... octaves.
    EXPECT_THAT(q,
        ElementsAre(about(0.7504), about(0.9749), about(1.2902), about(1.3927), about(0.9933), about(0.8621),
            about(1.0448), about(1.4753), about(3.6530), about(3.0832)));
}

} // namespace brimsound::audio::tests
