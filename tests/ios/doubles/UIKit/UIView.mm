#include "tests/ios/doubles/UIKit/Assign.h"
#include "tests/ios/doubles/UIKit/Color.h"
#include "tests/ios/doubles/UIKit/HostedView.h"
#include "tests/ios/doubles/UIKit/Text.h"
#include "toolkit/image/ImageView.h"
#include "toolkit/text/Label.h"
#include "toolkit/window/Window.h"

#import <QuartzCore/QuartzCore.h>

#include <cmath>

using namespace brimsound;
using doubles::nativeView;
using doubles::viewOf;

namespace {

/// The only trait that is kept.
constexpr UIAccessibilityTraits selected = 1 << 3;

/// A layer is placed by its middle.
void refuseNaN(const toolkit::Rect& frame)
{
    const auto [x, y] = frame.middle();
    if (std::isnan(x) || std::isnan(y))
        [NSException raise:@"CALayerInvalidGeometry" format:@"CALayer position contains NaN: [%f %f]", x, y];
}

} // namespace

@implementation UIView

// In here, because the variables are not visible elsewhere.

toolkit::View& doubles::nativeView(UIView* view)
{
    return *static_cast<toolkit::View*>(view->_native);
}

UIViewController* doubles::controllerOf(UIView* view)
{
    return view ? view->_controller : nil;
}

void doubles::setController(UIView* view, UIViewController* controller)
{
    if (view)
        view->_controller = controller;
}

- (instancetype)init
{
    return [self initWithFrame:CGRect {}];
}

- (instancetype)initWithFrame:(CGRect)frame
{
    const auto rect = doubles::toolkitRect(frame);
    refuseNaN(rect);
    return [self initWithNative:new doubles::Hosted<toolkit::View>(rect)];
}

- (instancetype)initWithNative:(toolkit::View*)native
{
    self = [super init];
    if (self) {
        _native = native;
        native->setCounterpart(self, [](void* view) { [static_cast<UIView*>(view) dealloc]; });
    }
    return self;
}

- (void)dealloc
{
    [_backgroundColor release];
    [_layer release];
    [super dealloc];
}

- (instancetype)retain
{
    nativeView(self).retain();
    return self;
}

- (oneway void)release
{
    nativeView(self).release();
}

- (NSUInteger)retainCount
{
    return nativeView(self).retainCount();
}

- (CGRect)frame
{
    return doubles::cgRect(nativeView(self).frame());
}

- (void)setFrame:(CGRect)frame
{
    const auto rect = doubles::toolkitRect(frame);
    refuseNaN(rect);
    nativeView(self).View::setFrame(rect);
}

- (CGRect)bounds
{
    return doubles::cgRect(nativeView(self).bounds());
}

- (void)setBounds:(CGRect)bounds
{
    auto& native = nativeView(self);
    const auto [origin, size] = doubles::toolkitRect(bounds);
    native.setOrigin(origin);
    // The middle stays where it is.
    const auto former = native.frame();
    const auto frame = toolkit::inset(
        former, (former.size.width - size.width) / 2, (former.size.height - size.height) / 2);
    refuseNaN(frame);
    native.View::setFrame({ frame.origin, size });
}

- (UIViewAutoresizing)autoresizingMask
{
    const auto& native = nativeView(self);
    return (native.followsWidth() ? UIViewAutoresizingFlexibleWidth : UIViewAutoresizingNone)
        | (native.followsHeight() ? UIViewAutoresizingFlexibleHeight : UIViewAutoresizingNone);
}

- (void)setAutoresizingMask:(UIViewAutoresizing)mask
{
    nativeView(self).setFollowsParent(
        mask & UIViewAutoresizingFlexibleWidth, mask & UIViewAutoresizingFlexibleHeight);
}

- (UIView*)superview
{
    return viewOf(nativeView(self).parent());
}

- (NSArray*)subviews
{
    NSMutableArray* const views = [NSMutableArray array];
    for (const auto& child : nativeView(self).children())
        [views addObject:viewOf(child.get())];
    return views;
}

- (UIWindow*)window
{
    return static_cast<UIWindow*>(viewOf(nativeView(self).window()));
}

- (void)addSubview:(UIView*)view
{
    if (view)
        nativeView(self).add(nativeView(view));
}

