// Speech while a slider is dragged.
#include "tests/end_to_end/sound/Desktop.h"

#include <cmath>
#include <complex>
#include <numbers>

namespace brimsound::tests {
namespace {

constexpr std::size_t window = 4096;
constexpr double pi = std::numbers::pi;

/// The energy between two frequencies in Hz in a window that starts at `begin`.
double bandEnergy(const Samples& samples, std::size_t begin, double from, double to)
{
    const double step = 48000. / window;
    double energy = 0;
    for (auto bin = std::ceil(from / step); bin * step <= to; ++bin) {
        std::complex<double> sum;
        for (std::size_t i = 0; i < window; ++i) {
            const double position = static_cast<double>(i) / window;
            sum += (1 - std::cos(2 * pi * position)) * static_cast<double>(samples[begin + i])
                * std::polar(1.0, -2 * pi * bin * position);
        }
        energy += std::norm(sum);
    }
    return energy;
}

/// The number of updates of the slider for which the recordings are aligned once, half a second.
constexpr std::size_t alignedUpdates = 25;
constexpr std::ptrdiff_t alignedSamples = 24000;

/// By how many samples the sound that `later` has from `begin` on is delayed against `earlier`. It is
/// searched for within 4,800 samples of the delay `near`, which is returned when there is nothing to compare.
std::ptrdiff_t delay(const Samples& earlier, const Samples& later, std::ptrdiff_t begin, std::ptrdiff_t near)
{
    constexpr std::ptrdiff_t most = 4800;
    auto best = near;
    double highest = 0;
    if (begin < near + most || begin + alignedSamples > std::ssize(later)
        || begin + alignedSamples - near + most > std::ssize(earlier))
        return near;
    for (auto shift = near - most; shift <= near + most; ++shift) {
        double product = 0;
        double energy = 0;
        for (auto i = begin; i < begin + alignedSamples; i += 5) {
            const double sample = earlier[static_cast<std::size_t>(i - shift)];
            product += sample * static_cast<double>(later[static_cast<std::size_t>(i)]);
            energy += sample * sample;
        }
        if (product > 0 && product > highest * std::sqrt(energy)) {
            highest = product / std::sqrt(energy);
            best = shift;
        }
    }
    return best;
}

struct Position {
    std::size_t sample;
    double slider;
};

} // namespace

class ListeningToSpeech : public ADesktop { };

TEST_F(ListeningToSpeech, FollowsASliderThatIsDragged)
{
    constexpr auto text
        = "The quick brown fox jumps over the lazy dog, and nobody knows whether anyone ever asked the "
          "dog. A slider goes from the far left to the far right, while these words are being spoken. "
          "One thousand vibrations in a second are what it makes softer and then louder.";
    storePreferences({});
    const Engine engine;
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
    const Player speaker({ "espeak-ng", "-s", "150", text });
    // The sink's monitor has the sound before the filters.
    const Recorder before("brimsound");
    const Recorder after("hw1");
    ASSERT_TRUE(eventually([&] { return level(before.next(4800)) > 0.01; })) << "there is no speech";

    const auto spokenFrom = before.position();
    const auto heardFrom = after.position();
    before.next(48000);

    std::vector<Position> positions;
    auto next = std::chrono::steady_clock::now();
    for (int update = 0; update <= 300; ++update) {
        Gains gains {};
        gains[0] = -6;
        gains[5] = -12 + 0.08 * update;
        ASSERT_TRUE(send(gains));
        positions.push_back({ after.position() - heardFrom, gains[5] });
        next += std::chrono::milliseconds(20);
        std::this_thread::sleep_until(next);
    }
    const auto spoken = before.samples(spokenFrom);
    const auto heard = after.samples(heardFrom);

    std::vector<double> errors;
    std::ptrdiff_t shift = 0;
    for (std::size_t i = 0; i < positions.size(); ++i) {
        const auto [sample, slider] = positions[i];
        // A recorder loses blocks when the machine is busy.
        if (i % alignedUpdates == 0)
            shift = delay(spoken, heard, static_cast<std::ptrdiff_t>(sample), shift);
        // A message takes a moment to take full effect; the window is centered on it.
        const auto begin = static_cast<std::ptrdiff_t>(sample) - 512;
        if (begin < 0 || begin - shift < 0 || begin + 4096 > std::ssize(heard)
            || begin - shift + 4096 > std::ssize(spoken))
            continue;
        const auto in = bandEnergy(spoken, static_cast<std::size_t>(begin - shift), 900, 1100);
        const auto out = bandEnergy(heard, static_cast<std::size_t>(begin), 900, 1100);
        // There is nothing to compare between words.
        if (in > 1)
            errors.push_back(std::abs(10 * std::log10(out / in) - (slider - 6)));
    }
    ASSERT_GT(errors.size(), 60u);
    std::ranges::sort(errors);
    EXPECT_LT(errors[errors.size() / 2], 1);
    EXPECT_LT(errors[errors.size() * 8 / 10], 3);
}

} // namespace brimsound::tests
