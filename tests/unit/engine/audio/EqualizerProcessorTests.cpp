#include "desktop/engine/audio/EqualizerProcessor.h"

#include "desktop/engine/audio/EqualizerDesign.h"
#include "desktop/engine/audio/FilterResponse.h"
#include "tests/unit/engine/audio/Signals.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace brimsound::audio::tests {

using testing::Each;
using testing::FloatNear;

namespace {

constexpr double rate = 48000;
constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

BandGains all(double gain)
{
    BandGains sliders;
    sliders.fill(gain);
    return sliders;
}

constexpr BandGains smile { 9, 6, 3, 0, -3, -3, 0, 3, 6, 9 };

EqualizerProcessor processorWith(const BandGains& sliders, double preamp = 0, double atRate = rate)
{
    EqualizerProcessor processor;
    processor.set(EqualizerDesign(atRate).solve(sliders, preamp));
    return processor;
}

bool sameBits(const Samples& one, const Samples& other)
{
    return std::ranges::equal(
        one, other, {}, [](float sample) { return std::bit_cast<std::uint32_t>(sample); },
        [](float sample) { return std::bit_cast<std::uint32_t>(sample); });
}

// Values up to and beyond full scale, both zeros, and subnormal numbers.
Samples oddSamples()
{
    auto samples = noise(1, 4, 4800);
    samples[100] = -0.0f;
    samples[101] = 0;
    samples[102] = 1e-42f;
    samples[103] = -1e-42f;
    samples[104] = 1e6f;
    return samples;
}

std::uint32_t bitsOf(float sample)
{
    return std::bit_cast<std::uint32_t>(sample);
}

std::string rateName(const testing::TestParamInfo<double>& info)
{
    return "Of" + std::to_string(static_cast<int>(info.param)) + "Hz";
}

} // namespace

class AProcessorAtRate : public testing::TestWithParam<double> { };

