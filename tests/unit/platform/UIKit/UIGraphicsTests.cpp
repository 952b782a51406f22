#include "platform/UIKit/UIGraphics.h"

#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIScreen.h"
#include "platform/desktop/UIKit/Screen.h"
#include "tests/support/Images.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

#include <cmath>

namespace brimsound::tests {

namespace {

using testing::Each;
using testing::ElementsAre;

constexpr auto whole = CGRectMake(0, 0, 2, 2);

/// Black above, transparent below.
RetainPtr<UIImage> upperHalf()
{
    return imageOf(2, 2, { 0, 0, 0, 255, 0, 0, 0, 255, 0, 0, 0, 0, 0, 0, 0, 0 });
}

class AnImageContext : public testing::Test {
protected:
    AnImageContext() { UIGraphicsBeginImageContext(whole.size); }
    ~AnImageContext() override
    {
        UIGraphicsEndImageContext();
        desktop::setScreenScale(2);
    }

    static RetainPtr<UIImage> image() { return UIGraphicsGetImageFromCurrentImageContext(); }
    /// The alpha of each pixel.
    static Bytes alphas()
    {
        Bytes alphas;
        const auto bytes = bytesOf(*image());
        for (std::size_t i = 3; i < bytes.size(); i += 4)
            alphas.push_back(bytes[i]);
        return alphas;
    }
};

TEST_F(AnImageContext, IsTransparentAtFirst)
{
    EXPECT_THAT(bytesOf(*image()), Each(0));
}

TEST_F(AnImageContext, HasItsOriginAtTheTop)
{
    CGContextFillRect(UIGraphicsGetCurrentContext(), CGRectMake(0, 0, 2, 1));
    EXPECT_THAT(alphas(), ElementsAre(255, 255, 0, 0));
}

TEST_F(AnImageContext, ShowsImagesUpright)
{
    upperHalf()->drawInRect(whole);
    EXPECT_THAT(alphas(), ElementsAre(255, 255, 0, 0));
}

TEST_F(AnImageContext, ShowsPicturesUpsideDown)
{
    CGContextDrawImage(UIGraphicsGetCurrentContext(), whole, upperHalf()->CGImage());
    EXPECT_THAT(alphas(), ElementsAre(0, 0, 255, 255));
}

TEST_F(AnImageContext, ShowsPicturesUprightWhenItIsFlipped)
{
    CGContextTranslateCTM(UIGraphicsGetCurrentContext(), 0, 2);
    CGContextScaleCTM(UIGraphicsGetCurrentContext(), 1, -1);
    CGContextDrawImage(UIGraphicsGetCurrentContext(), whole, upperHalf()->CGImage());
    EXPECT_THAT(alphas(), ElementsAre(255, 255, 0, 0));
}

TEST_F(AnImageContext, GivesImagesThatDoNotChangeAfterwards)
{
    const auto before = image();
    upperHalf()->drawInRect(whole);
    const auto between = image();
    CGContextFillRect(UIGraphicsGetCurrentContext(), whole);
    EXPECT_THAT(bytesOf(*before), Each(0));
    EXPECT_EQ(bytesOf(*between), bytesOf(*upperHalf()));
    EXPECT_THAT(alphas(), Each(255));
}

TEST_F(AnImageContext, FillsWithTheColorThatWasSetInIt)
{
    const auto context = UIGraphicsGetCurrentContext();
    UIColor::colorWithRedGreenBlueAlpha(1, 0.4, -3, 0.2)->setFill();
    CGContextFillRect(context, whole);
    EXPECT_EQ(bytesOf(*image()), pixels(2, 2, [](auto, auto) { return Bytes { 51, 20, 0, 51 }; }));
}

TEST_F(AnImageContext, IsCurrentInsteadOfTheOneBefore)
{
    const auto* outer = UIGraphicsGetCurrentContext();
    UIGraphicsBeginImageContext({ 3, 3 });
    EXPECT_NE(UIGraphicsGetCurrentContext(), outer);
    CGContextFillRect(UIGraphicsGetCurrentContext(), whole);
    UIGraphicsEndImageContext();
    EXPECT_EQ(UIGraphicsGetCurrentContext(), outer);
    EXPECT_THAT(alphas(), Each(0));
}

TEST_F(AnImageContext, IsMissingWhereItsSizeIsImpossible)
{
    for (const auto& size : { CGSize { 0, 2 }, CGSize { 2, 0 }, CGSize { -2, -2 }, CGSize { 1e5, 2 },
             CGSize { std::nan(""), 2 } }) {
        UIGraphicsBeginImageContext(size);
        EXPECT_EQ(UIGraphicsGetCurrentContext(), nullptr) << size.width << " x " << size.height;
        EXPECT_FALSE(image());
        upperHalf()->drawInRect(whole);
        UIColor::whiteColor()->setFill();
        UIGraphicsEndImageContext();
    }
    EXPECT_THAT(alphas(), Each(0)) << "nothing went to the context around it";
}

TEST_F(AnImageContext, MayBeEndedMoreOftenThanItWasBegun)
{
    UIGraphicsEndImageContext();
    UIGraphicsEndImageContext();
    EXPECT_EQ(UIGraphicsGetCurrentContext(), nullptr);
    EXPECT_FALSE(image());
}

TEST_F(AnImageContext, HasAsManyPixelsAPointAsItsScale)
{
    UIGraphicsBeginImageContextWithOptions({ 3, 2 }, 4);
    CGContextFillRect(UIGraphicsGetCurrentContext(), CGRectMake(0, 0, 3, 1));
    const auto made = image();
    EXPECT_EQ(made->scale(), 4);
    EXPECT_EQ(made->size(), (CGSize { 3, 2 }));
    EXPECT_EQ(pixelOf(*made, 11, 3)[3], 255);
    EXPECT_EQ(pixelOf(*made, 11, 4)[3], 0);
    UIGraphicsEndImageContext();
}

TEST_F(AnImageContext, RoundsItsSizeUpToPixels)
{
    const auto sizeOf = [](CGSize size, CGFloat scale) {
        UIGraphicsBeginImageContextWithOptions(size, scale);
        const auto made = image();
        UIGraphicsEndImageContext();
        return made->size();
    };
    EXPECT_EQ(sizeOf({ 10.7, 3.2 }, 1), (CGSize { 11, 4 }));
    EXPECT_EQ(sizeOf({ 10.7, 3.2 }, 2), (CGSize { 11, 3.5 }));
    EXPECT_EQ(sizeOf({ 1.1, 3.3 }, 100), (CGSize { 1.1, 3.3 }))
        << "though 1.1 times 100 is a little above 110";
}

TEST_F(AnImageContext, TakesTheScreensScaleForZero)
{
    desktop::setScreenScale(1.5);
    EXPECT_EQ(UIScreen::mainScreen().scale(), 1.5);
    UIGraphicsBeginImageContextWithOptions({ 4, 4 }, 0);
    EXPECT_EQ(image()->scale(), 1.5);
    EXPECT_EQ(image()->size(), (CGSize { 4, 4 }));
    UIGraphicsEndImageContext();
}

TEST(TheScreen, HasTwoPixelsAPointUntilItsScaleIsSet)
{
    EXPECT_EQ(UIScreen::mainScreen().scale(), 2);
}

TEST(TheScreen, IsAsLargeAsTheWindow)
{
    EXPECT_EQ(UIScreen::mainScreen().bounds(), CGRect {});
    const auto window = toolkit::make<toolkit::Window>(toolkit::Size { 320, 568 });
    EXPECT_EQ(UIScreen::mainScreen().bounds(), CGRectMake(0, 0, 320, 568));
    window->setFrame(toolkit::makeRect(0, 0, 400, 300));
    EXPECT_EQ(UIScreen::mainScreen().bounds(), CGRectMake(0, 0, 400, 300));
}

} // namespace

} // namespace brimsound::tests
