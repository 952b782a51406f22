#include "settings/UIImage+Equalizer.h"

#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UIScreen.h"
#include "tests/support/Images.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace brimsound::tests {

namespace {

using testing::Each;
using testing::ElementsAre;

const std::string hashOfNoBytes = "d41d8cd98f00b204e9800998ecf8427e";
constexpr double infinity = std::numeric_limits<double>::infinity();

// The hashes in these tests were computed by another implementation over the first half of the bytes.

TEST(TheHashOfAnImage, IsThatOfTheUpperHalfOfItsPixels)
{
    EXPECT_EQ(md5Hash(*imageOf(6, 4, pattern(6, 4))), "6699f5453843c9f609ba1a9d87573bd6");
    EXPECT_EQ(md5Hash(*imageOf(640, 480, pattern(640, 480))), "a49885ecc57d0e4619ed034601eba2bc");
}

TEST(TheHashOfAnImage, EndsInTheMiddleOfARowWhenTheHeightIsOdd)
{
    EXPECT_EQ(md5Hash(*imageOf(5, 3, pattern(5, 3))), "30357268fe01c4acd727ce5da2d2eedf");
    EXPECT_EQ(md5Hash(*imageOf(1, 1, pattern(1, 1))), "c4103f122d27677c9db144cae1394a66") << "two bytes";
}

TEST(TheHashOfAnImage, IsOfPremultipliedBytes)
{
    const auto image = imageOf(2, 2, pixels(2, 2, [](auto, auto) { return Bytes { 100, 50, 0, 128 }; }));
    EXPECT_EQ(md5Hash(*image), "71026978853d741c8bf2b33b54a99d45");
}

TEST(TheHashOfAnImage, DependsOnEveryByteOfTheUpperHalfAndOnNoOther)
{
    for (const std::size_t height : { 4u, 3u }) {
        const auto bytes = pattern(6, height);
        const auto hash = md5Hash(*imageOf(6, height, bytes));
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            if (i % 4 == 3)
                continue;
            auto changed = bytes;
            changed[i] = static_cast<std::uint8_t>(changed[i] ^ 1);
            if (i < bytes.size() / 2)
                EXPECT_NE(md5Hash(*imageOf(6, height, changed)), hash) << "byte " << i;
            else
                EXPECT_EQ(md5Hash(*imageOf(6, height, changed)), hash) << "byte " << i;
        }
    }
}

TEST(TheHashOfAnImage, UsesOnePixelPerPoint)
{
    // Every point is a square of four equal pixels, so their mean is the same.
    const auto points = pattern(6, 4);
    const auto doubled = pixels(12, 8, [&](std::size_t x, std::size_t y) {
        const auto start = points.begin() + static_cast<std::ptrdiff_t>((y / 2 * 6 + x / 2) * 4);
        return Bytes(start, start + 4);
    });
    EXPECT_EQ(md5Hash(*imageAtScale(2, 12, 8, doubled)), "6699f5453843c9f609ba1a9d87573bd6");
}

TEST(TheHashOfAnImage, TruncatesItsSizeInPoints)
{
    const auto gray = [](std::size_t width, std::size_t height) {
        return pixels(width, height, [](auto, auto) { return Bytes { 90, 90, 90, 255 }; });
    };
    const auto image = imageAtScale(10, 107, 32, gray(107, 32));
    ASSERT_EQ(image->size(), (CGSize { 10.7, 3.2 }));
    EXPECT_EQ(md5Hash(*image), md5Hash(*imageOf(10, 3, gray(10, 3))));
    EXPECT_NE(md5Hash(*image), md5Hash(*imageOf(11, 4, gray(11, 4))));
    EXPECT_EQ(md5Hash(*imageAtScale(10, 107, 9, gray(107, 9))), hashOfNoBytes) << "less than one point high";
}

TEST(TheHashOfAnImage, LeavesTheImageAsItIs)
{
    const auto image = imageOf(6, 4, pattern(6, 4));
    const auto hash = md5Hash(*image);
    EXPECT_EQ(bytesOf(*image), pattern(6, 4));
    EXPECT_EQ(md5Hash(*image), hash);
}

TEST(ScalingAnImage, ReturnsTheSizeInPointsAtTheScreensScale)
{
    const auto scaled = scaleToSize(*imageOf(6, 4, pattern(6, 4)), { 9, 20 });
    ASSERT_TRUE(scaled);
    EXPECT_EQ(scaled->size(), (CGSize { 9, 20 }));
    EXPECT_EQ(scaled->scale(), UIScreen::mainScreen().scale());
}

