#include "platform/UIKit/UIScrollView.h"

#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>

#include <algorithm>

namespace brimsound {

namespace {

::UIScrollView* nativeOf(const UIScrollView& view)
{
    return ios::nativeOf(view);
}

} // namespace

UIScrollView::UIScrollView(Peer* peer)
    : UIView(peer)
{
}

CGPoint UIScrollView::contentOffset() const
{
    return ios::ours([nativeOf(*this) contentOffset]);
}

void UIScrollView::setContentOffset(CGPoint offset)
{
    // The platform does not limit the offset to the edges of the content.
    ::UIScrollView* view = nativeOf(*this);
    const auto lowest = std::max(0.0, [view contentSize].height - [view bounds].size.height);
    offset.x = [view contentOffset].x;
    offset.y = std::clamp(offset.y, 0.0, lowest);
    [view setContentOffset:ios::native(offset)];
}

} // namespace brimsound
