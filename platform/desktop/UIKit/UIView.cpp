#include "platform/UIKit/UIView.h"

#include "platform/desktop/UIKit/ViewPeer.h"

#include <algorithm>

namespace brimsound {

using desktop::peerOf;
using desktop::ViewPeer;

UIView::UIView(const CGRect& frame)
    : UIView(new ViewPeer)
{
    peerOf(*this).frame = frame;
}

UIView::UIView(Peer* peer)
    : NSObject(peer)
{
    peerOf(*this).view = this;
}

UIView::~UIView()
{
    for (const auto& subview : peerOf(*this).subviews)
        peerOf(*subview).superview = nullptr;
}

CGRect UIView::frame() const
{
    return peerOf(*this).frame;
}

void UIView::setFrame(const CGRect& frame)
{
    auto& peer = peerOf(*this);
    if (peer.frame == frame)
        return;
    desktop::setNeedsDisplay(*this);
    if (peer.frame.size != frame.size)
        peer.needsLayout = true;
    peer.frame = frame;
    desktop::setNeedsDisplay(*this);
}

CGRect UIView::bounds() const
{
    return desktop::boundsOf(peerOf(*this));
}

UIView* UIView::superview() const
{
    return peerOf(*this).superview;
}

const std::vector<RetainPtr<UIView>>& UIView::subviews() const
{
    return peerOf(*this).subviews;
}

void UIView::addSubview(UIView& view)
{
    const auto kept = brimsound::retain(&view);
    view.removeFromSuperview();
    peerOf(*this).subviews.push_back(kept);
    peerOf(view).superview = this;
    setNeedsLayout();
    desktop::setNeedsDisplay(view);
}

void UIView::removeFromSuperview()
{
    auto* superview = std::exchange(peerOf(*this).superview, nullptr);
    if (!superview)
        return;
    desktop::setNeedsDisplay(*superview, frame());
    const auto kept = brimsound::retain(this);
    std::erase(peerOf(*superview).subviews, kept);
}

void UIView::setNeedsLayout()
{
    peerOf(*this).needsLayout = true;
}

void UIView::layoutSubviews() { }

RetainPtr<UIColor> UIView::backgroundColor() const
{
    return peerOf(*this).backgroundColor;
}

void UIView::setBackgroundColor(RetainPtr<UIColor> color)
{
    peerOf(*this).backgroundColor = std::move(color);
    desktop::setNeedsDisplay(*this);
}

CGFloat UIView::alpha() const
{
    return peerOf(*this).alpha;
}

void UIView::setAlpha(CGFloat alpha)
{
    peerOf(*this).alpha = std::clamp(alpha, 0.0, 1.0);
    desktop::setNeedsDisplay(*this);
}

bool UIView::isHidden() const
{
    return peerOf(*this).hidden;
}

void UIView::setHidden(bool hidden)
{
    peerOf(*this).hidden = hidden;
    desktop::setNeedsDisplay(*this);
}

} // namespace brimsound