TEST(ScalingAnImage, StretchesItAndKeepsItUpright)
{
    const auto quarters = pixels(2, 2, [](std::size_t x, std::size_t y) {
        return Bytes { static_cast<std::uint8_t>(x * 255), static_cast<std::uint8_t>(y * 255), 0, 255 };
    });
    const auto scaled = scaleToSize(*imageOf(2, 2, quarters), { 40, 10 });
    const auto right = widthOf(*scaled) - 1;
    const auto bottom = heightOf(*scaled) - 1;
    EXPECT_THAT(pixelOf(*scaled, 0, 0), ElementsAre(0, 0, 0, 255));
    EXPECT_THAT(pixelOf(*scaled, right, 0), ElementsAre(255, 0, 0, 255));
    EXPECT_THAT(pixelOf(*scaled, 0, bottom), ElementsAre(0, 255, 0, 255));
    EXPECT_THAT(pixelOf(*scaled, right, bottom), ElementsAre(255, 255, 0, 255));
}

TEST(ScalingAnImage, ChangesNothingWhenItHasThatSizeAtTheScreensScale)
{
    const auto scale = UIScreen::mainScreen().scale();
    const auto image = imageAtScale(scale, 12, 8, pattern(12, 8));
    EXPECT_EQ(bytesOf(*scaleToSize(*image, image->size())), pattern(12, 8));
}

