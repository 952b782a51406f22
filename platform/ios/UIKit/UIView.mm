#include "platform/UIKit/UIView.h"

#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/UIKit/NativeView.h"

#include <cmath>

using brimsound::ios::existingObjectOf;
using brimsound::ios::ours;

@implementation UIView (BRBaseClass)

- (void)br_baseSetFrame:(CGRect)frame
{
    [self setFrame:frame];
}

- (void)br_baseLayoutSubviews
{
    [self layoutSubviews];
}

@end

/// The peer of a view class that can be derived from.
@interface BRView : UIView
@end

@implementation BRView

- (void)dealloc
{
    brimsound::ios::destroyObjectOf(self);
    [super dealloc];
}

- (void)setFrame:(CGRect)frame
{
    if (auto* view = existingObjectOf<brimsound::UIView>(self))
        view->setFrame(ours(frame));
    else
        [super setFrame:frame];
}

- (void)br_baseSetFrame:(CGRect)frame
{
    [super setFrame:frame];
}

- (void)layoutSubviews
{
    if (auto* view = existingObjectOf<brimsound::UIView>(self))
        view->layoutSubviews();
    else
        [super layoutSubviews];
}

- (void)br_baseLayoutSubviews
{
    [super layoutSubviews];
}

- (BOOL)canBecomeFirstResponder
{
    auto* view = existingObjectOf<brimsound::UIView>(self);
    return view && view->canBecomeFirstResponder();
}

@end

namespace brimsound {

using ios::native;
using ios::nativeOf;
using ios::nativeView;
using ios::objectOf;
using ios::retainedObjectOf;

namespace {

/// The platform raises an exception for a view whose center is NaN, which an infinite frame can cause.
bool isFinite(const CGRect& frame)
{
    return std::isfinite(frame.origin.x) && std::isfinite(frame.origin.y) && std::isfinite(frame.size.width)
        && std::isfinite(frame.size.height);
}

} // namespace

UIView::UIView(const CGRect& frame)
    : UIView(ios::peer([[BRView alloc] initWithFrame:native(frame)]))
{
}

UIView::UIView(Peer* peer)
    : NSObject(peer)
{
}

UIView::~UIView() = default;

CGRect UIView::frame() const
{
    return ours([nativeView(*this) frame]);
}

void UIView::setFrame(const CGRect& frame)
{
    if (isFinite(frame))
        [nativeView(*this) br_baseSetFrame:native(frame)];
}

CGRect UIView::bounds() const
{
    return ours([nativeView(*this) bounds]);
}

UIViewAutoresizing UIView::autoresizingMask() const
{
    return [nativeView(*this) autoresizingMask];
}

void UIView::setAutoresizingMask(UIViewAutoresizing mask)
{
    [nativeView(*this) setAutoresizingMask:mask];
}

UIView* UIView::superview() const
{
    return objectOf<UIView>([nativeView(*this) superview]);
}

std::vector<RetainPtr<UIView>> UIView::subviews() const
{
    std::vector<RetainPtr<UIView>> subviews;
    for (::UIView* subview in [nativeView(*this) subviews])
        subviews.push_back(retainedObjectOf<UIView>(subview));
    return subviews;
}

void UIView::addSubview(UIView& view)
{
    [nativeView(*this) addSubview:nativeView(view)];
}

void UIView::removeFromSuperview()
{
    [nativeView(*this) removeFromSuperview];
}

void UIView::setNeedsLayout()
{
    [nativeView(*this) setNeedsLayout];
}

void UIView::layoutIfNeeded()
{
    [nativeView(*this) layoutIfNeeded];
}

void UIView::layoutSubviews()
{
    [nativeView(*this) br_baseLayoutSubviews];
}

RetainPtr<UIColor> UIView::backgroundColor() const
{
    return retainedObjectOf<UIColor>([nativeView(*this) backgroundColor]);
}

void UIView::setBackgroundColor(RetainPtr<UIColor> color)
{
    [nativeView(*this) setBackgroundColor:nativeOf(color.get())];
}

CGFloat UIView::alpha() const
{
    return [nativeView(*this) alpha];
}

void UIView::setAlpha(CGFloat alpha)
{
    [nativeView(*this) setAlpha:alpha];
}

bool UIView::isHidden() const
{
    return [nativeView(*this) isHidden];
}

void UIView::setHidden(bool hidden)
{
    [nativeView(*this) setHidden:hidden];
}

bool UIView::clipsToBounds() const
{
    return [nativeView(*this) clipsToBounds];
}

void UIView::setClipsToBounds(bool clips)
{
    [nativeView(*this) setClipsToBounds:clips];
}

bool UIView::isUserInteractionEnabled() const
{
    return [nativeView(*this) isUserInteractionEnabled];
}

void UIView::setUserInteractionEnabled(bool enabled)
{
    [nativeView(*this) setUserInteractionEnabled:enabled];
}

long UIView::tag() const
{
    return [nativeView(*this) tag];
}

void UIView::setTag(long tag)
{
    [nativeView(*this) setTag:tag];
}

std::string UIView::accessibilityLabel() const
{
    return ios::textOf([nativeView(*this) accessibilityLabel]);
}

void UIView::setAccessibilityLabel(const std::string& label)
{
    // With nil, unlike with an empty string, the platform derives a label itself.
    [nativeView(*this) setAccessibilityLabel:label.empty() ? nil : ios::nativeText(label)];
}

bool UIView::isAccessibilityElement() const
{
    return [nativeView(*this) isAccessibilityElement];
}

void UIView::setIsAccessibilityElement(bool isElement)
{
    [nativeView(*this) setIsAccessibilityElement:isElement];
}

UIAccessibilityTraits UIView::accessibilityTraits() const
{
    return [nativeView(*this) accessibilityTraits];
}

void UIView::setAccessibilityTraits(UIAccessibilityTraits traits)
{
    [nativeView(*this) setAccessibilityTraits:traits];
}

UIView* UIView::viewWithTag(long tag)
{
    return objectOf<UIView>([nativeView(*this) viewWithTag:tag]);
}

bool UIView::becomeFirstResponder()
{
    return [nativeView(*this) becomeFirstResponder];
}

void UIView::resignFirstResponder()
{
    [nativeView(*this) resignFirstResponder];
}

bool UIView::isFirstResponder() const
{
    return [nativeView(*this) isFirstResponder];
}

void UIView::animateWithDurationAnimations(double seconds, const std::function<void()>& animations)
{
    // Equivalent to animateWithDuration:animations:, which needs a block.
    [::UIView beginAnimations:nil context:NULL];
    [::UIView setAnimationDuration:seconds];
    animations();
    [::UIView commitAnimations];
}

} // namespace brimsound