TEST_P(AProcessorAtRate, HasTheResponseOfTheSliders)
{
    const double atRate = GetParam();
    const EqualizerDesign design(atRate);
    Samples impulse(static_cast<std::size_t>(atRate / 4));
    impulse[0] = 1;
    for (const auto& [name, sliders] : presets()) {
        EqualizerProcessor processor;
        const auto targets = design.solve(sliders, 0);
        processor.set(targets);
        const auto response = processed(processor, impulse);
        for (std::size_t band = 0; band < targets.bands; ++band) {
            EXPECT_NEAR(decibels(magnitudeAt(response, centers[band], atRate)), sliders[band], 0.02)
                << name << ", " << centers[band] << " Hz";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Rates, AProcessorAtRate,
    testing::Values(8000, 16000, 22050, 32000, 44100, 48000, 88200, 96000, 176400, 192000, 384000), rateName);

TEST(AProcessor, PassesSamplesUnchangedBeforeAnyTargets)
{
    EqualizerProcessor processor;
    EXPECT_TRUE(sameBits(processed(processor, oddSamples()), oddSamples()));
}

TEST(AFlatProcessor, ChangesNoBit)
{
    auto processor = processorWith(all(0));
    EXPECT_TRUE(sameBits(processed(processor, oddSamples()), oddSamples()));
}

TEST(AProcessor, ChangesNoBitAfterReturningToFlat)
{
    const EqualizerDesign design(rate);
    auto processor = processorWith(smile, -9);
    processed(processor, noise(2, 1, 4800));
    processor.set(design.solve(all(0), 0));
    // The last ten-thousandth of a dB takes the longest.
    processed(processor, noise(3, 1, 9600));
    EXPECT_TRUE(processor.isSettled());
    EXPECT_TRUE(sameBits(processed(processor, oddSamples()), oddSamples()));
}

TEST(AProcessor, ScalesByThePreamp)
{
    auto processor = processorWith(all(0), -6);
    const auto output = processed(processor, Samples(100, 0.5f));
    EXPECT_THAT(output, Each(FloatNear(0.5f * 0.501187f, 1e-6f)));
}

TEST(AProcessor, DoesNotDependOnTheSizeOfBlocks)
{
    const EqualizerDesign design(rate);
    const auto input = noise(4, 1, 48000);
    const auto outputInBlocksOf = [&](std::size_t block) {
        auto processor = processorWith(all(0));
        auto output = processed(processor, Samples(input.begin(), input.begin() + 5000), block);
        // The targets change twice, the second time while the gains are still moving.
        for (const std::size_t start : { 5000U, 5700U }) {
            processor.set(design.solve(start == 5000 ? smile : all(-6), -3));
            const auto end = start == 5000 ? input.begin() + 5700 : input.end();
            const auto more
                = processed(processor, Samples(input.begin() + static_cast<long>(start), end), block);
            output.insert(output.end(), more.begin(), more.end());
        }
        return output;
    };
    const auto output = outputInBlocksOf(1024);
    EXPECT_TRUE(sameBits(outputInBlocksOf(37), output));
    EXPECT_TRUE(sameBits(outputInBlocksOf(1), output));
    EXPECT_TRUE(sameBits(outputInBlocksOf(48000), output));
}

TEST(AProcessor, TreatsEachChannelAsIfItWereAlone)
{
    constexpr std::size_t frames = 2000;
    for (unsigned channels = 1; channels <= maximumChannels; ++channels) {
        auto processor = processorWith(all(0));
        processor.set(EqualizerDesign(rate).solve(smile, -9));
        std::vector<Samples> inputs;
        std::vector<Samples> outputs(channels, Samples(frames));
        std::vector<const float*> in;
        std::vector<float*> out;
        for (unsigned channel = 0; channel < channels; ++channel)
            inputs.push_back(noise(channel + 1, 1, frames));
        for (unsigned channel = 0; channel < channels; ++channel) {
            in.push_back(inputs[channel].data());
            out.push_back(outputs[channel].data());
        }
        processor.process(in.data(), out.data(), channels, frames);
        for (unsigned channel = 0; channel < channels; ++channel) {
            auto alone = processorWith(all(0));
            alone.set(EqualizerDesign(rate).solve(smile, -9));
            EXPECT_TRUE(sameBits(outputs[channel], processed(alone, inputs[channel]))) << channel;
        }
    }
}

TEST(AProcessor, WorksInPlace)
{
    auto samples = noise(5, 1, 3000);
    auto apart = processorWith(smile);
    const auto expected = processed(apart, samples);
    auto inPlace = processorWith(smile);
    float* channel = samples.data();
    inPlace.process(&channel, &channel, 1, samples.size());
    EXPECT_TRUE(sameBits(samples, expected));
}

TEST(AProcessor, TreatsNoInputAsSilence)
{
    auto processor = processorWith(smile);
    const auto sound = noise(6, 1, 1000);
    const float* in[] = { sound.data(), nullptr };
    Samples left(1000);
    Samples right(1000, 1.0f);
    float* out[] = { left.data(), right.data() };
    processor.process(in, out, 2, 1000);
    EXPECT_THAT(right, Each(0));
    EXPECT_NE(left[999], 0);

    // The filters' output decays after the input ends.
    in[0] = nullptr;
    processor.process(in, out, 2, 1000);
    EXPECT_NE(left[10], 0);
}

TEST(AProcessor, DoesNothingWithoutFramesOrChannels)
{
    auto processor = processorWith(smile);
    processor.process(nullptr, nullptr, 0, 64);
    Samples samples(1, 0.5f);
    float* channel = samples.data();
    processor.process(&channel, &channel, 1, 0);
    EXPECT_EQ(samples[0], 0.5f);
}

TEST(AProcessor, StartsWithItsFirstTargetsSettled)
{
    auto processor = processorWith(all(0), -6);
    EXPECT_TRUE(processor.isSettled());
    EXPECT_NEAR(processed(processor, { 1 })[0], 0.501187, 1e-6);
}

TEST(AProcessor, GlidesToLaterTargets)
{
    auto processor = processorWith(all(0), 0);
    processor.set(EqualizerDesign(rate).solve(all(0), -12));
    const auto output = processed(processor, Samples(48000, 1.0f));
    EXPECT_GT(output[0], 0.999f);
    EXPECT_TRUE(std::is_sorted(output.rbegin(), output.rend()));
    // Two poles of 10 ms: halfway, in dB, after 16.8 ms, and 99 % after 66 ms.
    EXPECT_NEAR(decibels(output[806]), -6, 0.3);
    EXPECT_NEAR(decibels(output[3186]), -12 * 0.99, 0.01);
    EXPECT_NEAR(decibels(output.back()), -12, 1e-5);
    EXPECT_TRUE(processor.isSettled());
}

TEST(ASettledProcessor, HasReachedItsTargetsAndClearedItsState)
{
    auto processor = processorWith(smile);
    processed(processor, noise(7, 1, 1000));
    processor.set(EqualizerDesign(rate).solve(all(6), -3));
    EXPECT_FALSE(processor.isSettled());
    processor.settle();
    EXPECT_TRUE(processor.isSettled());
    auto fresh = processorWith(all(6), -3);
    const auto input = noise(8, 1, 1000);
    EXPECT_TRUE(sameBits(processed(processor, input), processed(fresh, input)));
}

TEST(TargetsForAnotherRate, AreSettledAtOnce)
{
    auto processor = processorWith(smile);
    processed(processor, noise(9, 1, 1000));
    processor.set(EqualizerDesign(96000).solve(smile, 0));
    EXPECT_TRUE(processor.isSettled());
    auto fresh = processorWith(smile, 0, 96000);
    const auto input = noise(10, 1, 1000);
    EXPECT_TRUE(sameBits(processed(processor, input), processed(fresh, input)));
}

class APoisonedProcessor : public testing::TestWithParam<float> { };

TEST_P(APoisonedProcessor, StaysFiniteAndRecovers)
{
    auto processor = processorWith(all(12), 12);
    auto poisoned = noise(11, 1, 4800);
    std::fill(poisoned.begin() + 1000, poisoned.begin() + 2000, GetParam());
    const auto output = processed(processor, poisoned);
    EXPECT_TRUE(std::ranges::all_of(output, [](float sample) { return std::isfinite(sample); }));

    // The same as if the bad samples had been silence.
    auto clean = processorWith(all(12), 12);
    std::fill(poisoned.begin() + 1000, poisoned.begin() + 2000, 0.0f);
    EXPECT_TRUE(sameBits(output, processed(clean, poisoned)));
}

INSTANTIATE_TEST_SUITE_P(
    Samples, APoisonedProcessor, testing::Values(nan, -nan, infinity, -infinity, 1e38f, -3e38f, 1.1e6f));

TEST(AProcessor, RecoversFromUnstableFilters)
{
    const auto good = EqualizerDesign(rate).solve(smile, 0);
    auto growing = good;
    // Negative damping.
    growing.inverseQ[3] = -0.5;
    auto processor = processorWith(smile);
    processor.set(growing);
    processor.settle();
    processed(processor, noise(12, 1, 48000));
    processor.set(good);
    const auto silence = processed(processor, Samples(96000), 64);
    EXPECT_NEAR(silence.back(), 0, 1e-9);
}

TEST(AProcessor, StaysStableWhileTargetsJumpAllTheTime)
{
    const EqualizerDesign design(rate);
    auto processor = processorWith(all(0));
    const auto input = noise(14, 1, 64);
    float loudest = 0;
    for (int jump = 0; jump < 2000; ++jump) {
        processor.set(design.solve(all(jump % 2 == 0 ? 12 : -12), 0));
        for (const float sample : processed(processor, input))
            loudest = std::max(loudest, std::abs(sample));
    }
    EXPECT_LT(loudest, 20);
}

TEST(AProcessor, FlushesNumbersTooSmallForFullPrecision)
{
    // With the preamp at 12 dB such a sample would become four times as large.
    auto processor = processorWith(all(0), 12);
    const float small = 1e-40f;
    EXPECT_EQ(bitsOf(processed(processor, { small })[0]), bitsOf(small));
    // Outside the processor the arithmetic is unchanged.
    const float volatile half = small;
    EXPECT_NE(bitsOf(half * 0.5f), 0U);
}

} // namespace brimsound::audio::tests