TEST(ScalingAnImage, KeepsWhatIsTransparent)
{
    const auto halves = pixels(2, 8, [](auto, std::size_t y) {
        return y < 4 ? Bytes { 0, 0, 0, 0 } : Bytes { 20, 40, 60, 80 };
    });
    const auto scaled = scaleToSize(*imageOf(2, 8, halves), { 2, 4 });
    EXPECT_THAT(pixelOf(*scaled, 0, 0), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(pixelOf(*scaled, 0, heightOf(*scaled) - 1), ElementsAre(20, 40, 60, 80));
}

TEST(ScalingAnImage, ToAnInvalidOrTooLargeSizeReturnsNone)
{
    const auto image = imageOf(6, 4, pattern(6, 4));
    for (const auto& size : { CGSize { 0, 4 }, CGSize { 4, 0 }, CGSize { -6, 4 }, CGSize { 1e300, 1 },
             CGSize { 1e9, 1e9 }, CGSize { infinity, 4 }, CGSize { std::nan(""), 4 } }) {
        EXPECT_FALSE(scaleToSize(*image, size)) << size.width << " x " << size.height;
        EXPECT_EQ(UIGraphicsGetCurrentContext(), nullptr);
    }
}

TEST(TheNegativeOfAnImage, InvertsItsColors)
{
    const auto negativeOf = [](const Bytes& pixel) { return bytesOf(*negative(*imageOf(1, 1, pixel))); };
    EXPECT_THAT(negativeOf({ 0, 0, 0, 0 }), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(negativeOf({ 0, 0, 0, 255 }), ElementsAre(255, 255, 255, 255));
    EXPECT_THAT(negativeOf({ 200, 100, 0, 255 }), ElementsAre(55, 155, 255, 255));
}

TEST(TheNegativeOfAnImage, KeepsTheAlphaAndInvertsWhatWasMultipliedWithIt)
{
    // 100 of 128 is 199 of 255, inverted 56, of which 128/255 is 28.1; 50 is 99, inverted 156, 78.3.
    EXPECT_THAT(bytesOf(*negative(*imageOf(1, 1, { 100, 50, 0, 128 }))), ElementsAre(28, 78, 128, 128));
}

TEST(TheNegativeOfAnImage, IsUprightAndOfEveryPixel)
{
    const auto result = negative(*imageOf(7, 5, pattern(7, 5)));
    EXPECT_EQ(result->size(), (CGSize { 7, 5 }));
    auto inverted = pattern(7, 5);
    for (std::size_t i = 0; i < inverted.size(); ++i) {
        if (i % 4 != 3)
            inverted[i] = static_cast<std::uint8_t>(255 - inverted[i]);
    }
    EXPECT_EQ(bytesOf(*result), inverted);
}

TEST(TheNegativeOfAnImage, HasOnePixelPerPoint)
{
    const auto image = imageAtScale(2, 12, 8, pattern(12, 8));
    ASSERT_EQ(image->size(), (CGSize { 6, 4 }));
    const auto result = negative(*image);
    EXPECT_EQ(result->scale(), 1);
    EXPECT_EQ(result->size(), (CGSize { 6, 4 })) << "half the pixels in each direction, and the same size";
}

TEST(TheNegativeOfAnImage, TruncatesItsSizeInPoints)
{
    const auto image = imageAtScale(10, 107, 32, pattern(107, 32));
    EXPECT_EQ(negative(*image)->size(), (CGSize { 10, 3 }));
    EXPECT_FALSE(negative(*imageAtScale(10, 9, 32, pattern(9, 32))));
}

TEST(TheNegativeOfAnImage, LeavesTheImageAsItIs)
{
    const auto image = imageOf(6, 4, pattern(6, 4));
    const auto result = negative(*image);
    EXPECT_EQ(bytesOf(*image), pattern(6, 4));
    EXPECT_EQ(bytesOf(*negative(*result)), pattern(6, 4));
}

/// Colors and alphas of all kinds: the alpha increases from left to right and red from top to bottom; green
/// is the complement of red, and blue half of the alpha.
Bytes everyPixel()
{
    return pixels(256, 256, [](std::size_t alpha, std::size_t y) {
        const auto red = std::min(y, alpha);
        const auto level = [](std::size_t number) { return static_cast<std::uint8_t>(number); };
        return Bytes { level(red), level(alpha - red), level(alpha / 2), level(alpha) };
    });
}

/// A color in 255ths whose premultiplied components are whole numbers again.
struct Ink {
    int red;
    int green;
    int blue;
    int alpha;

    RetainPtr<UIColor> color() const
    {
        const double full = std::max(alpha, 1);
        return UIColor::colorWithRedGreenBlueAlpha(red / full, green / full, blue / full, alpha / 255.0);
    }
    double channel(std::size_t index) const { return std::array { red, green, blue, alpha }[index] / 255.0; }
};

constexpr std::array<Ink, 9> inks { {
    { 255, 255, 255, 255 },
    { 0, 0, 0, 255 },
    { 255, 0, 0, 255 },
    { 30, 128, 201, 255 },
    { 0, 0, 0, 0 },
    { 51, 20, 0, 51 },
    { 64, 127, 128, 128 },
    { 1, 0, 1, 1 },
    { 200, 254, 3, 254 },
} };

/// Compares every byte of `tinted` with the formula's result for every pixel. The formula's arguments are the
/// premultiplied ink, its alpha, the premultiplied pixel and its alpha, all from 0 to 1.
template <typename Formula> void expectTinted(const UIImage& tinted, const Ink& ink, const Formula& formula)
{
    const auto before = everyPixel();
    const auto after = bytesOf(tinted);
    ASSERT_EQ(after.size(), before.size());
    double largest = 0;
    for (std::size_t i = 0; i < before.size(); ++i) {
        const double alpha = before[i - i % 4 + 3] / 255.0;
        const double painted = formula(ink.channel(i % 4), ink.channel(3), before[i] / 255.0, alpha);
        largest = std::max(largest, std::abs(painted * alpha * 255 - after[i]));
    }
    EXPECT_LE(largest, 1 + 1e-9) << ink.red << " " << ink.green << " " << ink.blue << " " << ink.alpha;
}

TEST(FillingAnImage, LaysTheColorOverItWithinItsShape)
{
    const auto image = imageOf(256, 256, everyPixel());
    for (const auto& ink : inks) {
        expectTinted(*fillWithColor(*image, *ink.color()), ink,
            [](double s, double sa, double d, double) { return s + d * (1 - sa); });
    }
}

TEST(FillingAnImage, WithAnOpaqueColorMakesASilhouette)
{
    const auto silhouette = bytesOf(*fillWithColor(*imageOf(256, 256, everyPixel()), *UIColor::whiteColor()));
    EXPECT_EQ(silhouette, pixels(256, 256, [](std::size_t x, auto) {
        const auto alpha = static_cast<std::uint8_t>(x);
        return Bytes { alpha, alpha, alpha, alpha };
    }));
}

TEST(FillingAnImage, KeepsItUprightAndLeavesTheImageAsItIs)
{
    const auto upper = pixels(3, 4, [](auto, std::size_t y) {
        return y == 0 ? Bytes { 9, 9, 9, 255 } : Bytes { 0, 0, 0, 0 };
    });
    const auto image = imageOf(3, 4, upper);
    const auto filled = fillWithColor(*image, *UIColor::whiteColor());
    EXPECT_THAT(pixelOf(*filled, 0, 0), ElementsAre(255, 255, 255, 255));
    EXPECT_THAT(pixelOf(*filled, 0, 3), ElementsAre(0, 0, 0, 0));
    EXPECT_EQ(bytesOf(*image), upper);
}

TEST(FillingAnImage, HasOnePixelPerPointWhateverTheScreensScale)
{
    const auto filled = fillWithColor(*imageAtScale(2, 12, 8, pattern(12, 8)), *UIColor::whiteColor());
    EXPECT_EQ(filled->scale(), 1);
    EXPECT_EQ(filled->size(), (CGSize { 6, 4 }));
    EXPECT_THAT(bytesOf(*filled), Each(255));
}

TEST(FillingAnImage, WithATransparentColorLeavesItUnchanged)
{
    const auto image = imageOf(6, 4, pattern(6, 4));
    EXPECT_EQ(bytesOf(*fillWithColor(*image, *UIColor::clearColor())), pattern(6, 4));
}

TEST(FillingAnImage, LeavesTheContextThatWasCurrent)
{
    UIGraphicsBeginImageContext({ 2, 2 });
    const auto* current = UIGraphicsGetCurrentContext();
    fillWithColor(*imageOf(6, 4, pattern(6, 4)), *UIColor::whiteColor());
    EXPECT_EQ(UIGraphicsGetCurrentContext(), current);
    EXPECT_THAT(bytesOf(*UIGraphicsGetImageFromCurrentImageContext()), Each(0));
    UIGraphicsEndImageContext();
}

TEST(DarkeningAnImage, TakesTheSmallerOfImageAndColorWithinItsShape)
{
    const auto image = imageOf(256, 256, everyPixel());
    for (const auto& ink : inks) {
        expectTinted(
            *darkenWithColor(*image, *ink.color()), ink, [](double s, double sa, double d, double da) {
                return std::min(s * da, d * sa) + s * (1 - da) + d * (1 - sa);
            });
    }
}

TEST(DarkeningAnImage, LeavesWhiteAsItIsAndBlackensWithBlack)
{
    const auto image = imageOf(6, 4, pattern(6, 4));
    EXPECT_EQ(bytesOf(*darkenWithColor(*image, *UIColor::whiteColor())), pattern(6, 4));
    EXPECT_EQ(bytesOf(*darkenWithColor(*image, *UIColor::blackColor())), pixels(6, 4, [](auto, auto) {
        return Bytes { 0, 0, 0, 255 };
    }));
}

TEST(DarkeningAnImage, ReturnsScaleOneAndTheSameSizeUpright)
{
    const auto image = imageAtScale(2, 12, 8, pixels(12, 8, [](auto, std::size_t y) {
        return y < 4 ? Bytes { 200, 10, 90, 255 } : Bytes { 0, 0, 0, 0 };
    }));
    const auto dark = darkenWithColor(*image, *UIColor::colorWithWhiteAlpha(100 / 255.0, 1));
    EXPECT_EQ(dark->scale(), 1);
    EXPECT_EQ(dark->size(), (CGSize { 6, 4 }));
    EXPECT_THAT(pixelOf(*dark, 5, 0), ElementsAre(100, 10, 90, 255));
    EXPECT_THAT(pixelOf(*dark, 5, 3), ElementsAre(0, 0, 0, 0));
}

TEST(TintingAnImage, AcceptsAnyModeByItsNumber)
{
    const auto image = imageOf(1, 1, { 200, 100, 0, 255 });
    const auto tinted = [&](int mode) {
        const auto color = UIColor::colorWithWhiteAlpha(100 / 255.0, 1);
        return bytesOf(*fillWithColorAndBlendMode(*image, *color, static_cast<CGBlendMode>(mode)));
    };
    EXPECT_THAT(tinted(0), ElementsAre(100, 100, 100, 255)) << "normal";
    EXPECT_THAT(tinted(1), ElementsAre(78, 39, 0, 255)) << "multiply";
    EXPECT_THAT(tinted(4), ElementsAre(100, 100, 0, 255)) << "darken";
    EXPECT_THAT(tinted(5), ElementsAre(200, 100, 100, 255)) << "lighten";
    EXPECT_THAT(tinted(22), ElementsAre(200, 100, 0, 255)) << "destination in";
    EXPECT_THAT(tinted(27), ElementsAre(255, 200, 100, 255)) << "plus lighter";
}

TEST(TintingAnImage, OfAFractionalSizeKeepsItsUpperLeftCorner)
{
    const auto image = imageAtScale(10, 107, 32, pixels(107, 32, [](auto, auto) {
        return Bytes { 10, 20, 30, 255 };
    }));
    const auto filled = fillWithColor(*image, *UIColor::whiteColor());
    EXPECT_EQ(filled->size(), (CGSize { 11, 4 }));
    EXPECT_THAT(pixelOf(*filled, 0, 0), ElementsAre(255, 255, 255, 255));
    EXPECT_THAT(pixelOf(*filled, 9, 2), ElementsAre(255, 255, 255, 255));
    EXPECT_LT(pixelOf(*filled, 10, 0)[3], 255) << "partly covered";
    EXPECT_LT(pixelOf(*filled, 0, 3)[3], 255);
}

} // namespace

} // namespace brimsound::tests
