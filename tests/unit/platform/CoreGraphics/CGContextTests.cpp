#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIGraphics.h"
#include "tests/support/Images.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace brimsound::tests {

namespace {

using testing::Each;
using testing::ElementsAre;

const Bytes nothing { 0, 0, 0, 0 };
const Bytes black { 0, 0, 0, 255 };
const Bytes red { 255, 0, 0, 255 };
const Bytes green { 0, 255, 0, 255 };
const Bytes blue { 0, 0, 255, 255 };
const Bytes white { 255, 255, 255, 255 };

/// Red and green at the top, blue and white at the bottom.
RetainPtr<UIImage> fourColors()
{
    return imageOf(2, 2, pixels(2, 2, [](std::size_t x, std::size_t y) {
        if (y == 0)
            return x == 0 ? red : green;
        return x == 0 ? blue : white;
    }));
}

/// A bitmap context on the test's own bytes.
class ABitmapContext : public testing::Test {
protected:
    static constexpr std::size_t width = 4;
    static constexpr std::size_t height = 4;

    Bytes pixel(std::size_t x, std::size_t y) const
    {
        const auto start = bytes.begin() + static_cast<std::ptrdiff_t>((y * width + x) * 4);
        return { start, start + 4 };
    }
    /// The pixels in the corners: top left and right, bottom left and right.
    std::vector<Bytes> corners() const
    {
        return { pixel(0, 0), pixel(width - 1, 0), pixel(0, height - 1), pixel(width - 1, height - 1) };
    }

    Bytes bytes = Bytes(width * height * 4);
    const RetainPtr<CGContext> context = CGBitmapContextCreate(bytes.data(), width, height, width * 4);
};

TEST_F(ABitmapContext, HasItsOriginBelowAndTheTopRowFirst)
{
    CGContextFillRect(context.get(), CGRectMake(0, 0, 2, 1));
    EXPECT_EQ(pixel(0, 3), black);
    EXPECT_EQ(pixel(1, 3), black);
    EXPECT_EQ(std::ranges::count(bytes, 255), 2);
}

TEST_F(ABitmapContext, DrawsImagesUpright)
{
    CGContextDrawImage(context.get(), CGRectMake(0, 0, 4, 4), fourColors()->CGImage());
    EXPECT_THAT(corners(), ElementsAre(red, green, blue, white));
}

TEST_F(ABitmapContext, DrawsWhereItsAxesWereMoved)
{
    CGContextTranslateCTM(context.get(), 1, 2);
    CGContextScaleCTM(context.get(), 2, 1);
    CGContextTranslateCTM(context.get(), 0.5, 1);
    CGContextFillRect(context.get(), CGRectMake(0, 0, 1, 1));
    EXPECT_EQ(pixel(2, 0), black);
    EXPECT_EQ(pixel(3, 0), black);
    EXPECT_EQ(std::ranges::count(bytes, 255), 2);
}

TEST_F(ABitmapContext, MirrorsDrawingAlongReversedAxes)
{
    CGContextTranslateCTM(context.get(), 4, 4);
    CGContextScaleCTM(context.get(), -1, -1);
    CGContextDrawImage(context.get(), CGRectMake(0, 0, 4, 4), fourColors()->CGImage());
    EXPECT_THAT(corners(), ElementsAre(white, blue, green, red));
}

TEST_F(ABitmapContext, AcceptsARectangleWithAnyCornerAsItsOrigin)
{
    CGContextFillRect(context.get(), CGRectMake(3, 3, -2, -2));
    EXPECT_EQ(pixel(1, 1), black);
    EXPECT_EQ(pixel(2, 2), black);
    EXPECT_EQ(std::ranges::count(bytes, 255), 4);
    CGContextDrawImage(context.get(), CGRectMake(4, 4, -4, -4), fourColors()->CGImage());
    EXPECT_THAT(corners(), ElementsAre(red, green, blue, white));
}

TEST_F(ABitmapContext, ClipsToItsBounds)
{
    CGContextDrawImage(context.get(), CGRectMake(-4, 0, 8, 8), fourColors()->CGImage());
    EXPECT_THAT(corners(), testing::Not(testing::Contains(red)));
    EXPECT_EQ(pixel(3, 3), white);
    bytes.assign(bytes.size(), 0);
    CGContextFillRect(context.get(), CGRectMake(4, 0, 9, 9));
    CGContextFillRect(context.get(), CGRectMake(-3, -3, 3, 9));
    constexpr double farAway = 1 << 24;
    CGContextFillRect(context.get(), CGRectMake(farAway, 0, 4, 4));
    CGContextDrawImage(context.get(), CGRectMake(0, -farAway, 4, 4), fourColors()->CGImage());
    EXPECT_THAT(bytes, Each(0));
}

TEST_F(ABitmapContext, IgnoresEmptyAndInfiniteRectangles)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const auto& rect : { CGRectMake(0, 0, 0, 4), CGRectMake(0, 0, 4, 0), CGRectMake(0, 0, infinity, 4),
             CGRectMake(-infinity, 0, 4, 4), CGRectMake(std::nan(""), 0, 4, 4), CGRectMake(0, 0, 1e12, 4),
             CGRectMake(0, 0, 1e-9, 4) }) {
        CGContextDrawImage(context.get(), rect, fourColors()->CGImage());
        EXPECT_THAT(bytes, Each(0)) << rect.origin.x << ", " << rect.size.width;
        CGContextFillRect(context.get(), rect);
        EXPECT_THAT(bytes, Each(0)) << rect.origin.x << ", " << rect.size.width;
    }
}

