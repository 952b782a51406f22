// The cost of the filters on the audio thread, and of a change of the sliders on the other thread.
#include "desktop/engine/audio/EqualizerDesign.h"
#include "desktop/engine/audio/EqualizerProcessor.h"
#include "desktop/engine/audio/Limiter.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

namespace brimsound::audio {

namespace {

constexpr std::size_t frames = 1024;

BandGains all(double gain)
{
    BandGains sliders;
    sliders.fill(gain);
    return sliders;
}

/// Stereo noise.
struct Sound {
    Sound()
    {
        std::mt19937 generator(1);
        std::uniform_real_distribution<float> distribution(-1, 1);
        for (auto* channel : { &left, &right })
            std::ranges::generate(*channel, [&] { return distribution(generator); });
    }

    std::vector<float> left = std::vector<float>(frames);
    std::vector<float> right = std::vector<float>(frames);
    std::vector<float> leftOut = std::vector<float>(frames);
    std::vector<float> rightOut = std::vector<float>(frames);
    const float* in[2] = { left.data(), right.data() };
    float* out[2] = { leftOut.data(), rightOut.data() };
};

void report(benchmark::State& state)
{
    using benchmark::Counter;
    const auto frameCount = static_cast<double>(frames);
    const auto rate = static_cast<double>(state.range(0));
    // Seconds per frame; the table converts them to nanoseconds.
    state.counters["frame_s"] = Counter(frameCount, Counter::kIsIterationInvariantRate | Counter::kInvert);
    // The share of one core.
    state.counters["core"]
        = Counter(frameCount / rate, Counter::kIsIterationInvariantRate | Counter::kInvert);
}

void still(benchmark::State& state)
{
    Sound sound;
    EqualizerProcessor processor;
    processor.set(EqualizerDesign(static_cast<double>(state.range(0))).solve(all(6), -6));
    for (auto _ : state)
        processor.process(sound.in, sound.out, 2, frames);
    report(state);
}
BENCHMARK(still)->ArgName("Hz")->Arg(48000)->Arg(192000);

// All gains are changing all the time.
void ramping(benchmark::State& state)
{
    Sound sound;
    const EqualizerDesign design(static_cast<double>(state.range(0)));
    const auto up = design.solve(all(6), -6);
    const auto down = design.solve(all(-6), 6);
    EqualizerProcessor processor;
    processor.set(up);
    bool isUp = true;
    for (auto _ : state) {
        isUp = !isUp;
        processor.set(isUp ? up : down);
        processor.process(sound.in, sound.out, 2, frames);
    }
    report(state);
}
BENCHMARK(ramping)->ArgName("Hz")->Arg(48000)->Arg(192000);

void stillWithLimiter(benchmark::State& state)
{
    Sound sound;
    const auto rate = static_cast<double>(state.range(0));
    EqualizerProcessor processor;
    processor.set(EqualizerDesign(rate).solve(all(6), -6));
    Limiter limiter(rate);
    for (auto _ : state) {
        processor.process(sound.in, sound.out, 2, frames);
        limiter.process(sound.out, 2, frames);
    }
    report(state);
}
BENCHMARK(stillWithLimiter)->ArgName("Hz")->Arg(48000)->Arg(192000);

/// One movement of a slider.
void designing(benchmark::State& state)
{
    const EqualizerDesign design(static_cast<double>(state.range(0)));
    std::mt19937 generator(1);
    std::uniform_real_distribution<double> gain(-12, 12);
    std::vector<BandGains> sets(1000);
    for (auto& sliders : sets)
        std::ranges::generate(sliders, [&] { return gain(generator); });
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(design.solve(sets[next++ % sets.size()], 0));
}
BENCHMARK(designing)->ArgName("Hz")->Arg(48000)->Arg(192000)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace brimsound::audio
