#include "platform/CoreGraphics/CGImage.h"

#include "platform/desktop/CoreGraphics/CGImagePeer.h"
#include "platform/desktop/Foundation/Peer.h"

namespace brimsound {

CGImage::CGImage(Peer* peer)
    : NSObject(peer)
{
}

namespace desktop {

namespace {

struct CGImagePeer : toolkit::Object {
    explicit CGImagePeer(std::shared_ptr<const Bitmap> pixels)
        : bitmap(std::move(pixels))
    {
    }

    const std::shared_ptr<const Bitmap> bitmap;
};

class Image : public CGImage {
public:
    explicit Image(std::shared_ptr<const Bitmap> bitmap)
        : CGImage(desktop::peer(new CGImagePeer(std::move(bitmap))))
    {
    }
};

} // namespace

RetainPtr<CGImage> makeCGImage(std::shared_ptr<const Bitmap> bitmap)
{
    return bitmap ? RetainPtr<CGImage>(make<Image>(std::move(bitmap))) : nullptr;
}

const Bitmap& bitmapOf(const CGImage& image)
{
    return *nativeOf<CGImagePeer>(image).bitmap;
}

} // namespace desktop

} // namespace brimsound
