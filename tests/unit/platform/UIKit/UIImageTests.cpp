#include "platform/UIKit/UIImage.h"

#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UISlider.h"
#include "platform/desktop/CoreGraphics/ImageBitmap.h"
#include "platform/desktop/Qt/Raster.h"
#include "platform/desktop/UIKit/BitmapImage.h"
#include "platform/desktop/UIKit/Screen.h"
#include "tests/support/Images.h"
#include "tests/support/TemporaryRoot.h"

#include <QFile>

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;

class AnImageFile : public testing::Test {
protected:
    /// Writes a PNG of two by one pixels, half red and opaque green, under the name.
    void write(const std::string& name) const
    {
        const auto image = imageOf(2, 1, bytes);
        ASSERT_TRUE(desktop::writePng(*image, QString::fromStdString((root.path() / name).string())));
    }

    const TemporaryRoot root;
    const Bytes bytes { 128, 0, 0, 128, 0, 255, 0, 255 };
};

TEST_F(AnImageFile, GivesItsPixelsPremultipliedAndUpright)
{
    write("dot.png");
    const auto image = UIImage::imageWithContentsOfFile("/dot.png");
    ASSERT_TRUE(image);
    EXPECT_EQ(bytesOf(*image), bytes);
}

TEST_F(AnImageFile, GivesAnImageOfTheScaleThatItsNameEndsIn)
{
    const std::vector<std::pair<std::string, double>> scales { { "dot.png", 1 }, { "dot@2x.png", 2 },
        { "dot@2x~ipad.png", 2 }, { "dot@3x.png", 3 }, { "dot@2x", 2 }, { "dot@2x.old.png", 1 },
        { "@2xdot.png", 1 }, { "dot2x.png", 1 }, { "dot~ipad.png", 1 } };
    for (const auto& [name, scale] : scales) {
        write(name);
        const auto image = UIImage::imageWithContentsOfFile("/" + name);
        ASSERT_TRUE(image) << name;
        EXPECT_EQ(image->scale(), scale) << name;
        EXPECT_EQ(image->size(), (CGSize { 2 / scale, 1 / scale })) << name;
    }
}

TEST_F(AnImageFile, GivesNoImageWhenItIsMissingOrBroken)
{
    write("dot.png");
    EXPECT_FALSE(UIImage::imageWithContentsOfFile("/missing.png"));
    EXPECT_FALSE(UIImage::imageWithContentsOfFile("/"));
    const auto whole = root.read("/dot.png");
    root.write("/empty.png", "");
    root.write("/text.png", "This is no picture.");
    root.write("/cut.png", whole.substr(0, whole.size() / 2));
    for (const auto* name : { "/empty.png", "/text.png", "/cut.png" })
        EXPECT_FALSE(UIImage::imageWithContentsOfFile(name)) << name;
}

TEST(TheBundlesPlusImage, HasTwoPixelsAPointAndAPlusInTransparency)
{
    const auto plus
        = UIImage::imageWithContentsOfFile("/Library/PreferenceBundles/BrimsoundSettings.bundle/plus@2x.png");
    ASSERT_TRUE(plus);
    EXPECT_EQ(plus->scale(), 2);
    const auto width = widthOf(*plus);
    EXPECT_EQ(plus->size().width * 2, static_cast<double>(width));
    EXPECT_EQ(pixelOf(*plus, 0, 0)[3], 0);
    EXPECT_EQ(pixelOf(*plus, width / 2, heightOf(*plus) / 2)[3], 255);
}

TEST(AnImageOfAPicture, HasOnePixelAPoint)
{
    UIGraphicsBeginImageContextWithOptions({ 3, 2 }, 2);
    const auto image = UIGraphicsGetImageFromCurrentImageContext();
    UIGraphicsEndImageContext();
    const auto again = UIImage::imageWithCGImage(image->CGImage());
    EXPECT_EQ(again->scale(), 1);
    EXPECT_EQ(again->size(), (CGSize { 6, 4 }));
}

TEST(AnImageOfAPicture, OutlivesTheImageThatThePictureIsFrom)
{
    auto image = imageOf(2, 1, { 9, 9, 9, 255, 8, 8, 8, 255 });
    const auto again = UIImage::imageWithCGImage(image->CGImage());
    image = nullptr;
    EXPECT_THAT(pixelOf(*again, 1, 0), ElementsAre(8, 8, 8, 255));
}

/// Red in its left third.
class ThirdImage : public toolkit::Image {
public:
    ThirdImage()
        : Image({ 3, 2 })
    {
    }
    void draw(toolkit::Canvas& canvas, const toolkit::Rect& rect) const override
    {
        canvas.fillRect({ rect.origin, { rect.size.width / 3, rect.size.height } }, { 1, 0, 0 });
    }
};

TEST(RasterizingAnImage, DrawsItWithAsManyPixelsAPointAsAskedFor)
{
    const auto bitmap = desktop::rasterized(*toolkit::make<ThirdImage>(), 3);
    ASSERT_TRUE(bitmap);
    const auto image = desktop::makeImage(desktop::makeCGImage(bitmap), 3);
    EXPECT_EQ(image->scale(), 3);
    EXPECT_EQ(image->size(), (CGSize { 3, 2 }));
    EXPECT_EQ(bytesOf(*image), pixels(9, 6, [](std::size_t x, auto) {
        return x < 3 ? Bytes { 255, 0, 0, 255 } : Bytes { 0, 0, 0, 0 };
    }));
}

TEST(TheThumbOfASlider, HasPixels)
{
    const auto slider = make<UISlider>();
    const auto* thumb = slider->currentThumbImage();
    ASSERT_TRUE(thumb->CGImage());
    EXPECT_EQ(thumb->size(), (CGSize { 28, 28 }));
    const auto middle = pixelOf(*thumb, widthOf(*thumb) / 2, heightOf(*thumb) / 2);
    EXPECT_THAT(middle, ElementsAre(255, 255, 255, 255));
}

TEST(TheThumbOfASlider, HasTheScaleThatTheScreenHadWhenItWasFirstAskedFor)
{
    const auto slider = make<UISlider>();
    const auto* thumb = slider->currentThumbImage();
    EXPECT_EQ(thumb->scale(), 2);
    desktop::setScreenScale(3);
    EXPECT_EQ(make<UISlider>()->currentThumbImage(), thumb) << "all sliders share it";
    EXPECT_EQ(thumb->scale(), 2);
    EXPECT_EQ(thumb->size(), (CGSize { 28, 28 }));
    desktop::setScreenScale(2);
}

TEST(WritingAnImage, FailsWhereThereIsNoFolderForIt)
{
    const TemporaryRoot root;
    const auto path = QString::fromStdString((root.path() / "missing/dot.png").string());
    EXPECT_FALSE(desktop::writePng(*imageOf(1, 1, { 0, 0, 0, 255 }), path));
}

} // namespace

} // namespace brimsound::tests
