#include "platform/UIKit/UIImage.h"

#include "platform/Foundation/NSData.h"
#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UIScreen.h"
#include "platform/desktop/CoreGraphics/BitmapContext.h"
#include "platform/desktop/CoreGraphics/ImageBitmap.h"
#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/UIKit/BitmapImage.h"
#include "platform/desktop/UIKit/Geometry.h"
#include "platform/desktop/UIKit/Raster.h"

#include <filesystem>

namespace brimsound {

namespace {

/// "plus@2x.png" and "plus@2x~ipad.png" have 2 pixels per point.
double scaleInName(const std::string& path)
{
    auto name = std::filesystem::path(path).stem().string();
    name.resize(std::min(name.size(), name.rfind('~')));
    if (name.ends_with("@2x"))
        return 2;
    return name.ends_with("@3x") ? 3 : 1;
}

const desktop::BitmapImage& native(const UIImage& image)
{
    return desktop::nativeOf<desktop::BitmapImage>(image);
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
    return desktop::cgSize(native(*this).size());
}

CGFloat UIImage::scale() const
{
    return native(*this).scale();
}

CGImageRef UIImage::CGImage() const
{
    return native(*this).picture();
}

void UIImage::drawInRect(const CGRect& rect) const
{
    const auto* context = UIGraphicsGetCurrentContext();
    const auto* picture = CGImage();
    if (context && picture)
        desktop::bitmapContextOf(*context).draw(rect, *picture, desktop::BitmapContext::Top::AtLeastY);
}

namespace desktop {

BitmapImage::BitmapImage(const RetainPtr<CGImage>& picture, double scale)
    : Image({ static_cast<double>(bitmapOf(*picture).width()) / scale,
        static_cast<double>(bitmapOf(*picture).height()) / scale })
    , _picture(picture)
    , _scale(scale)
{
}

void BitmapImage::draw(toolkit::Canvas& canvas, const toolkit::Rect& rect) const
{
    const auto& pixels = bitmapOf(*_picture).pixels();
    canvas.drawPixels({ pixels.bytes, pixels.width, pixels.height, pixels.bytesPerRow }, rect);
}

RetainPtr<UIImage> makeImage(const RetainPtr<CGImage>& picture, double scale)
{
    return picture ? adopt(&objectOf<UIImage>(*new BitmapImage(picture, scale))) : nullptr;
}

} // namespace desktop

} // namespace brimsound
