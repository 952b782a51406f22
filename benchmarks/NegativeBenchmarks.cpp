#include "benchmarks/Picture.h"
#include "settings/UIImage+Equalizer.h"
#include "settings/invertPixels.h"

#include <span>

namespace brimsound::bench {

namespace {

/// The formula, written directly with three divisions by the alpha.
void invertByDivision(std::span<std::uint32_t> pixels)
{
    for (auto& pixel : pixels) {
        const auto alpha = pixel >> 24;
        const auto inverted = [&](int shift) {
            const auto straight = static_cast<int>((pixel >> shift & 0xff) * 255 / alpha);
            const auto color = static_cast<std::uint8_t>(static_cast<int>(alpha) * (255 - straight) / 255);
            return static_cast<std::uint32_t>(color) << shift;
        };
        pixel = alpha == 0 ? 0 : alpha << 24 | inverted(0) | inverted(8) | inverted(16);
    }
}

void scalarInversion(benchmark::State& state)
{
    auto pixels = pictureFor(state).pixels;
    measure(state, [&](const Picture&) { invertByDivision(pixels); });
}

void invertPixels(benchmark::State& state)
{
    auto pixels = pictureFor(state).pixels;
    measure(state, [&](const Picture&) { brimsound::invertPixels(pixels); });
}

void negative(benchmark::State& state)
{
    measure(state, [](const Picture& picture) { brimsound::negative(*picture.image); });
}

BENCHMARK(scalarInversion)->Apply(forEverySize);
BENCHMARK(invertPixels)->Apply(forEverySize);
BENCHMARK(negative)->Apply(forEverySize);

} // namespace

} // namespace brimsound::bench
