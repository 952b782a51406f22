#include "platform/UIKit/UIImageView.h"

#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>

namespace brimsound {

using ios::objectOf;

namespace {

::UIImageView* nativeOf(const UIImageView& view)
{
    return ios::nativeOf(view);
}

} // namespace

UIImageView::UIImageView(const CGRect& frame)
    : UIImageView(ios::peer([[::UIImageView alloc] initWithFrame:ios::native(frame)]))
{
}

UIImageView::UIImageView(Peer* peer)
    : UIView(peer)
{
}

UIImage* UIImageView::image() const
{
    return objectOf<UIImage>([nativeOf(*this) image]);
}

void UIImageView::setImage(RetainPtr<UIImage> image)
{
    [nativeOf(*this) setImage:ios::nativeOf(image.get())];
}

UIImage* UIImageView::highlightedImage() const
{
    return objectOf<UIImage>([nativeOf(*this) highlightedImage]);
}

void UIImageView::setHighlightedImage(RetainPtr<UIImage> image)
{
    [nativeOf(*this) setHighlightedImage:ios::nativeOf(image.get())];
}

bool UIImageView::isHighlighted() const
{
    return [nativeOf(*this) isHighlighted];
}

void UIImageView::setHighlighted(bool highlighted)
{
    [nativeOf(*this) setHighlighted:highlighted];
}

} // namespace brimsound
