#include "desktop/engine/audio/Limiter.h"

#include "tests/unit/engine/audio/Signals.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace brimsound::audio::tests {

namespace {

constexpr double rate = 48000;
constexpr float infinity = std::numeric_limits<float>::infinity();

bool limit(Limiter& limiter, Samples& samples, std::size_t block = 1024)
{
    bool limited = false;
    for (std::size_t start = 0; start < samples.size(); start += block) {
        float* channel = samples.data() + start;
        limited |= limiter.process(&channel, 1, std::min(block, samples.size() - start));
    }
    return limited;
}

float peak(const Samples& samples)
{
    return std::abs(*std::ranges::max_element(samples, {}, [](float sample) { return std::abs(sample); }));
}

bool sameBits(const Samples& one, const Samples& other)
{
    return std::ranges::equal(
        one, other, {}, [](float sample) { return std::bit_cast<std::uint32_t>(sample); },
        [](float sample) { return std::bit_cast<std::uint32_t>(sample); });
}

} // namespace

TEST(ALimiter, ChangesNoBitBelowATenthOfADecibel)
{
    auto samples = noise(1, 0.9885f, 48000);
    samples[5] = -0.0f;
    samples[6] = 1e-42f;
    const auto before = samples;
    Limiter limiter(rate);
    EXPECT_FALSE(limit(limiter, samples));
    EXPECT_TRUE(sameBits(samples, before));
}

TEST(ALimiter, NeverExceedsFullScale)
{
    auto samples = noise(2, 40, 48000);
    Limiter limiter(rate);
    EXPECT_TRUE(limit(limiter, samples));
    EXPECT_LE(peak(samples), 0.98856f);
    EXPECT_GT(peak(samples), 0.98f);
}

TEST(ALimiter, HoldsASineBelowFullScaleFromItsFirstSampleOn)
{
    auto samples = sine(1000, rate, 4, 48000);
    Limiter limiter(rate);
    EXPECT_TRUE(limit(limiter, samples));
    EXPECT_LE(peak(samples), 0.98856f);
}

TEST(ALimiter, ReleasesWithATimeConstantOfAFifthOfASecond)
{
    // A loud sound causes 20 dB of reduction at once. The quiet sound that follows shows the gain.
    Samples samples(192000, 0.01f);
    samples[0] = 9.8855309f;
    Limiter limiter(rate);
    limit(limiter, samples);
    EXPECT_NEAR(samples[1] / 0.01f, 0.1, 0.001);
    EXPECT_NEAR(samples[9600] / 0.01f, 1 - 0.9 * std::exp(-1), 0.001);
    EXPECT_NEAR(samples[48000] / 0.01f, 1 - 0.9 * std::exp(-5), 0.001);
    // In the end exactly unchanged, not only nearly.
    EXPECT_EQ(samples.back(), 0.01f);
}

TEST(ALimiter, ReducesAllChannelsTogether)
{
    Samples loud(64, 2);
    Samples quiet(64, 0.1f);
    float* channels[] = { quiet.data(), loud.data() };
    Limiter limiter(rate);
    EXPECT_TRUE(limiter.process(channels, 2, 64));
    for (std::size_t frame = 0; frame < 64; ++frame)
        EXPECT_NEAR(quiet[frame] / loud[frame], 0.05, 1e-6);
}

TEST(ALimiter, ReportsOnlyBlocksThatWereTooLoud)
{
    Limiter limiter(rate);
    Samples loud(64, 1.5f);
    Samples quiet(64, 0.5f);
    EXPECT_FALSE(limit(limiter, quiet));
    EXPECT_TRUE(limit(limiter, loud));
    EXPECT_FALSE(limit(limiter, quiet));
}

TEST(ALimiter, ReplacesInvalidSamplesBySilence)
{
    Limiter limiter(rate);
    Samples samples { 0.5f, std::numeric_limits<float>::quiet_NaN(), infinity, -infinity, 0.25f };
    EXPECT_FALSE(limit(limiter, samples));
    EXPECT_EQ(samples, (Samples { 0.5f, 0, 0, 0, 0.25f }));
}

TEST(ALimiter, RecoversFromTheLargestNumber)
{
    Limiter limiter(rate);
    Samples samples(192000, 0.5f);
    samples[0] = std::numeric_limits<float>::max();
    samples[1] = -std::numeric_limits<float>::max();
    EXPECT_TRUE(limit(limiter, samples));
    EXPECT_LE(peak(samples), 0.98856f);
    EXPECT_EQ(samples.back(), 0.5f);
}

TEST(ALimiter, DoesNotDependOnTheSizeOfBlocks)
{
    auto whole = noise(3, 3, 20000);
    auto pieces = whole;
    Limiter one(rate);
    Limiter other(rate);
    limit(one, whole, whole.size());
    limit(other, pieces, 37);
    EXPECT_TRUE(sameBits(whole, pieces));
}

} // namespace brimsound::audio::tests
