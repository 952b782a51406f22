#include "platform/UIKit/UIView.h"

#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"
#include "platform/desktop/UIKit/Color.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "toolkit/image/ImageView.h"
#include "toolkit/text/Label.h"
#include "toolkit/window/Window.h"

namespace brimsound {

using desktop::nativeView;

namespace {

/// Null for a view that the toolkit created.
desktop::HostedView* hostedView(const UIView& view)
{
    return dynamic_cast<desktop::HostedView*>(&nativeView(view));
}

} // namespace

UIView::UIView(const CGRect& frame)
    : UIView(desktop::peer(new desktop::Hosted<toolkit::View>(desktop::toolkitRect(frame))))
{
}

UIView::UIView(Peer* peer)
    : NSObject(peer)
{
}

UIView::~UIView() = default;

CGRect UIView::frame() const
{
    return desktop::cgRect(nativeView(*this).frame());
}

void UIView::setFrame(const CGRect& frame)
{
    nativeView(*this).View::setFrame(desktop::toolkitRect(frame));
}

CGRect UIView::bounds() const
{
    return desktop::cgRect(nativeView(*this).bounds());
}

UIViewAutoresizing UIView::autoresizingMask() const
{
    const auto& view = nativeView(*this);
    return (view.followsWidth() ? UIViewAutoresizingFlexibleWidth : UIViewAutoresizingNone)
        | (view.followsHeight() ? UIViewAutoresizingFlexibleHeight : UIViewAutoresizingNone);
}

void UIView::setAutoresizingMask(UIViewAutoresizing mask)
{
    nativeView(*this).setFollowsParent(
        mask & UIViewAutoresizingFlexibleWidth, mask & UIViewAutoresizingFlexibleHeight);
}

UIView* UIView::superview() const
{
    return desktop::viewOf(nativeView(*this).parent());
}

std::vector<RetainPtr<UIView>> UIView::subviews() const
{
    std::vector<RetainPtr<UIView>> views;
    for (const auto& child : nativeView(*this).children())
        views.push_back(brimsound::retain(desktop::viewOf(child.get())));
    return views;
}

void UIView::addSubview(UIView& view)
{
    nativeView(*this).add(nativeView(view));
}

void UIView::removeFromSuperview()
{
    nativeView(*this).removeFromParent();
}

void UIView::setNeedsLayout()
{
    nativeView(*this).setNeedsLayout();
}

void UIView::layoutIfNeeded()
{
    nativeView(*this).layOutIfNeeded();
}

void UIView::layoutSubviews()
{
    if (auto* hosted = hostedView(*this))
        hosted->layOutItself();
}

RetainPtr<UIColor> UIView::backgroundColor() const
{
    const auto* hosted = hostedView(*this);
    return hosted && hosted->backgroundColor() ? hosted->backgroundColor()
                                               : desktop::uiColor(nativeView(*this).background());
}

void UIView::setBackgroundColor(RetainPtr<UIColor> color)
{
    nativeView(*this).setBackground(desktop::toolkitColor(color));
    if (auto* hosted = hostedView(*this))
        hosted->setBackgroundColor(std::move(color));
}

CGFloat UIView::alpha() const
{
    return nativeView(*this).alpha();
}

void UIView::setAlpha(CGFloat alpha)
{
    nativeView(*this).setAlpha(alpha);
}

bool UIView::isHidden() const
{
    return nativeView(*this).isHidden();
}

void UIView::setHidden(bool hidden)
{
    nativeView(*this).setHidden(hidden);
}

bool UIView::clipsToBounds() const
{
    return nativeView(*this).clips();
}

void UIView::setClipsToBounds(bool clips)
{
    nativeView(*this).setClips(clips);
}

bool UIView::isUserInteractionEnabled() const
{
    return nativeView(*this).isInteractive();
}

void UIView::setUserInteractionEnabled(bool enabled)
{
    nativeView(*this).setInteractive(enabled);
}

bool UIView::becomeFirstResponder()
{
    auto* window = nativeView(*this).window();
    if (!window || !canBecomeFirstResponder())
        return false;
    window->focus().giveTo(nativeView(*this));
    return true;
}

void UIView::resignFirstResponder()
{
    if (isFirstResponder())
        nativeView(*this).window()->focus().takeFrom(nativeView(*this));
}

bool UIView::isFirstResponder() const
{
    const auto* window = nativeView(*this).window();
    return window && canBecomeFirstResponder() && window->focus().isGivenTo(nativeView(*this));
}

long UIView::tag() const
{
    return nativeView(*this).tag();
}

void UIView::setTag(long tag)
{
    nativeView(*this).setTag(tag);
}

UIView* UIView::viewWithTag(long tag)
{
    return desktop::viewOf(nativeView(*this).withTag(tag));
}

std::string UIView::accessibilityLabel() const
{
    return nativeView(*this).label();
}

void UIView::setAccessibilityLabel(const std::string& label)
{
    nativeView(*this).setLabel(label);
}

UIAccessibilityTraits UIView::accessibilityTraits() const
{
    return nativeView(*this).isChosen() ? UIAccessibilityTraitSelected : UIAccessibilityTraitNone;
}

void UIView::setAccessibilityTraits(UIAccessibilityTraits traits)
{
    nativeView(*this).setChosen(traits & UIAccessibilityTraitSelected);
}

bool UIView::isAccessibilityElement() const
{
    return nativeView(*this).isRead();
}

void UIView::setIsAccessibilityElement(bool isElement)
{
    nativeView(*this).setRead(isElement);
}

void UIView::animateWithDurationAnimations(double seconds, const std::function<void()>& animations)
{
    toolkit::View::animate(seconds, animations);
}

namespace desktop {

UIView* viewOf(toolkit::View* view)
{
    if (!view)
        return nullptr;
    if (dynamic_cast<toolkit::Label*>(view))
        return &objectOf<UILabel>(*view);
    if (dynamic_cast<toolkit::ImageView*>(view))
        return &objectOf<UIImageView>(*view);
    return &objectOf<UIView>(*view);
}

} // namespace desktop

} // namespace brimsound
