#include "platform/UIKit/UIView.h"

#include "platform/desktop/UIKit/ViewPeer.h"
#include "platform/desktop/UIKit/Window.h"

#include <algorithm>
#include <utility>

namespace brimsound {

using desktop::peerOf;
using desktop::ViewPeer;

namespace {

bool isFlexible(const RetainPtr<UIView>& view)
{
    return view->autoresizingMask() != UIViewAutoresizingNone;
}

/// Has the subviews follow a change of their superview's size.
void resizeSubviews(const std::vector<RetainPtr<UIView>>& subviews, CGSize before, CGSize after)
{
    for (const auto& subview : subviews) {
        const auto mask = subview->autoresizingMask();
        if (mask == UIViewAutoresizingNone)
            continue;
        auto frame = subview->frame();
        if (mask & UIViewAutoresizingFlexibleWidth)
            frame.size.width += after.width - before.width;
        if (mask & UIViewAutoresizingFlexibleHeight)
            frame.size.height += after.height - before.height;
        subview->setFrame(frame);
    }
}

} // namespace

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
    desktop::startFrom(peer, peer.shownFrame(), &desktop::Animation::frame);
    const auto before = std::exchange(peer.frame, frame).size;
    if (before != frame.size) {
        peer.needsLayout = true;
        // A copy, as a subview that is resized may change the list; most have none that follows.
        if (std::ranges::any_of(peer.subviews, isFlexible))
            resizeSubviews(subviews(), before, frame.size);
    }
    desktop::setNeedsDisplay(*this);
}

CGRect UIView::bounds() const
{
    return desktop::boundsOf(peerOf(*this));
}

UIViewAutoresizing UIView::autoresizingMask() const
{
    return peerOf(*this).autoresizingMask;
}

void UIView::setAutoresizingMask(UIViewAutoresizing mask)
{
    peerOf(*this).autoresizingMask = mask;
}

UIView* UIView::superview() const
{
    return peerOf(*this).superview;
}

std::vector<RetainPtr<UIView>> UIView::subviews() const
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
    desktop::accessibleChanged(view, desktop::AccessibleChange::Shown);
}

void UIView::removeFromSuperview()
{
    if (!superview())
        return;
    desktop::accessibleChanged(*this, desktop::AccessibleChange::WillHide);
    if (auto* window = desktop::windowOf(*this))
        window->focus().forgetWithin(*this);
    desktop::setNeedsDisplay(*this);
    const auto kept = brimsound::retain(this);
    auto* former = std::exchange(peerOf(*this).superview, nullptr);
    std::erase(peerOf(*former).subviews, kept);
}

void UIView::setNeedsLayout()
{
    peerOf(*this).needsLayout = true;
}

void UIView::layoutIfNeeded()
{
    desktop::layOutTree(*this);
}

void UIView::layoutSubviews() { }

RetainPtr<UIColor> UIView::backgroundColor() const
{
    return peerOf(*this).backgroundColor;
}

void UIView::setBackgroundColor(RetainPtr<UIColor> color)
{
    auto& peer = peerOf(*this);
    if (desktop::colorOf(color) != desktop::colorOf(peer.backgroundColor)) {
        desktop::startFrom(peer, peer.shownBackground(), &desktop::Animation::background);
        desktop::setNeedsDisplay(*this);
    }
    peer.backgroundColor = std::move(color);
}

CGFloat UIView::alpha() const
{
    return peerOf(*this).alpha;
}

void UIView::setAlpha(CGFloat alpha)
{
    alpha = std::clamp(alpha, 0.0, 1.0);
    auto& peer = peerOf(*this);
    if (peer.alpha == alpha)
        return;
    desktop::startFrom(peer, peer.shownAlpha(), &desktop::Animation::alpha);
    peer.alpha = alpha;
    desktop::setNeedsDisplay(*this);
}

bool UIView::isHidden() const
{
    return peerOf(*this).hidden;
}

void UIView::setHidden(bool hidden)
{
    if (peerOf(*this).hidden == hidden)
        return;
    // Before and after, as what is hidden asks for no drawing.
    desktop::setNeedsDisplay(*this);
    peerOf(*this).hidden = hidden;
    desktop::setNeedsDisplay(*this);
}

bool UIView::clipsToBounds() const
{
    return peerOf(*this).clipsToBounds;
}

void UIView::setClipsToBounds(bool clips)
{
    if (peerOf(*this).clipsToBounds == clips)
        return;
    // Before and after, as what is clipped asks for less drawing.
    desktop::setNeedsDisplay(*this);
    peerOf(*this).clipsToBounds = clips;
    desktop::setNeedsDisplay(*this);
}

bool UIView::isUserInteractionEnabled() const
{
    return peerOf(*this).userInteractionEnabled;
}

void UIView::setUserInteractionEnabled(bool enabled)
{
    peerOf(*this).userInteractionEnabled = enabled;
}

bool UIView::becomeFirstResponder()
{
    auto* window = desktop::windowOf(*this);
    if (!window || !canBecomeFirstResponder())
        return false;
    window->focus().giveTo(*this);
    return true;
}

void UIView::resignFirstResponder()
{
    if (isFirstResponder())
        desktop::windowOf(*this)->focus().takeFrom(*this);
}

bool UIView::isFirstResponder() const
{
    auto* window = desktop::windowOf(*this);
    return window && canBecomeFirstResponder() && window->focus().isGivenTo(*this);
}

long UIView::tag() const
{
    return peerOf(*this).tag;
}

void UIView::setTag(long tag)
{
    peerOf(*this).tag = tag;
}

std::string UIView::accessibilityLabel() const
{
    return peerOf(*this).accessibilityLabel;
}

void UIView::setAccessibilityLabel(const std::string& label)
{
    peerOf(*this).accessibilityLabel = label;
}

UIAccessibilityTraits UIView::accessibilityTraits() const
{
    return peerOf(*this).accessibilityTraits;
}

void UIView::setAccessibilityTraits(UIAccessibilityTraits traits)
{
    peerOf(*this).accessibilityTraits = traits;
}

UIView* UIView::viewWithTag(long tag)
{
    if (this->tag() == tag)
        return this;
    for (const auto& subview : peerOf(*this).subviews) {
        if (auto* found = subview->viewWithTag(tag))
            return found;
    }
    return nullptr;
}

} // namespace brimsound
