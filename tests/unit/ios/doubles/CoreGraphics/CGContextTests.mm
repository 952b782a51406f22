#import <CoreGraphics/CoreGraphics.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace {

using testing::ElementsAre;

constexpr CGBitmapInfo premultipliedRGBA
    = CGBitmapInfo { kCGImageAlphaPremultipliedLast } | kCGBitmapByteOrder32Big;

/// A context two pixels wide and high.
class AContext : public testing::Test {
protected:
    AContext() { CGContextSetRGBFillColor(context, 1, 0, 0, 1); }
    ~AContext() override
    {
        CGContextRelease(context);
        CGColorSpaceRelease(space);
    }

    std::vector<int> pixel(std::size_t x, std::size_t y) const
    {
        const auto* start = memory.data() + y * bytesPerRow + x * 4;
        return { start, start + 4 };
    }

    static constexpr std::size_t bytesPerRow = 12;
    std::array<std::uint8_t, 2 * bytesPerRow> memory {};
    CGColorSpaceRef space = CGColorSpaceCreateDeviceRGB();
    CGContextRef context
        = CGBitmapContextCreate(memory.data(), 2, 2, 8, bytesPerRow, space, premultipliedRGBA);
};

TEST_F(AContext, CountsFromTheBottomLeftCornerAndHasItsTopRowFirst)
{
    CGContextFillRect(context, CGRectMake(0, 0, 1, 1));
    EXPECT_THAT(pixel(0, 1), ElementsAre(255, 0, 0, 255));
    EXPECT_THAT(pixel(0, 0), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(pixel(1, 1), ElementsAre(0, 0, 0, 0));
}

TEST_F(AContext, MovesAndScales)
{
    CGContextTranslateCTM(context, 1, 2);
    CGContextScaleCTM(context, 1, -1);
    CGContextFillRect(context, CGRectMake(0, 0, 1, 1));
    EXPECT_THAT(pixel(1, 0), ElementsAre(255, 0, 0, 255));
}

TEST_F(AContext, Blends)
{
    CGContextFillRect(context, CGRectMake(0, 0, 2, 2));
    CGContextSetBlendMode(context, kCGBlendModeDestinationIn);
    CGContextSetRGBFillColor(context, 0, 1, 0, 0.6);
    CGContextFillRect(context, CGRectMake(0, 0, 2, 2));
    EXPECT_THAT(pixel(0, 0), ElementsAre(153, 0, 0, 153));
}

TEST_F(AContext, DrawsAPictureWithItsTopRowAtTheTop)
{
    CGContextFillRect(context, CGRectMake(0, 1, 2, 1));
    const CGImageRef picture = CGBitmapContextCreateImage(context);
    EXPECT_EQ(CGImageGetWidth(picture), 2u);
    EXPECT_EQ(CGImageGetHeight(picture), 2u);
    CGContextSetBlendMode(context, kCGBlendModeCopy);
    CGContextTranslateCTM(context, 0, 2);
    CGContextScaleCTM(context, 1, -1);
    CGContextDrawImage(context, CGRectMake(0, 0, 2, 2), picture);
    CGImageRelease(picture);
    EXPECT_THAT(pixel(0, 0), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(pixel(0, 1), ElementsAre(255, 0, 0, 255));
}

TEST_F(AContext, ReturnsPicturesThatDoNotChangeWithIt)
{
    const CGImageRef picture = CGBitmapContextCreateImage(context);
    CGContextFillRect(context, CGRectMake(0, 0, 2, 2));
    CGContextSetBlendMode(context, kCGBlendModeCopy);
    CGContextDrawImage(context, CGRectMake(0, 0, 2, 2), picture);
    CGImageRelease(picture);
    EXPECT_THAT(pixel(0, 0), ElementsAre(0, 0, 0, 0));
}

TEST_F(AContext, IsNullForAnInvalidBitmap)
{
    EXPECT_EQ(CGBitmapContextCreate(memory.data(), 0, 2, 8, 8, space, premultipliedRGBA), nullptr);
    EXPECT_EQ(CGBitmapContextCreate(memory.data(), 2, 2, 8, 4, space, premultipliedRGBA), nullptr);
    EXPECT_EQ(CGBitmapContextCreate(memory.data(), 2, 2, 16, 8, space, premultipliedRGBA), nullptr);
    EXPECT_EQ(CGBitmapContextCreate(memory.data(), 2, 2, 8, 8, nullptr, premultipliedRGBA), nullptr);
    EXPECT_EQ(CGBitmapContextCreate(memory.data(), 2, 2, 8, 8, space, 0), nullptr);
}

} // namespace
