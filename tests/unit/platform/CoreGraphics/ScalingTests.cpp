#include "platform/UIKit/UIGraphics.h"
#include "tests/support/Images.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace brimsound::tests {

namespace {

/// The image drawn over that many pixels.
Bytes drawnAt(std::size_t width, std::size_t height, const UIImage& image)
{
    Bytes bytes(width * height * 4);
    const auto context = CGBitmapContextCreate(bytes.data(), width, height, width * 4);
    CGContextDrawImage(context.get(),
        CGRectMake(0, 0, static_cast<double>(width), static_cast<double>(height)), image.CGImage());
    return bytes;
}

/// The mean of the area that a pixel covers, computed in another way: from evenly spaced points, with a whole
/// number of them in every source pixel.
double meanOver(const Bytes& from, std::size_t width, std::size_t height, std::size_t newWidth,
    std::size_t newHeight, std::size_t newIndex)
{
    const auto x = newIndex / 4 % newWidth;
    const auto y = newIndex / 4 / newWidth;
    double sum = 0;
    for (auto row = y * height; row < (y + 1) * height; ++row) {
        for (auto column = x * width; column < (x + 1) * width; ++column)
            sum += from[(row / newHeight * width + column / newWidth) * 4 + newIndex % 4];
    }
    return sum / static_cast<double>(width * height);
}

struct Reduction {
    std::size_t width;
    std::size_t height;
    std::size_t newWidth;
    std::size_t newHeight;
};

TEST(DrawingAnImageSmaller, AveragesTheAreaOfEachPixel)
{
    for (const auto& [width, height, newWidth, newHeight] :
        { Reduction { 12, 8, 6, 4 }, Reduction { 13, 11, 6, 4 }, Reduction { 13, 11, 12, 11 },
            Reduction { 13, 11, 13, 10 }, Reduction { 31, 17, 1, 1 }, Reduction { 40, 3, 7, 2 } }) {
        auto bytes = pattern(width, height);
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            const auto alpha = (i / 4 * 53) % 256;
            bytes[i] = static_cast<std::uint8_t>(i % 4 == 3 ? alpha : bytes[i] * alpha / 255);
        }
        const auto smaller = drawnAt(newWidth, newHeight, *imageOf(width, height, bytes));
        double largest = 0;
        for (std::size_t i = 0; i < smaller.size(); ++i) {
            const double mean = meanOver(bytes, width, height, newWidth, newHeight, i);
            largest = std::max(largest, std::abs(mean - smaller[i]));
            EXPECT_LE(smaller[i], smaller[i / 4 * 4 + 3]) << "no color above its alpha";
        }
        EXPECT_LT(largest, 1) << width << " x " << height << " to " << newWidth << " x " << newHeight;
    }
}

TEST(DrawingAnImageSmaller, TurnsFineStripesGray)
{
    const auto stripes = imageOf(400, 2, pixels(400, 2, [](std::size_t x, auto) {
        return x % 2 ? Bytes { 255, 255, 255, 255 } : Bytes { 0, 0, 0, 255 };
    }));
    const auto smaller = drawnAt(41, 2, *stripes);
    for (std::size_t i = 0; i < smaller.size(); i += 4)
        EXPECT_NEAR(smaller[i], 128, 14);
}

TEST(DrawingAnImageLarger, KeepsItsCornersAndChangesEvenlyBetweenThem)
{
    const auto image = imageOf(2, 1, { 0, 0, 0, 255, 200, 100, 40, 255 });
    const auto larger = drawnAt(8, 3, *image);
    for (std::size_t y = 0; y < 3; ++y) {
        for (std::size_t x = 0; x < 8; ++x) {
            // From the center of one pixel, at 2, to that of the other, at 6.
            const double way = std::clamp((static_cast<double>(x) + 0.5 - 2) / 4, 0.0, 1.0);
            const auto* pixel = larger.data() + (y * 8 + x) * 4;
            EXPECT_NEAR(pixel[0], 200 * way, 2) << x;
            EXPECT_NEAR(pixel[1], 100 * way, 2) << x;
            EXPECT_NEAR(pixel[2], 40 * way, 2) << x;
            EXPECT_EQ(pixel[3], 255) << x;
        }
    }
}

TEST(DrawingAnImage, WiderAndShorterScalesInBothDirections)
{
    const auto image = imageOf(2, 4, pixels(2, 4, [](std::size_t x, std::size_t y) {
        const auto level = static_cast<std::uint8_t>(x * 100 + y * 20);
        return Bytes { level, level, level, 255 };
    }));
    const auto drawn = drawnAt(8, 2, *image);
    EXPECT_NEAR(drawn[0], 10, 1) << "the mean of 0 and 20";
    EXPECT_NEAR(drawn[28], 110, 1);
    EXPECT_NEAR(drawn[32], 50, 1) << "the mean of 40 and 60";
}

TEST(DrawingAnImage, InItsOwnSizeChangesNothing)
{
    const auto image = imageOf(31, 17, pattern(31, 17));
    EXPECT_EQ(drawnAt(31, 17, *image), pattern(31, 17));
}

} // namespace

} // namespace brimsound::tests
