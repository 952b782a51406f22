#include "platform/UIKit/UIImageView.h"

#include "platform/desktop/UIKit/HostedView.h"
#include "toolkit/image/ImageView.h"

namespace brimsound {

namespace {

toolkit::ImageView& native(const UIImageView& view)
{
    return desktop::nativeOf<toolkit::ImageView>(view);
}

UIImage* imageOf(toolkit::Image* image)
{
    return image ? &desktop::objectOf<UIImage>(*image) : nullptr;
}

} // namespace

UIImageView::UIImageView(Peer* peer)
    : UIView(peer)
{
}

UIImageView::UIImageView(const CGRect& frame)
    : UIImageView(desktop::peer(new desktop::Hosted<toolkit::ImageView>(desktop::toolkitRect(frame))))
{
}

UIImage* UIImageView::image() const
{
    return imageOf(native(*this).image());
}

void UIImageView::setImage(RetainPtr<UIImage> image)
{
    native(*this).setImage(desktop::nativeOf<toolkit::Image>(image.get()));
}

UIImage* UIImageView::highlightedImage() const
{
    return imageOf(native(*this).highlightedImage());
}

void UIImageView::setHighlightedImage(RetainPtr<UIImage> image)
{
    native(*this).setHighlightedImage(desktop::nativeOf<toolkit::Image>(image.get()));
}

bool UIImageView::isHighlighted() const
{
    return native(*this).isHighlighted();
}

void UIImageView::setHighlighted(bool highlighted)
{
    native(*this).setHighlighted(highlighted);
}

} // namespace brimsound
