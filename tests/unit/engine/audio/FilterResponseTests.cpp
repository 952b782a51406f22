#include "desktop/engine/audio/FilterResponse.h"

#include "desktop/engine/audio/EqualizerDesign.h"

#include <gtest/gtest.h>

#include <complex>
#include <numbers>

namespace brimsound::audio::tests {

namespace {

/// The cookbook's peaking filter as published, with Q instead of a bandwidth.
double cookbookDecibels(double center, double gain, double q, double frequency, double rate)
{
    const double amplitude = std::pow(10, gain / 40);
    const double omega = 2 * std::numbers::pi * center / rate;
    const double alpha = std::sin(omega) / (2 * q);
    const auto z = std::polar(1.0, -2 * std::numbers::pi * frequency / rate);
    const auto numerator = 1 + alpha * amplitude - 2 * std::cos(omega) * z + (1 - alpha * amplitude) * z * z;
    const auto denominator
        = 1 + alpha / amplitude - 2 * std::cos(omega) * z + (1 - alpha / amplitude) * z * z;
    return 20 * std::log10(std::abs(numerator / denominator));
}

double bellDecibels(double detuning, double gain, double inverseQ)
{
    return 10 * std::log10(bellResponse(detuning, amplitude(gain), inverseQ).power);
}

FilterTargets oneBell(std::size_t band, double gain, double rate)
{
    auto targets = EqualizerDesign(rate).solve({}, 0);
    targets.gains[band] = gain;
    return targets;
}

} // namespace

TEST(TheResponseOfABell, IsTheCookbooks)
{
    for (const double rate : { 44100.0, 192000.0 }) {
        for (const std::size_t band : { 0U, 4U, 9U }) {
            const auto targets = oneBell(band, -7, rate);
            for (const double frequency : { 20.0, 60.0, 900.0, 1000.0, 15000.0, 20000.0 }) {
                EXPECT_NEAR(responseAt(targets, frequency),
                    cookbookDecibels(centers[band], -7, 1 / targets.inverseQ[band], frequency, rate), 1e-9);
            }
        }
    }
}

TEST(TheResponseOfABell, IsHalfTheGainWhereItsWidthIsMeasured)
{
    for (const double gain : { -20.0, 3.0, 12.0 })
        EXPECT_NEAR(bellDecibels(0.7 * 0.7, gain, 0.7), gain / 2, 1e-12);
}

TEST(TheSlopeOfABell, IsTheChangeOfTheResponse)
{
    for (const double detuning : { 0.0, 0.3, 5.0 }) {
        constexpr double step = 1e-5;
        const double change = bellDecibels(detuning, 6 + step, 0.8) - bellDecibels(detuning, 6 - step, 0.8);
        EXPECT_NEAR(bellResponse(detuning, amplitude(6), 0.8).slope, change / (2 * step), 1e-6);
    }
}

TEST(TheResponse, IsFlatAtTheEndsOfTheSpectrum)
{
    const auto targets = oneBell(9, 12, 44100);
    EXPECT_EQ(responseAt(targets, 0), 0);
    EXPECT_NEAR(responseAt(targets, 22050), 0, 1e-9);
}

TEST(TheMaximum, IsFoundBetweenTheSliders)
{
    // The response of equal sliders is slightly higher between them.
    const auto targets = EqualizerDesign(48000).solve({ 0, 0, 0, 0, 6, 6, 0, 0, 0, 0 }, -3);
    double highest = 0;
    for (int point = 0; point < 7000; ++point)
        highest = std::max(highest, responseAt(targets, 20 * std::pow(1000, point / 7000.0)));
    EXPECT_GT(highest, 6.05);
    EXPECT_NEAR(maximumResponse(targets), highest, 0.02);
}

TEST(TheMaximum, IsNoLowerThanANarrowBand)
{
    const auto targets = EqualizerDesign(192000).solve({ 0, 0, 0, 0, 0, 0, 0, 0, 0, 6 }, 0);
    EXPECT_NEAR(maximumResponse(targets), 6, 0.05);
}

TEST(TheMaximum, IsNoHigherThanZeroWhenAllSlidersAreDown)
{
    BandGains sliders;
    sliders.fill(-12);
    EXPECT_LT(maximumResponse(EqualizerDesign(48000).solve(sliders, 0)), 0);
    EXPECT_GT(maximumResponse(EqualizerDesign(48000).solve(sliders, 0)), -3);
}

} // namespace brimsound::audio::tests
