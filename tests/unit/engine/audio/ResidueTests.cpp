// A moving slider must only change its gain. These tests measure what it adds elsewhere in the spectrum.
#include "desktop/engine/audio/EqualizerDesign.h"
#include "tests/unit/engine/audio/Signals.h"

#include <gtest/gtest.h>

#include <functional>

namespace brimsound::audio::tests {

namespace {

constexpr double rate = 48000;
constexpr std::size_t frames = 1U << 16;
// A hundred messages per second.
constexpr std::size_t update = 480;

/// The 1 kHz slider, in dB, at each update.
using Movement = std::function<double(std::size_t)>;

// Up in fifty steps and down again.
double drag(std::size_t count)
{
    const auto step = count % 100;
    return -12 + 0.48 * static_cast<double>(step < 50 ? step : 100 - step);
}

double jumps(std::size_t count)
{
    return count / 10 % 2 == 0 ? -12 : 12;
}

FilterTargets targetsFor(double slider)
{
    static const EqualizerDesign design(rate);
    return design.solve({ 0, 0, 0, 0, slider, 0, 0, 0, 0, 0 }, 0);
}

/// The sound while the slider moves. With `settled`, gains jump from one position to the next, as if there
/// were no smoothing.
Samples soundOf(const Samples& input, const Movement& slider, bool settled = false)
{
    EqualizerProcessor processor;
    Samples output;
    for (std::size_t start = 0; start < input.size(); start += update) {
        const auto targets = targetsFor(slider(start / update));
        if (settled) {
            EqualizerProcessor stepped;
            stepped.set(targets);
            // The filters must have run for a while before.
            const auto before = start < 4800 ? 0 : start - 4800;
            processed(stepped,
                Samples(input.begin() + static_cast<long>(before), input.begin() + static_cast<long>(start)));
            processor = stepped;
        } else {
            processor.set(targets);
        }
        const auto end = std::min(start + update, input.size());
        const auto block = processed(processor,
            Samples(input.begin() + static_cast<long>(start), input.begin() + static_cast<long>(end)));
        output.insert(output.end(), block.begin(), block.end());
    }
    return output;
}

Residue besideTheSine(const Movement& slider, bool settled = false)
{
    return residue(soundOf(sine(1000, rate, 0.25, frames), slider, settled), rate, 750, 1250);
}

// The level above 7 kHz for an input without anything above 3 kHz.
Residue aboveTheNoise(const Movement& slider)
{
    auto noise = pinkNoise(1, rate, 20, 3000, frames);
    for (auto& sample : noise)
        sample *= 0.1f;
    return residue(soundOf(noise, slider), rate, 0, 7000);
}

} // namespace

TEST(TheResidue, IsSmallWhenNothingMoves)
{
    EXPECT_LT(besideTheSine([](auto) { return 6; }).rms, -150);
}

TEST(TheResidue, OfAGainThatStepsIsLarge)
{
    EXPECT_GT(besideTheSine(drag, true).rms, -65);
    EXPECT_GT(besideTheSine(jumps, true).rms, -40);
}

TEST(ADraggedSlider, IsInaudibleNextToASine)
{
    const auto heard = besideTheSine(drag);
    EXPECT_LE(heard.rms, -105);
    EXPECT_LE(heard.peak, -90);
}

TEST(ASliderThatJumpsByItsWholeLength, IsBarelyAudibleNextToASine)
{
    EXPECT_LE(besideTheSine(jumps).rms, -80);
}

TEST(AMovingSlider, IsInaudibleAboveNoise)
{
    EXPECT_LE(aboveTheNoise(drag).rms, -140);
    EXPECT_LE(aboveTheNoise(jumps).rms, -115);
}

} // namespace brimsound::audio::tests
