#include "platform/UIKit/UIImage.h"

#include "platform/Foundation/NSData.h"
#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UIScreen.h"
#include "platform/desktop/CoreGraphics/CGContextPeer.h"
#include "platform/desktop/CoreGraphics/CGImagePeer.h"
#include "platform/desktop/UIKit/Raster.h"

#include <filesystem>

namespace brimsound {

namespace {

/// "plus@2x.png" and "plus@2x~ipad.png" are at 2 pixels a point.
double scaleInName(const std::string& path)
{
    auto name = std::filesystem::path(path).stem().string();
    name.resize(std::min(name.size(), name.rfind('~')));
    if (name.ends_with("@2x"))
        return 2;
    return name.ends_with("@3x") ? 3 : 1;
}

} // namespace

UIImage::UIImage(Peer* peer)
    : NSObject(peer)
{
}

RetainPtr<UIImage> UIImage::imageWithCGImage(CGImageRef picture)
{
    return desktop::makeImage(brimsound::retain(picture), 1);
}

RetainPtr<UIImage> UIImage::imageWithContentsOfFile(const std::string& path)
{
    const auto bytes = dataWithContentsOfFile(path);
    return bytes ? desktop::makeImage(desktop::makeCGImage(desktop::readPng(*bytes)), scaleInName(path))
                 : nullptr;
}

CGSize UIImage::size() const
{
    return desktop::peerOf(*this).size;
}

CGFloat UIImage::scale() const
{
    return desktop::peerOf(*this).scale();
}

CGImageRef UIImage::CGImage() const
{
    return desktop::peerOf(*this).picture();
}

void UIImage::drawInRect(const CGRect& rect) const
{
    const auto* context = UIGraphicsGetCurrentContext();
    const auto* picture = CGImage();
    if (context && picture)
        desktop::peerOf(*context).draw(rect, *picture, desktop::CGContextPeer::Top::AtLeastY);
}

namespace desktop {

namespace {

class Image : public UIImage {
public:
    explicit Image(ImagePeer* peer)
        : UIImage(peer)
    {
    }
};

struct BitmapImagePeer : ImagePeer {
    BitmapImagePeer(const RetainPtr<CGImage>& picture, double scale)
        : _picture(picture)
        , _scale(scale)
    {
        const auto& bitmap = bitmapOf(*picture);
        size = { static_cast<double>(bitmap.width()) / scale, static_cast<double>(bitmap.height()) / scale };
    }

    void draw(Canvas& canvas, const CGRect& rect) const override
    {
        canvas.drawBitmap(bitmapOf(*_picture), rect);
    }

    CGImageRef picture() const override { return _picture.get(); }
    double scale() const override { return _scale; }

private:
    const RetainPtr<CGImage> _picture;
    const double _scale;
};

} // namespace

void ImagePeer::makePixels() const
{
    if (_scale != 0)
        return;
    _scale = UIScreen::mainScreen().scale();
    _picture = makeCGImage(rasterised(*this, _scale));
}

CGImageRef ImagePeer::picture() const
{
    makePixels();
    return _picture.get();
}

double ImagePeer::scale() const
{
    makePixels();
    return _scale;
}

const ImagePeer& peerOf(const UIImage& image)
{
    return static_cast<const ImagePeer&>(image.peer());
}

RetainPtr<UIImage> makeImage(ImagePeer* peer)
{
    return make<Image>(peer);
}

RetainPtr<UIImage> makeImage(const RetainPtr<CGImage>& picture, double scale)
{
    return picture ? makeImage(new BitmapImagePeer(picture, scale)) : nullptr;
}

} // namespace desktop

} // namespace brimsound
