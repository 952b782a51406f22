#include "platform/desktop/CoreGraphics/Compositing.h"

#include "platform/desktop/CoreGraphics/Blend.h"
#include "platform/desktop/CoreGraphics/Shrink.h"

#include <pixman.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace brimsound::desktop {

namespace {

struct Unreference {
    void operator()(pixman_image_t* image) const { pixman_image_unref(image); }
};

using Image = std::unique_ptr<pixman_image_t, Unreference>;

constexpr std::array<pixman_op_t, 28> operators {
    PIXMAN_OP_OVER,
    PIXMAN_OP_MULTIPLY,
    PIXMAN_OP_SCREEN,
    PIXMAN_OP_OVERLAY,
    PIXMAN_OP_DARKEN,
    PIXMAN_OP_LIGHTEN,
    PIXMAN_OP_COLOR_DODGE,
    PIXMAN_OP_COLOR_BURN,
    PIXMAN_OP_SOFT_LIGHT,
    PIXMAN_OP_HARD_LIGHT,
    PIXMAN_OP_DIFFERENCE,
    PIXMAN_OP_EXCLUSION,
    PIXMAN_OP_HSL_HUE,
    PIXMAN_OP_HSL_SATURATION,
    PIXMAN_OP_HSL_COLOR,
    PIXMAN_OP_HSL_LUMINOSITY,
    PIXMAN_OP_CLEAR,
    PIXMAN_OP_SRC,
    PIXMAN_OP_IN,
    PIXMAN_OP_OUT,
    PIXMAN_OP_ATOP,
    PIXMAN_OP_OVER_REVERSE,
    PIXMAN_OP_IN_REVERSE,
    PIXMAN_OP_OUT_REVERSE,
    PIXMAN_OP_ATOP_REVERSE,
    PIXMAN_OP_XOR,
    PIXMAN_OP_SRC, // PlusDarker, which is done by hand
    PIXMAN_OP_ADD,
};

/// Which of the four bytes pixman takes for which color. It is fast in one order only, and most modes do not
/// tell the colors apart, so that is the order unless the mode does.
pixman_format_code_t formatFor(CGBlendMode mode)
{
    const bool tellsColorsApart = mode >= CGBlendMode::Hue && mode <= CGBlendMode::Luminosity;
    return tellsColorsApart ? PIXMAN_a8b8g8r8 : PIXMAN_a8r8g8b8;
}

Image imageOn(const Pixels& pixels, pixman_format_code_t format)
{
    return Image(pixman_image_create_bits_no_clear(format, static_cast<int>(pixels.width),
        static_cast<int>(pixels.height), reinterpret_cast<std::uint32_t*>(pixels.bytes),
        static_cast<int>(pixels.bytesPerRow)));
}

void composite(pixman_op_t operation, const Image& source, const Image& mask, const Pixels& onto,
    pixman_format_code_t format)
{
    const auto destination = imageOn(onto, format);
    pixman_image_composite32(operation, source.get(), mask.get(), destination.get(), 0, 0, 0, 0, 0, 0,
        static_cast<int>(onto.width), static_cast<int>(onto.height));
}

/// Pixels from the edges' own top left corner: the part of some others that the edges touch.
struct Part {
    Pixels pixels;
    /// Where the edges are within it.
    Edges edges;
};

bool isWhole(double edge)
{
    return edge == std::floor(edge);
}

bool cutThroughPixels(const Part& part)
{
    const auto& [left, top, right, bottom] = part.edges;
    return !(isWhole(left) && isWhole(top) && isWhole(right) && isWhole(bottom));
}

/// Nothing where the edges are outside, or too far apart.
std::optional<Part> partWithin(const Pixels& pixels, const Edges& edges)
{
    const auto [left, right] = std::minmax({ edges.left, edges.right });
    const auto [top, bottom] = std::minmax({ edges.top, edges.bottom });
    const double firstColumn = std::max(0.0, std::floor(left));
    const double firstRow = std::max(0.0, std::floor(top));
    const double endColumn = std::min(static_cast<double>(pixels.width), std::ceil(right));
    const double endRow = std::min(static_cast<double>(pixels.height), std::ceil(bottom));
    // Asked so that it is false for what is no number, too.
    const bool isSeen = left < right && top < bottom && firstColumn < endColumn && firstRow < endRow
        && right - left <= longestSide && bottom - top <= longestSide;
    if (!isSeen)
        return std::nullopt;
    const Pixels within { pixels.row(static_cast<std::size_t>(firstRow))
            + static_cast<std::size_t>(firstColumn) * Bitmap::bytesPerPixel,
        static_cast<std::size_t>(endColumn - firstColumn), static_cast<std::size_t>(endRow - firstRow),
        pixels.bytesPerRow };
    return Part { within,
        { edges.left - firstColumn, edges.top - firstRow, edges.right - firstColumn,
            edges.bottom - firstRow } };
}

/// How much of the pixel at `index` lies between two edges, from 0 to 255.
double covered(std::size_t index, double edge, double otherEdge)
{
    const double first = std::max(static_cast<double>(index), std::min(edge, otherEdge));
    const double last = std::min(static_cast<double>(index + 1), std::max(edge, otherEdge));
    return last - first;
}

/// Opaque within the edges.
Image coverage(const Part& part)
{
    const auto& [left, top, right, bottom] = part.edges;
    Image mask(pixman_image_create_bits(
        PIXMAN_a8, static_cast<int>(part.pixels.width), static_cast<int>(part.pixels.height), nullptr, 0));
    if (!mask)
        return mask;
    auto* bytes = reinterpret_cast<std::uint8_t*>(pixman_image_get_data(mask.get()));
    const auto bytesPerRow = static_cast<std::size_t>(pixman_image_get_stride(mask.get()));
    for (std::size_t y = 0; y < part.pixels.height; ++y) {
        for (std::size_t x = 0; x < part.pixels.width; ++x) {
            const double share = covered(x, left, right) * covered(y, top, bottom);
            bytes[y * bytesPerRow + x] = static_cast<std::uint8_t>(std::lround(share * 255));
        }
    }
    return mask;
}

/// Calls `paint` with the part of the pixels that the edges touch, or with a copy of it of which every pixel
/// then replaces the original as far as it lies within the edges.
template <typename Paint> void paintWithin(const Pixels& pixels, const Edges& edges, const Paint& paint)
{
    const auto part = partWithin(pixels, edges);
    if (!part)
        return;
    if (!cutThroughPixels(*part)) {
        paint(*part);
        return;
    }
    const auto copy = Bitmap::copyOf(part->pixels);
    const auto mask = coverage(*part);
    if (!copy || !mask)
        return;
    paint(Part { copy->pixels(), part->edges });
    const auto format = PIXMAN_a8r8g8b8;
    composite(PIXMAN_OP_OUT_REVERSE, mask, nullptr, part->pixels, format);
    composite(PIXMAN_OP_ADD, imageOn(copy->pixels(), format), mask, part->pixels, format);
}

void blend(CGBlendMode mode, const Image& source, const Pixels& onto)
{
    if (mode != CGBlendMode::PlusDarker) {
        composite(operators[static_cast<std::size_t>(mode)], source, nullptr, onto, formatFor(mode));
        return;
    }
    if (const auto painted = Bitmap::make(onto.width, onto.height)) {
        composite(PIXMAN_OP_SRC, source, nullptr, painted->pixels(), formatFor(mode));
        addDarkening(onto, painted->pixels());
    }
}

/// Has the picture's pixels appear between the edges. False when they are too near each other for that.
bool place(const Image& image, const Pixels& picture, const Edges& edges)
{
    const double columns = static_cast<double>(picture.width) / (edges.right - edges.left);
    const double rows = static_cast<double>(picture.height) / (edges.bottom - edges.top);
    const pixman_f_transform toPicture { {
        { columns, 0, -edges.left * columns },
        { 0, rows, -edges.top * rows },
        { 0, 0, 1 },
    } };
    pixman_transform_t transform;
    if (!pixman_transform_from_pixman_f_transform(&transform, &toPicture))
        return false;
    pixman_image_set_transform(image.get(), &transform);
    pixman_image_set_filter(image.get(), PIXMAN_FILTER_BILINEAR, nullptr, 0);
    // Otherwise the picture would fade into nothing along its edges.
    pixman_image_set_repeat(image.get(), PIXMAN_REPEAT_PAD);
    return true;
}

/// How many pixels lie between the edges, where it is fewer than the picture has along either side.
struct Smaller {
    std::size_t width;
    std::size_t height;
};

std::optional<Smaller> smallerSize(const Part& part, const Pixels& picture)
{
    const double width = std::abs(part.edges.right - part.edges.left);
    const double height = std::abs(part.edges.bottom - part.edges.top);
    const auto oldWidth = static_cast<double>(picture.width);
    const auto oldHeight = static_cast<double>(picture.height);
    if (width >= oldWidth && height >= oldHeight)
        return std::nullopt;
    // In the middle of four pixels a linear change between them comes to their mean, which is faster.
    if (width * 2 == oldWidth && height * 2 == oldHeight && !cutThroughPixels(part))
        return std::nullopt;
    return Smaller { static_cast<std::size_t>(std::ceil(std::min(width, oldWidth))),
        static_cast<std::size_t>(std::ceil(std::min(height, oldHeight))) };
}

Pixel premultiplied(const Color& color)
{
    const double alpha = std::clamp(color.alpha, 0.0, 1.0);
    const auto level = [](double part) { return static_cast<std::uint8_t>(std::lround(part * 255)); };
    const auto component = [&](double part) { return level(std::clamp(part, 0.0, 1.0) * alpha); };
    return { component(color.red), component(color.green), component(color.blue), level(alpha) };
}

Image imageOf(const Pixel& pixel, pixman_format_code_t format)
{
    const auto component = [](std::uint8_t level) { return static_cast<std::uint16_t>(level * 0x101); };
    const bool redIsFirst = format == PIXMAN_a8b8g8r8;
    const pixman_color_t color { component(pixel[redIsFirst ? 0 : 2]), component(pixel[1]),
        component(pixel[redIsFirst ? 2 : 0]), component(pixel[3]) };
    return Image(pixman_image_create_solid_fill(&color));
}

} // namespace

void drawPicture(const Pixels& onto, CGBlendMode mode, const Pixels& picture, const Edges& edges)
{
    paintWithin(onto, edges, [&](const Part& part) {
        const auto size = smallerSize(part, picture);
        const auto smaller = size ? shrunk(picture, size->width, size->height) : nullptr;
        if (size && !smaller)
            return;
        const auto& drawn = smaller ? smaller->pixels() : picture;
        const auto image = imageOn(drawn, formatFor(mode));
        if (place(image, drawn, part.edges))
            blend(mode, image, part.pixels);
    });
}

void fill(const Pixels& onto, CGBlendMode mode, const Color& color, const Edges& edges)
{
    const auto pixel = premultiplied(color);
    paintWithin(onto, edges, [&](const Part& part) {
        if (mode == CGBlendMode::Darken) {
            fillDarkening(part.pixels, pixel);
            return;
        }
        blend(mode, imageOf(pixel, formatFor(mode)), part.pixels);
    });
}

} // namespace brimsound::desktop
