#include "tests/doubles/UIKit/Forward.h"
#include "toolkit/image/ImageView.h"
#include "toolkit/text/Label.h"
#include "toolkit/window/Window.h"

#import <QuartzCore/QuartzCore.h>

#include <cmath>

namespace doubles = brimsound::doubles;
namespace toolkit = brimsound::toolkit;
using doubles::nativeView;

namespace {

/// The only trait that is kept.
constexpr UIAccessibilityTraits selected = 1 << 3;

toolkit::View& native(UIView* view)
{
    return nativeView(view);
}

/// A layer is placed by its middle.
void refuseNaN(const toolkit::Rect& frame)
{
    const auto [x, y] = frame.middle();
    if (std::isnan(x) || std::isnan(y))
        [NSException raise:@"CALayerInvalidGeometry" format:@"CALayer position contains NaN: [%f %f]", x, y];
}

} // namespace

@implementation UIView

@synthesize semanticContentAttribute = _semanticContentAttribute;
@synthesize overrideUserInterfaceStyle = _overrideUserInterfaceStyle;

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
    const auto rect = doubles::toToolkit(frame);
    refuseNaN(rect);
    return [self initWithNative:new doubles::Hosted<toolkit::View>(rect)];
}

- (instancetype)initWithNative:(toolkit::View*)view
{
    self = [super init];
    if (self) {
        _native = view;
        view->setCounterpart(self, [](void* object) { [static_cast<UIView*>(object) dealloc]; });
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
    native(self).retain();
    return self;
}

- (oneway void)release
{
    native(self).release();
}

- (NSUInteger)retainCount
{
    return native(self).retainCount();
}

- (UIWindow*)window
{
    auto* const window = native(self).window();
    return window ? static_cast<UIWindow*>(doubles::existingViewOf(*window)) : nil;
}

FORWARD_GETTER(CGRect, frame, frame)
FORWARD_GETTER(CGRect, bounds, bounds)
FORWARD_GETTER(UIView*, superview, parent)
FORWARD_PROPERTY(CGFloat, alpha, setAlpha, alpha, setAlpha)
FORWARD_PROPERTY(BOOL, isHidden, setHidden, isHidden, setHidden)
FORWARD_PROPERTY(BOOL, clipsToBounds, setClipsToBounds, clips, setClips)
FORWARD_PROPERTY(BOOL, isUserInteractionEnabled, setUserInteractionEnabled, isInteractive, setInteractive)
FORWARD_PROPERTY(NSInteger, tag, setTag, tag, setTag)
FORWARD_PROPERTY(NSString*, accessibilityLabel, setAccessibilityLabel, label, setLabel)
FORWARD_PROPERTY(BOOL, isAccessibilityElement, setIsAccessibilityElement, isRead, setRead)

- (void)setFrame:(CGRect)frame
{
    const auto rect = doubles::toToolkit(frame);
    refuseNaN(rect);
    native(self).View::setFrame(rect);
}

- (void)setBounds:(CGRect)bounds
{
    auto& view = native(self);
    const auto [origin, size] = doubles::toToolkit(bounds);
    view.setOrigin(origin);
    // The middle stays where it is.
    const auto former = view.frame();
    const auto frame = toolkit::inset(
        former, (former.size.width - size.width) / 2, (former.size.height - size.height) / 2);
    refuseNaN(frame);
    view.View::setFrame({ frame.origin, size });
}

- (UIViewAutoresizing)autoresizingMask
{
    const auto& view = native(self);
    return (view.followsWidth() ? UIViewAutoresizingFlexibleWidth : UIViewAutoresizingNone)
        | (view.followsHeight() ? UIViewAutoresizingFlexibleHeight : UIViewAutoresizingNone);
}

- (void)setAutoresizingMask:(UIViewAutoresizing)mask
{
    native(self).setFollowsParent(
        mask & UIViewAutoresizingFlexibleWidth, mask & UIViewAutoresizingFlexibleHeight);
}

- (NSArray*)subviews
{
    NSMutableArray* const views = [NSMutableArray array];
    for (const auto& child : native(self).children())
        [views addObject:doubles::toPlatform(child.get())];
    return views;
}

- (void)addSubview:(UIView*)view
{
    if (view)
        native(self).add(nativeView(view));
}

- (void)insertSubview:(UIView*)view atIndex:(NSInteger)index
{
    if (view)
        native(self).insert(nativeView(view), static_cast<std::size_t>(index));
}

- (void)removeFromSuperview
{
    native(self).removeFromParent();
}

- (void)setNeedsLayout
{
    native(self).setNeedsLayout();
}

- (void)layoutIfNeeded
{
    native(self).layOutIfNeeded();
}

- (void)layoutSubviews
{
    // The views that the toolkit made for itself have nothing to lay out.
    if (auto* hosted = dynamic_cast<doubles::HostedView*>(&native(self)))
        hosted->layOutItself();
}

- (UIColor*)backgroundColor
{
    return _backgroundColor ? _backgroundColor : doubles::toPlatform(native(self).background());
}

- (void)setBackgroundColor:(UIColor*)color
{
    native(self).setBackground(doubles::toToolkit(color));
    [color retain];
    [_backgroundColor release];
    _backgroundColor = color;
}

- (CALayer*)layer
{
    if (!_layer)
        _layer = [[CALayer alloc] init];
    return _layer;
}

- (UIView*)viewWithTag:(NSInteger)tag
{
    return doubles::toPlatform(native(self).withTag(tag));
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
    return native(self).isChosen() ? selected : 0;
}

- (void)setAccessibilityTraits:(UIAccessibilityTraits)traits
{
    native(self).setChosen(traits & selected);
}

- (BOOL)becomeFirstResponder
{
    auto* const window = native(self).window();
    if (!window || ![self canBecomeFirstResponder])
        return NO;
    window->focus().giveTo(native(self));
    return YES;
}

- (BOOL)resignFirstResponder
{
    if ([self isFirstResponder])
        native(self).window()->focus().takeFrom(native(self));
    return YES;
}

- (BOOL)isFirstResponder
{
    const auto* const window = native(self).window();
    return window && [self canBecomeFirstResponder] && window->focus().isGivenTo(native(self));
}

@end

namespace brimsound::doubles {

UIView* toPlatform(toolkit::View* native)
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
