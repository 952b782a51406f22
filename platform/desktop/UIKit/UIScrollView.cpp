#include "platform/UIKit/UIScrollView.h"

#include "platform/desktop/UIKit/HostedView.h"
#include "toolkit/scroll/ScrollView.h"

namespace brimsound {

UIScrollView::UIScrollView(Peer* peer)
    : UIView(peer)
{
}

CGPoint UIScrollView::contentOffset() const
{
    return desktop::cgPoint(desktop::nativeView(*this).origin());
}

void UIScrollView::setContentOffset(CGPoint offset)
{
    desktop::nativeOf<toolkit::ScrollView>(*this).scrollTo(offset.y);
}

} // namespace brimsound
