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

/// The steps of tinting with pixman: the image, the color, and the image's shape.
void tintByPixman(benchmark::State& state, pixman_op_t operation)
{
    const auto source = pixmanImage(pictureFor(state));
    const auto component = [](double part) { return static_cast<std::uint16_t>(part * 0xffff); };
    const pixman_color_t ink { component(red), component(green), component(blue), 0xffff };
    const PixmanImage fill(pixman_image_create_solid_fill(&ink));
    measure(state, [&](const Picture& picture) {
        const auto pixels = transparentPixels(picture.pixels.size());
        const auto width = static_cast<int>(picture.width);
        const auto height = static_cast<int>(picture.height);
        const PixmanImage target(pixman_image_create_bits_no_clear(
            PIXMAN_a8b8g8r8, width, height, pixels.get(), static_cast<int>(picture.bytesPerRow())));
        const auto draw = [&](pixman_op_t how, const PixmanImage& what) {
            pixman_image_composite32(how, what.get(), nullptr, target.get(), 0, 0, 0, 0, 0, 0, width, height);
        };
        draw(PIXMAN_OP_OVER, source);
        draw(operation, fill);
        draw(PIXMAN_OP_IN_REVERSE, source);
    });
}

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

void fillByPixman(benchmark::State& state)
{
    tintByPixman(state, PIXMAN_OP_OVER);
}

void fillByCairo(benchmark::State& state)
{
    tintByCairo(state, CAIRO_OPERATOR_OVER);
}

void fillWithColor(benchmark::State& state)
{
    measure(state, [](const Picture& picture) { brimsound::fillWithColor(*picture.image, *color()); });
}

void darkenByPixman(benchmark::State& state)
{
    tintByPixman(state, PIXMAN_OP_DARKEN);
}

void darkenByCairo(benchmark::State& state)
{
    tintByCairo(state, CAIRO_OPERATOR_DARKEN);
}

void darkenWithColor(benchmark::State& state)
{
    measure(state, [](const Picture& picture) { brimsound::darkenWithColor(*picture.image, *color()); });
}

BENCHMARK(fillByPixman)->Apply(forEverySize);
BENCHMARK(fillByCairo)->Apply(forEverySize);
BENCHMARK(fillWithColor)->Apply(forEverySize);
BENCHMARK(darkenByPixman)->Apply(forEverySize);
BENCHMARK(darkenByCairo)->Apply(forEverySize);
BENCHMARK(darkenWithColor)->Apply(forEverySize);

} // namespace

} // namespace brimsound::bench
