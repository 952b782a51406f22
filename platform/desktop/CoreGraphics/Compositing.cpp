#include "platform/desktop/CoreGraphics/Compositing.h"

#include "platform/desktop/CoreGraphics/Shrink.h"

#include <cairo.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>

namespace brimsound::desktop {

namespace {

struct Release {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
    void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
    void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
};

using Surface = std::unique_ptr<cairo_surface_t, Release>;
using Pattern = std::unique_ptr<cairo_pattern_t, Release>;
using Cairo = std::unique_ptr<cairo_t, Release>;

constexpr std::array<cairo_operator_t, 28> operators {
    CAIRO_OPERATOR_OVER,
    CAIRO_OPERATOR_MULTIPLY,
    CAIRO_OPERATOR_SCREEN,
    CAIRO_OPERATOR_OVERLAY,
    CAIRO_OPERATOR_DARKEN,
    CAIRO_OPERATOR_LIGHTEN,
    CAIRO_OPERATOR_COLOR_DODGE,
    CAIRO_OPERATOR_COLOR_BURN,
    CAIRO_OPERATOR_SOFT_LIGHT,
    CAIRO_OPERATOR_HARD_LIGHT,
    CAIRO_OPERATOR_DIFFERENCE,
    CAIRO_OPERATOR_EXCLUSION,
    CAIRO_OPERATOR_HSL_HUE,
    CAIRO_OPERATOR_HSL_SATURATION,
    CAIRO_OPERATOR_HSL_COLOR,
    CAIRO_OPERATOR_HSL_LUMINOSITY,
    CAIRO_OPERATOR_CLEAR,
    CAIRO_OPERATOR_SOURCE,
    CAIRO_OPERATOR_IN,
    CAIRO_OPERATOR_OUT,
    CAIRO_OPERATOR_ATOP,
    CAIRO_OPERATOR_DEST_OVER,
    CAIRO_OPERATOR_DEST_IN,
    CAIRO_OPERATOR_DEST_OUT,
    CAIRO_OPERATOR_DEST_ATOP,
    CAIRO_OPERATOR_XOR,
    CAIRO_OPERATOR_SOURCE, // PlusDarker: not used, see addDarkening
    CAIRO_OPERATOR_ADD,
};

cairo_operator_t operatorFor(CGBlendMode mode)
{
    return operators[static_cast<std::size_t>(mode)];
}

/// A surface on the pixels. Cairo reads the first byte of a pixel as blue and the third as red; this makes no
/// difference in the modes that process each color component on its own.
Surface surfaceOn(const Pixels& pixels)
{
    return Surface(
        cairo_image_surface_create_for_data(pixels.bytes, CAIRO_FORMAT_ARGB32, static_cast<int>(pixels.width),
            static_cast<int>(pixels.height), static_cast<int>(pixels.bytesPerRow)));
}

/// The picture's pixels, stretched between the edges.
Pattern patternOf(const Pixels& picture, const Edges& edges)
{
    Pattern pattern(cairo_pattern_create_for_surface(surfaceOn(picture).get()));
    const double columns = static_cast<double>(picture.width) / (edges.right - edges.left);
    const double rows = static_cast<double>(picture.height) / (edges.bottom - edges.top);
    const cairo_matrix_t toPicture { columns, 0, 0, rows, -edges.left * columns, -edges.top * rows };
    cairo_pattern_set_matrix(pattern.get(), &toPicture);
    // Without this the picture becomes transparent along its edges.
    cairo_pattern_set_extend(pattern.get(), CAIRO_EXTEND_PAD);
    cairo_pattern_set_filter(pattern.get(), CAIRO_FILTER_BILINEAR);
    return pattern;
}

/// The premultiplied color is rounded to 256 levels.
Pattern patternOf(const Color& color)
{
    const auto level = [](double part) { return std::round(std::clamp(part, 0.0, 1.0) * 255) / 255; };
    const double alpha = std::clamp(color.alpha, 0.0, 1.0);
    const auto component = [&](double part) {
        return level(std::clamp(part, 0.0, 1.0) * alpha) / std::max(level(alpha), 1.0 / 255);
    };
    return Pattern(cairo_pattern_create_rgba(
        component(color.blue), component(color.green), component(color.red), level(alpha)));
}

bool isWhole(double edge)
{
    return edge == std::floor(edge);
}

bool cutThroughPixels(const Edges& edges)
{
    return !(isWhole(edges.left) && isWhole(edges.top) && isWhole(edges.right) && isWhole(edges.bottom));
}

/// Whether any of `length` pixels in a row or column lies between the edges, and the edges are at most
/// `longestSide` apart.
bool isDrawableAlong(std::size_t length, double edge, double otherEdge)
{
    const auto [first, last] = std::minmax(edge, otherEdge);
    // False for NaN as well.
    return first < last && last - first <= longestSide && first < static_cast<double>(length) && last > 0;
}

bool isDrawable(const Pixels& onto, const Edges& edges)
{
    return isDrawableAlong(onto.width, edges.left, edges.right)
        && isDrawableAlong(onto.height, edges.top, edges.bottom);
}

struct Size {
    std::size_t width;
    std::size_t height;
};

/// The number of pixels between the edges when the picture has more, in either dimension.
std::optional<Size> smallerSize(const Pixels& picture, const Edges& edges)
{
    const double width = std::abs(edges.right - edges.left);
    const double height = std::abs(edges.bottom - edges.top);
    const auto oldWidth = static_cast<double>(picture.width);
    const auto oldHeight = static_cast<double>(picture.height);
    if (width >= oldWidth && height >= oldHeight)
        return std::nullopt;
    // Linear interpolation in the middle of four pixels is their mean, and faster.
    if (width * 2 == oldWidth && height * 2 == oldHeight && !cutThroughPixels(edges))
        return std::nullopt;
    return Size { static_cast<std::size_t>(std::ceil(std::min(width, oldWidth))),
        static_cast<std::size_t>(std::ceil(std::min(height, oldHeight))) };
}

Edges allOf(const Pixels& pixels)
{
    return { 0, 0, static_cast<double>(pixels.width), static_cast<double>(pixels.height) };
}

void paint(const Pixels& onto, cairo_operator_t operation, const Pattern& source, const Edges& edges)
{
    const Cairo cairo(cairo_create(surfaceOn(onto).get()));
    // Some operators also change pixels outside of the source, but none outside of the clip.
    cairo_rectangle(cairo.get(), edges.left, edges.top, edges.right - edges.left, edges.bottom - edges.top);
    cairo_clip(cairo.get());
    cairo_set_operator(cairo.get(), operation);
    cairo_set_source(cairo.get(), source.get());
    cairo_paint(cairo.get());
}

/// CGBlendMode::PlusDarker, which cairo lacks, with a source of the same size.
void addDarkening(const Pixels& onto, const Pixels& source)
{
    for (std::size_t y = 0; y < onto.height; ++y) {
        auto* bytes = onto.row(y);
        const auto* added = source.row(y);
        for (std::size_t i = 0; i < onto.width * Bitmap::bytesPerPixel; ++i)
            bytes[i] = static_cast<std::uint8_t>(std::max(bytes[i] + added[i] - 255, 0));
    }
}

void swapRedAndBlue(const Pixels& pixels)
{
    for (std::size_t y = 0; y < pixels.height; ++y) {
        auto* bytes = pixels.row(y);
        for (std::size_t i = 0; i < pixels.width * Bitmap::bytesPerPixel; i += Bitmap::bytesPerPixel)
            std::swap(bytes[i], bytes[i + 2]);
    }
}

/// Blends with all pixels in a mode that cairo lacks, or that needs its order of the color components.
void blendPainted(const Pixels& onto, CGBlendMode mode, const Pattern& source)
{
    const auto painted = Bitmap::make(onto.width, onto.height);
    if (!painted)
        return;
    paint(painted->pixels(), CAIRO_OPERATOR_SOURCE, source, allOf(onto));
    if (mode == CGBlendMode::PlusDarker) {
        addDarkening(onto, painted->pixels());
        return;
    }
    swapRedAndBlue(painted->pixels());
    swapRedAndBlue(onto);
    paint(onto, operatorFor(mode), patternOf(painted->pixels(), allOf(onto)), allOf(onto));
    swapRedAndBlue(onto);
}

void blend(const Pixels& onto, CGBlendMode mode, const Pattern& source, const Edges& edges)
{
    const bool needsColorOrder = mode >= CGBlendMode::Hue && mode <= CGBlendMode::Luminosity;
    const bool needsPainting = needsColorOrder || mode == CGBlendMode::PlusDarker;
    if (!needsPainting && !cutThroughPixels(edges)) {
        paint(onto, operatorFor(mode), source, edges);
        return;
    }
    const auto copy = Bitmap::copyOf(onto);
    if (!copy)
        return;
    const auto& pixels = copy->pixels();
    if (needsPainting)
        blendPainted(pixels, mode, source);
    else
        paint(pixels, operatorFor(mode), source, allOf(pixels));
    // With this operator cairo changes partly covered pixels in proportion to their coverage.
    paint(onto, CAIRO_OPERATOR_SOURCE, patternOf(pixels, allOf(pixels)), edges);
}

} // namespace

void drawPicture(const Pixels& onto, CGBlendMode mode, const Pixels& picture, const Edges& edges)
{
    if (!isDrawable(onto, edges))
        return;
    const auto size = smallerSize(picture, edges);
    const auto smaller = size ? shrunk(picture, size->width, size->height) : nullptr;
    if (!size || smaller)
        blend(onto, mode, patternOf(smaller ? smaller->pixels() : picture, edges), edges);
}

void fill(const Pixels& onto, CGBlendMode mode, const Color& color, const Edges& edges)
{
    if (isDrawable(onto, edges))
        blend(onto, mode, patternOf(color), edges);
}

} // namespace brimsound::desktop