- (void)insertSubview:(UIView*)view atIndex:(NSInteger)index
{
    if (view)
        nativeView(self).insert(nativeView(view), static_cast<std::size_t>(index));
}

- (void)removeFromSuperview
{
    nativeView(self).removeFromParent();
}

- (void)setNeedsLayout
{
    nativeView(self).setNeedsLayout();
}

- (void)layoutIfNeeded
{
    nativeView(self).layOutIfNeeded();
}

- (void)layoutSubviews
{
    // The views that the toolkit made for itself have nothing to lay out.
    if (auto* hosted = dynamic_cast<doubles::HostedView*>(&nativeView(self)))
        hosted->layOutItself();
}

- (UIColor*)backgroundColor
{
    return _backgroundColor ? _backgroundColor : doubles::uiColor(nativeView(self).background());
}

- (void)setBackgroundColor:(UIColor*)color
{
    nativeView(self).setBackground(doubles::toolkitColor(color));
    doubles::assignCopied(_backgroundColor, color);
}

- (CGFloat)alpha
{
    return nativeView(self).alpha();
}

- (void)setAlpha:(CGFloat)alpha
{
    nativeView(self).setAlpha(alpha);
}

- (BOOL)isHidden
{
    return nativeView(self).isHidden();
}

- (void)setHidden:(BOOL)hidden
{
    nativeView(self).setHidden(hidden);
}

- (BOOL)clipsToBounds
{
    return nativeView(self).clips();
}

- (void)setClipsToBounds:(BOOL)clips
{
    nativeView(self).setClips(clips);
}

- (BOOL)isUserInteractionEnabled
{
    return nativeView(self).isInteractive();
}

- (void)setUserInteractionEnabled:(BOOL)enabled
{
    nativeView(self).setInteractive(enabled);
}

- (CALayer*)layer
{
    if (!_layer)
        _layer = [[CALayer alloc] init];
    return _layer;
}

- (NSInteger)tag
{
    return nativeView(self).tag();
}

- (void)setTag:(NSInteger)tag
{
    nativeView(self).setTag(tag);
}

- (UIView*)viewWithTag:(NSInteger)tag
{
    return viewOf(nativeView(self).withTag(tag));
}

- (NSString*)accessibilityLabel
{
    return doubles::textOrNil(nativeView(self).label());
}

- (void)setAccessibilityLabel:(NSString*)label
{
    nativeView(self).setLabel(doubles::textOf(label));
}

- (BOOL)isAccessibilityElement
{
    return nativeView(self).isRead();
}

- (void)setIsAccessibilityElement:(BOOL)isElement
{
    nativeView(self).setRead(isElement);
}

- (NSString*)accessibilityValue
{
    return nil;
}

- (void)accessibilityIncrement
{
}

- (void)accessibilityDecrement
{
}

- (UIAccessibilityTraits)accessibilityTraits
{
    return nativeView(self).isChosen() ? selected : 0;
}

- (void)setAccessibilityTraits:(UIAccessibilityTraits)traits
{
    nativeView(self).setChosen(traits & selected);
}

- (BOOL)becomeFirstResponder
{
    auto* const window = nativeView(self).window();
    if (!window || ![self canBecomeFirstResponder])
        return NO;
    window->focus().giveTo(nativeView(self));
    return YES;
}

- (BOOL)resignFirstResponder
{
    if ([self isFirstResponder])
        nativeView(self).window()->focus().takeFrom(nativeView(self));
    return YES;
}

- (BOOL)isFirstResponder
{
    const auto* const window = nativeView(self).window();
    return window && [self canBecomeFirstResponder] && window->focus().isGivenTo(nativeView(self));
}

@end

namespace brimsound::doubles {

UIView* viewOf(toolkit::View* native)
{
    if (!native)
        return nil;
    if (UIView* existing = existingViewOf(*native))
        return existing;
    if (dynamic_cast<toolkit::Label*>(native))
        return [[UILabel alloc] initWithNative:native];
    if (dynamic_cast<toolkit::ImageView*>(native))
        return [[UIImageView alloc] initWithNative:native];
    return [[UIView alloc] initWithNative:native];
}

} // namespace brimsound::doubles