TEST_F(ABitmapContext, ChangesPixelsInProportionToTheirCoverage)
{
    CGContextFillRect(context.get(), CGRectMake(0.5, 0.25, 3, 3));
    EXPECT_EQ(pixel(1, 1), black);
    EXPECT_THAT(pixel(0, 1), ElementsAre(0, 0, 0, 128));
    EXPECT_THAT(pixel(1, 0), ElementsAre(0, 0, 0, 64)) << "above";
    EXPECT_NEAR(pixel(1, 3)[3], 191, 1) << "below";
    EXPECT_THAT(pixel(0, 3), ElementsAre(0, 0, 0, 96)) << "three quarters of a half";
}

TEST_F(ABitmapContext, LeavesUncoveredPixelsUnchangedInAnyMode)
{
    CGContextFillRect(context.get(), CGRectMake(0, 0, 4, 4));
    CGContextSetBlendMode(context.get(), CGBlendMode::DestinationIn);
    const auto clear = imageOf(1, 1, nothing);
    CGContextDrawImage(context.get(), CGRectMake(0, 0, 1.5, 4), clear->CGImage());
    EXPECT_EQ(pixel(0, 0), nothing);
    EXPECT_NEAR(pixel(1, 0)[3], 128, 1);
    EXPECT_EQ(pixel(2, 0), black);
}

TEST_F(ABitmapContext, ReturnsPicturesThatDoNotChange)
{
    CGContextFillRect(context.get(), CGRectMake(0, 0, 4, 4));
    const auto picture = UIImage::imageWithCGImage(CGBitmapContextCreateImage(context.get()).get());
    bytes.assign(bytes.size(), 7);
    EXPECT_EQ(pixelOf(*picture, 0, 0), black);
}

TEST(ABitmapContextWithLongRows, LeavesTheirEndsAlone)
{
    Bytes bytes(36, 9);
    const auto context = CGBitmapContextCreate(bytes.data(), 2, 3, 12);
    CGContextDrawImage(context.get(), CGRectMake(0, 0, 2, 3), imageOf(1, 1, red)->CGImage());
    const auto picture = UIImage::imageWithCGImage(CGBitmapContextCreateImage(context.get()).get());
    EXPECT_EQ(bytesOf(*picture), pixels(2, 3, [](auto, auto) { return red; }));
    for (std::size_t y = 0; y < 3; ++y)
        EXPECT_EQ(std::count(bytes.data() + y * 12 + 8, bytes.data() + y * 12 + 12, 9), 4);
}

TEST(MakingABitmapContext, ReturnsNullForAnInvalidBitmap)
{
    Bytes bytes(64);
    EXPECT_TRUE(CGBitmapContextCreate(bytes.data(), 4, 4, 16));
    EXPECT_FALSE(CGBitmapContextCreate(nullptr, 4, 4, 16));
    EXPECT_FALSE(CGBitmapContextCreate(bytes.data(), 0, 4, 16));
    EXPECT_FALSE(CGBitmapContextCreate(bytes.data(), 4, 0, 16));
    EXPECT_FALSE(CGBitmapContextCreate(bytes.data(), 4, 4, 15));
    EXPECT_FALSE(CGBitmapContextCreate(bytes.data(), 3, 4, 14));
    EXPECT_FALSE(CGBitmapContextCreate(bytes.data(), std::size_t { 1 } << 62, 4, 16));
}

TEST(NoContext, IgnoresAllCalls)
{
    CGContextTranslateCTM(nullptr, 1, 1);
    CGContextScaleCTM(nullptr, 2, 2);
    CGContextSetBlendMode(nullptr, CGBlendMode::Copy);
    CGContextFillRect(nullptr, CGRectMake(0, 0, 1, 1));
    CGContextDrawImage(nullptr, CGRectMake(0, 0, 1, 1), fourColors()->CGImage());
    EXPECT_FALSE(CGBitmapContextCreateImage(nullptr));
    EXPECT_FALSE(UIImage::imageWithCGImage(nullptr));
}

TEST_F(ABitmapContext, DrawsNothingForANullImage)
{
    CGContextDrawImage(context.get(), CGRectMake(0, 0, 4, 4), nullptr);
    EXPECT_THAT(bytes, Each(0));
}

} // namespace

} // namespace brimsound::tests
