#include "platform/UIKit/UIImageView.h"

#include "platform/desktop/UIKit/CellPeer.h"
#include "platform/desktop/UIKit/ImagePeer.h"

namespace brimsound {

namespace {

struct ImageViewPeer : desktop::ViewPeer {
    RetainPtr<UIImage> image;
    RetainPtr<UIImage> highlightedImage;
    bool highlighted = false;

    void draw(desktop::Canvas& canvas) const override
    {
        const auto& shown = highlighted && highlightedImage ? highlightedImage : image;
        if (shown)
            desktop::peerOf(*shown).draw(canvas, desktop::boundsOf(*this));
    }
};

ImageViewPeer& peerOf(const UIImageView& view)
{
    return static_cast<ImageViewPeer&>(view.peer());
}

} // namespace

UIImageView::UIImageView(Peer* peer)
    : UIView(peer)
{
}

UIImageView::UIImageView(const CGRect& frame)
    : UIImageView(new ImageViewPeer)
{
    peerOf(*this).frame = frame;
}

UIImage* UIImageView::image() const
{
    return peerOf(*this).image.get();
}

void UIImageView::setImage(RetainPtr<UIImage> image)
{
    if (peerOf(*this).image == image)
        return;
    peerOf(*this).image = std::move(image);
    desktop::setNeedsDisplay(*this);
    desktop::rowContentsChanged(*this);
}

UIImage* UIImageView::highlightedImage() const
{
    return peerOf(*this).highlightedImage.get();
}

void UIImageView::setHighlightedImage(RetainPtr<UIImage> image)
{
    if (peerOf(*this).highlightedImage == image)
        return;
    peerOf(*this).highlightedImage = std::move(image);
    desktop::setNeedsDisplay(*this);
}

bool UIImageView::isHighlighted() const
{
    return peerOf(*this).highlighted;
}

void UIImageView::setHighlighted(bool highlighted)
{
    if (peerOf(*this).highlighted == highlighted)
        return;
    peerOf(*this).highlighted = highlighted;
    desktop::setNeedsDisplay(*this);
}

} // namespace brimsound
