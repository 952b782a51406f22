#include "platform/UIKit/UIImage.h"

#include "platform/desktop/UIKit/ImagePeer.h"

namespace brimsound {

UIImage::UIImage(Peer* peer)
    : NSObject(peer)
{
}

CGSize UIImage::size() const
{
    return desktop::peerOf(*this).size;
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

} // namespace

const ImagePeer& peerOf(const UIImage& image)
{
    return static_cast<const ImagePeer&>(image.peer());
}

RetainPtr<UIImage> makeImage(ImagePeer* peer)
{
    return make<Image>(peer);
}

} // namespace desktop

} // namespace brimsound
