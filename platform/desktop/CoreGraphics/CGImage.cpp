#include "platform/CoreGraphics/CGImage.h"

#include "platform/desktop/CoreGraphics/ImageBitmap.h"
#include "platform/desktop/Foundation/Peer.h"

namespace brimsound {

CGImage::CGImage(Peer* peer)
    : NSObject(peer)
{
}

namespace desktop {

namespace {

/// The native object of every CGImage.
struct ImageBitmap : toolkit::Object {
    explicit ImageBitmap(std::shared_ptr<const Bitmap> pixels)
        : bitmap(std::move(pixels))
    {
    }

    const std::shared_ptr<const Bitmap> bitmap;
};

} // namespace

RetainPtr<CGImage> makeCGImage(std::shared_ptr<const Bitmap> bitmap)
{
    return bitmap ? adopt(&objectOf<CGImage>(*new ImageBitmap(std::move(bitmap)))) : nullptr;
}

const Bitmap& bitmapOf(const CGImage& image)
{
    return *nativeOf<ImageBitmap>(image).bitmap;
}

} // namespace desktop

} // namespace brimsound
