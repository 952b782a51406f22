#import <UIKit/UIKit.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace {

NSString* resource(NSString* name)
{
    return [[NSBundle mainBundle] pathForResource:name ofType:@"png"];
}

TEST(AnImage, HasTheScaleInItsFilesName)
{
    UIImage* image = [UIImage imageWithContentsOfFile:resource(@"icon@2x")];
    ASSERT_TRUE(image);
    EXPECT_EQ([image scale], 2);
    EXPECT_EQ([image size].width, 29);
    EXPECT_EQ(CGImageGetWidth([image CGImage]), 58u);
    EXPECT_EQ([[UIImage imageWithContentsOfFile:resource(@"icon@3x")] scale], 3);
    EXPECT_EQ([[UIImage imageWithContentsOfFile:resource(@"icon")] scale], 1);
}

TEST(AnImage, IsNullWithoutAPicture)
{
    EXPECT_FALSE([UIImage imageWithContentsOfFile:@"/nowhere.png"]);
    EXPECT_FALSE([UIImage imageWithContentsOfFile:[[NSBundle mainBundle] pathForResource:@"Info"
                                                                                  ofType:@"plist"]]);
    EXPECT_FALSE([UIImage imageWithCGImage:nullptr]);
}

TEST(AnImage, IsDrawnUprightAtTheScaleOfTheContext)
{
    UIGraphicsBeginImageContextWithOptions(CGSizeMake(2, 2), NO, 2);
    [[UIColor colorWithRed:0 green:0 blue:1 alpha:1] setFill];
    CGContextFillRect(UIGraphicsGetCurrentContext(), CGRectMake(0, 0, 2, 1));
    UIImage* upperHalf = UIGraphicsGetImageFromCurrentImageContext();
    UIGraphicsEndImageContext();
    EXPECT_EQ([upperHalf scale], 2);
    EXPECT_EQ([upperHalf size].height, 2);

    UIGraphicsBeginImageContext(CGSizeMake(1, 2));
    [upperHalf drawInRect:CGRectMake(0, 0, 1, 2)];
    const CGImageRef drawn = [UIGraphicsGetImageFromCurrentImageContext() CGImage];
    std::array<std::uint8_t, 8> memory {};
    const CGContextRef context
        = CGBitmapContextCreate(memory.data(), 1, 2, 8, 4, CGColorSpaceCreateDeviceRGB(),
            CGBitmapInfo { kCGImageAlphaPremultipliedLast } | kCGBitmapByteOrder32Big);
    CGContextDrawImage(context, CGRectMake(0, 0, 1, 2), drawn);
    CGContextRelease(context);
    UIGraphicsEndImageContext();
    EXPECT_THAT(memory, testing::ElementsAre(0, 0, 255, 255, 0, 0, 0, 0));
}

TEST(AnImageContext, IsNullForAnInvalidSize)
{
    UIGraphicsBeginImageContext(CGSizeMake(0, 5));
    EXPECT_FALSE(UIGraphicsGetCurrentContext());
    EXPECT_FALSE(UIGraphicsGetImageFromCurrentImageContext());
    UIGraphicsEndImageContext();
}

} // namespace
