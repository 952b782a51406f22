#include "settings/invertPixels.h"

#include <gtest/gtest.h>

#include <bit>
#include <vector>

namespace brimsound::tests {

namespace {

/// The formula, written directly.
std::uint32_t inverted(std::uint32_t color, std::uint32_t alpha)
{
    if (alpha == 0)
        return 0;
    const unsigned straight = color * 255 / alpha;
    const int opposite = 255 - static_cast<int>(straight);
    return static_cast<std::uint8_t>(static_cast<int>(alpha) * opposite / 255);
}

std::uint32_t pixel(std::uint32_t red, std::uint32_t green, std::uint32_t blue, std::uint32_t alpha)
{
    return red | green << 8 | blue << 16 | alpha << 24;
}

std::uint32_t inverted(std::uint32_t red, std::uint32_t green, std::uint32_t blue, std::uint32_t alpha)
{
    return pixel(inverted(red, alpha), inverted(green, alpha), inverted(blue, alpha), alpha);
}

TEST(InvertingPixels, FollowsTheFormulaForEveryColorAndAlpha)
{
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha) {
        for (std::uint32_t color = 0; color < 256; ++color) {
            std::vector alone { pixel(color, 0, alpha, alpha), pixel(0, color, 0, alpha),
                pixel(alpha, alpha, color, alpha) };
            invertPixels(alone);
            ASSERT_EQ(alone[0], inverted(color, 0, alpha, alpha)) << color << " of " << alpha;
            ASSERT_EQ(alone[1], inverted(0, color, 0, alpha)) << color << " of " << alpha;
            ASSERT_EQ(alone[2], inverted(alpha, alpha, color, alpha)) << color << " of " << alpha;
        }
    }
}

/// Checks many pixels at once. In every `strange`th a color exceeds its alpha; in none for 0.
void expectFormulaForMany(std::size_t count, std::size_t strange)
{
    std::vector<std::uint32_t> pixels;
    std::vector<std::uint32_t> expected;
    std::uint32_t number = 12345;
    const auto upTo = [&](std::uint32_t most) {
        number = number * 1664525 + 1013904223;
        return (number >> 8) % (most + 1);
    };
    for (std::size_t i = 0; i < count; ++i) {
        const auto alpha = upTo(255);
        const auto most = strange && i % strange == 0 ? 255 : alpha;
        const auto red = upTo(most);
        const auto green = upTo(most);
        const auto blue = upTo(most);
        pixels.push_back(pixel(red, green, blue, alpha));
        expected.push_back(inverted(red, green, blue, alpha));
    }
    invertPixels(pixels);
    EXPECT_EQ(pixels, expected) << count;
}

TEST(InvertingPixels, FollowsTheFormulaForAnyNumberOfThem)
{
    for (const std::size_t count : { 0u, 1u, 2u, 3u, 4u, 5u, 7u, 8u, 15u, 1023u, 1024u, 1025u, 5000u })
        expectFormulaForMany(count, 0);
    expectFormulaForMany(200'000, 0);
}

TEST(InvertingPixels, FollowsTheFormulaWhereSomeHaveMoreColorThanAlpha)
{
    expectFormulaForMany(5000, 1);
    expectFormulaForMany(5000, 700);
    expectFormulaForMany(5000, 1400);
}

TEST(InvertingPixels, UsesTheBytesInTheOrderOfMemory)
{
    auto pixels
        = std::vector { std::bit_cast<std::uint32_t>(std::array<std::uint8_t, 4> { 200, 100, 0, 255 }) };
    invertPixels(pixels);
    EXPECT_EQ((std::bit_cast<std::array<std::uint8_t, 4>>(pixels.front())),
        (std::array<std::uint8_t, 4> { 55, 155, 255, 255 }));
}

} // namespace

} // namespace brimsound::tests
