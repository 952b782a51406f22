#include "platform/UIKit/UIScrollView.h"

#include "platform/desktop/UIKit/ScrollPeer.h"

namespace brimsound {

UIScrollView::UIScrollView(Peer* peer)
    : UIView(peer)
{
}

CGPoint UIScrollView::contentOffset() const
{
    return desktop::scrollPeerOf(*this).origin;
}

void UIScrollView::setContentOffset(CGPoint offset)
{
    desktop::scrollPeerOf(*this).scrollTo(offset.y);
}

} // namespace brimsound
