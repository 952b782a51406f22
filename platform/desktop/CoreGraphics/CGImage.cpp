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

struct CGImagePeer : Peer {
    explicit CGImagePeer(std::shared_ptr<const Bitmap> pixels)
        : bitmap(std::move(pixels))
    {
    }

    const std::shared_ptr<const Bitmap> bitmap;
};

class Image : public CGImage {
public:
    explicit Image(std::shared_ptr<const Bitmap> bitmap)
        : CGImage(new CGImagePeer(std::move(bitmap)))
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
    return *static_cast<const CGImagePeer&>(image.peer()).bitmap;
}

} // namespace desktop

} // namespace brimsound
