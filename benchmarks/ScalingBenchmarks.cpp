#include "benchmarks/Picture.h"
#include "platform/desktop/UIKit/Screen.h"
#include "settings/UIImage+Equalizer.h"

namespace brimsound::bench {

namespace {

// Scaling to this fraction of the width and height. Each new pixel is the mean of the pixels that it
// replaces. Drawing an image of scale 2 at scale 1 halves it, which is simpler than other fractions.
constexpr double half = 0.5;
constexpr double twoFifths = 0.4;

std::size_t part(std::size_t length, double ratio)
{
    return static_cast<std::size_t>(static_cast<double>(length) * ratio);
}

void scaleByCairo(benchmark::State& state, double ratio)
{
    const auto source = cairoSurface(pictureFor(state));
    measure(state, [&](const Picture& picture) {
        const CairoSurface target(cairo_image_surface_create(CAIRO_FORMAT_ARGB32,
            static_cast<int>(part(picture.width, ratio)), static_cast<int>(part(picture.height, ratio))));
        const Cairo cairo(cairo_create(target.get()));
        cairo_scale(cairo.get(), ratio, ratio);
        cairo_set_source_surface(cairo.get(), source.get(), 0, 0);
        cairo_pattern_set_filter(cairo_get_source(cairo.get()), CAIRO_FILTER_GOOD);
        cairo_pattern_set_extend(cairo_get_source(cairo.get()), CAIRO_EXTEND_PAD);
        cairo_paint(cairo.get());
    });
}

void scaleToSize(benchmark::State& state, double ratio)
{
    desktop::setScreenScale(1);
    measure(state, [&](const Picture& picture) {
        const auto size = picture.image->size();
        brimsound::scaleToSize(*picture.image, { size.width * ratio, size.height * ratio });
    });
}

BENCHMARK_CAPTURE(scaleByCairo, half, half)->Apply(forEverySize);
BENCHMARK_CAPTURE(scaleToSize, half, half)->Apply(forEverySize);
BENCHMARK_CAPTURE(scaleByCairo, twoFifths, twoFifths)->Apply(forEverySize);
BENCHMARK_CAPTURE(scaleToSize, twoFifths, twoFifths)->Apply(forEverySize);

} // namespace

} // namespace brimsound::bench
