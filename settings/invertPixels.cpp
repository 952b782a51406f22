#include "settings/invertPixels.h"

#include <algorithm>
#include <bit>

namespace brimsound {

namespace {

// The code below expects a pixel's alpha in the highest byte of the number.
static_assert(std::endian::native == std::endian::little);

constexpr std::uint32_t alphaMask = 0xff000000;
constexpr std::uint32_t highestBitOfEachColor = 0x00808080;
/// A block of this size stays in the fastest cache between the two passes over it.
constexpr std::size_t pixelsAtOnce = 1024;

std::uint32_t colorsOf(std::uint32_t pixel)
{
    return pixel & ~alphaMask;
}

/// The alpha in the place of each color.
std::uint32_t alphaForEachColor(std::uint32_t pixel)
{
    const auto alpha = pixel >> 24;
    return alpha | alpha << 8 | alpha << 16;
}

/// Whether no color exceeds its pixel's alpha. Then subtracting all colors from the alpha in one step causes
/// no borrow between the bytes.
bool arePremultiplied(std::span<const std::uint32_t> pixels)
{
    std::uint32_t borrows = 0;
    for (const auto pixel : pixels) {
        const auto alpha = alphaForEachColor(pixel);
        const auto colors = colorsOf(pixel);
        borrows |= (~alpha & colors) | (~(alpha ^ colors) & (alpha - colors));
    }
    return (borrows & highestBitOfEachColor) == 0;
}

/// Let 255·X = x·A + r with 0 <= r < A. The inverted color A·(255 - x)/255 equals A - X + r/255. Because r <
/// 255, it truncates to A - X as long as X <= A.
void subtractFromAlpha(std::span<std::uint32_t> pixels)
{
    for (auto& pixel : pixels)
        pixel = (pixel & alphaMask) | (alphaForEachColor(pixel) - colorsOf(pixel));
}

std::uint32_t inverted(std::uint32_t color, std::uint32_t alpha)
{
    if (alpha == 0)
        return 0;
    const auto straight = static_cast<std::int32_t>(color * 255 / alpha);
    const auto premultiplied = static_cast<std::int32_t>(alpha) * (255 - straight) / 255;
    return static_cast<std::uint8_t>(premultiplied);
}

void divide(std::span<std::uint32_t> pixels)
{
    for (auto& pixel : pixels) {
        const auto alpha = pixel >> 24;
        const auto color = [&](int shift) { return inverted(pixel >> shift & 0xff, alpha) << shift; };
        pixel = (pixel & alphaMask) | color(0) | color(8) | color(16);
    }
}

} // namespace

void invertPixels(std::span<std::uint32_t> pixels)
{
    while (!pixels.empty()) {
        const auto block = pixels.first(std::min(pixels.size(), pixelsAtOnce));
        if (arePremultiplied(block))
            subtractFromAlpha(block);
        else
            divide(block);
        pixels = pixels.subspan(block.size());
    }
}

} // namespace brimsound
