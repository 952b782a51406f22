// Prints a table: how far each preset raises a sound at full scale beyond full scale, with the preamp set by
// Auto Preamp and before the limiter.
#include "desktop/engine/audio/EqualizerDesign.h"
#include "desktop/engine/audio/EqualizerProcessor.h"
#include "desktop/engine/audio/FilterResponse.h"
#include "desktop/render/Gains.h"
#include "settings/TenGains.h"
#include "settings/store/presets.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <random>
#include <vector>

using namespace brimsound;
using namespace brimsound::audio;

namespace {

constexpr double rate = 48000;
constexpr std::size_t frames = 2'880'000;

using Samples = std::vector<float>;

/// The output level.
struct Level {
    /// Samples beyond full scale, in percent.
    double beyond = 0;
    /// In dB relative to full scale.
    double peak = -1000;
};

double decibels(double ratio)
{
    return 20 * std::log10(ratio);
}

void scaleToFullScale(Samples& samples)
{
    float peak = 0;
    for (const float sample : samples)
        peak = std::max(peak, std::abs(sample));
    for (auto& sample : samples)
        sample /= peak;
}

// White noise through a sum of one-pole filters, within 0.05 dB of 3 dB per octave above 9 Hz: P. Kellet's
// filter, music-dsp source code archive, "Pink noise filter".
Samples pinkNoise()
{
    std::mt19937 generator(1);
    std::normal_distribution<double> white;
    double b[7] = {};
    Samples samples(frames);
    for (auto& sample : samples) {
        const double w = white(generator);
        b[0] = 0.99886 * b[0] + w * 0.0555179;
        b[1] = 0.99332 * b[1] + w * 0.0750759;
        b[2] = 0.96900 * b[2] + w * 0.1538520;
        b[3] = 0.86650 * b[3] + w * 0.3104856;
        b[4] = 0.55000 * b[4] + w * 0.5329522;
        b[5] = -0.7616 * b[5] - w * 0.0168980;
        sample = static_cast<float>(b[0] + b[1] + b[2] + b[3] + b[4] + b[5] + b[6] + w * 0.5362);
        b[6] = w * 0.115926;
    }
    scaleToFullScale(samples);
    return samples;
}

// Amplified and clipped at full scale, like loudly mastered music.
Samples clipped(Samples samples)
{
    for (auto& sample : samples)
        sample = std::clamp(2 * sample, -1.0f, 1.0f);
    return samples;
}

Samples sine(double frequency)
{
    Samples samples(frames);
    for (std::size_t frame = 0; frame < frames; ++frame) {
        samples[frame] = static_cast<float>(
            std::sin(2 * std::numbers::pi * frequency / rate * static_cast<double>(frame)));
    }
    return samples;
}

Level levelOf(const Samples& in, const FilterTargets& targets)
{
    EqualizerProcessor processor;
    processor.set(targets);
    Samples out(in.size());
    const float* source = in.data();
    float* sink = out.data();
    processor.process(&source, &sink, 1, in.size());
    std::size_t beyond = 0;
    float peak = 0;
    for (const float sample : out) {
        beyond += std::abs(sample) > 1;
        peak = std::max(peak, std::abs(sample));
    }
    return { .beyond = 100 * static_cast<double>(beyond) / static_cast<double>(out.size()),
        .peak = decibels(peak) };
}

} // namespace

int main()
{
    const auto pink = pinkNoise();
    const auto loud = clipped(pink);
    std::vector<Samples> sines(centers.size());
    std::ranges::transform(centers, sines.begin(), sine);

    std::puts("| Preset | preamp, dB | response, dB | pink noise, % | peak, dB | clipped noise, % | peak, dB "
              "| sines, % | "
              "peak, dB |");
    std::puts("|---|---:|---:|---:|---:|---:|---:|---:|---:|");
    const EqualizerDesign design(rate);
    for (const auto& [name, preset] : builtin_presets()) {
        BandGains sliders {};
        std::ranges::copy(tenGains(preset), sliders.begin());
        const auto targets = design.solve(sliders, render::autoPreamp(sliders));
        const auto ofPink = levelOf(pink, targets);
        const auto ofLoud = levelOf(loud, targets);
        Level ofSines;
        for (const auto& sound : sines) {
            const auto level = levelOf(sound, targets);
            ofSines.beyond = std::max(ofSines.beyond, level.beyond);
            ofSines.peak = std::max(ofSines.peak, level.peak);
        }
        std::printf("| %s | %.2f | %+.2f | %.4f | %+.2f | %.3f | %+.2f | %.3f | %+.3f |\n", name.c_str(),
            targets.preamp, targets.preamp + maximumResponse(targets), ofPink.beyond, ofPink.peak,
            ofLoud.beyond, ofLoud.peak, ofSines.beyond, ofSines.peak);
    }
}
