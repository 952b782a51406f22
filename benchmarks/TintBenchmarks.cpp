#include "benchmarks/Picture.h"
#include "settings/UIImage+Equalizer.h"

namespace brimsound::bench {

namespace {

// Sixteenths, which are the same color in all libraries.
constexpr double red = 3.0 / 16;
constexpr double green = 6.0 / 16;
constexpr double blue = 1.0 / 16;

RetainPtr<UIColor> color()
{
    return UIColor::colorWithRedGreenBlueAlpha(red, green, blue, 1);
}

/// The steps of tinting: the image, the color, and the image's shape.
void tintByCairo(benchmark::State& state, cairo_operator_t operation)
{
    const auto source = cairoSurface(pictureFor(state));
    measure(state, [&](const Picture& picture) {
        const CairoSurface target(cairo_image_surface_create(
            CAIRO_FORMAT_ARGB32, static_cast<int>(picture.width), static_cast<int>(picture.height)));
        const Cairo cairo(cairo_create(target.get()));
        cairo_set_source_surface(cairo.get(), source.get(), 0, 0);
        cairo_paint(cairo.get());
        cairo_set_operator(cairo.get(), operation);
        cairo_set_source_rgb(cairo.get(), red, green, blue);
        cairo_paint(cairo.get());
        cairo_set_operator(cairo.get(), CAIRO_OPERATOR_DEST_IN);
        cairo_set_source_surface(cairo.get(), source.get(), 0, 0);
        cairo_paint(cairo.get());
    });
}

void fillByCairo(benchmark::State& state)
{
    tintByCairo(state, CAIRO_OPERATOR_OVER);
}

void fillWithColor(benchmark::State& state)
{
    measure(state, [](const Picture& picture) { brimsound::fillWithColor(*picture.image, *color()); });
}

void darkenByCairo(benchmark::State& state)
{
    tintByCairo(state, CAIRO_OPERATOR_DARKEN);
}

void darkenWithColor(benchmark::State& state)
{
    measure(state, [](const Picture& picture) { brimsound::darkenWithColor(*picture.image, *color()); });
}

BENCHMARK(fillByCairo)->Apply(forEverySize);
BENCHMARK(fillWithColor)->Apply(forEverySize);
BENCHMARK(darkenByCairo)->Apply(forEverySize);
BENCHMARK(darkenWithColor)->Apply(forEverySize);

} // namespace

} // namespace brimsound::bench
