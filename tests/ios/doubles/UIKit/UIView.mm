#include "tests/ios/doubles/UIKit/UIResponderState.h"
#include "tests/ios/doubles/UIKit/UIViewState.h"

#import <QuartzCore/QuartzCore.h>

#include <algorithm>
#include <cmath>
#include <utility>

using brimsound::doubles::assignCopied;
using brimsound::doubles::componentsOf;
using brimsound::doubles::stateOf;
using brimsound::doubles::willChange;

namespace {

/// A layer is placed by its middle.
void refuseWhatIsNoNumber(CGRect frame)
{
    const CGFloat x = frame.origin.x + frame.size.width / 2;
    const CGFloat y = frame.origin.y + frame.size.height / 2;
    if (std::isnan(x) || std::isnan(y))
        [NSException raise:@"CALayerInvalidGeometry" format:@"CALayer position contains NaN: [%f %f]", x, y];
}

void layOutTree(UIView* view)
{
    if (std::exchange(stateOf(view).needsLayout, false)) {
        [view layoutSubviews];
        [stateOf(view).controller viewDidLayoutSubviews];
    }
    // Laying out a view may add and remove others.
    const auto subviews = stateOf(view).subviews;
    for (UIView* subview : subviews)
        [subview retain];
    for (UIView* subview : subviews) {
        if ([subview superview] == view)
            layOutTree(subview);
        [subview release];
    }
}

/// Has the subviews follow a change of their superview's size.
void resizeSubviews(UIView* view, CGSize before, CGSize after)
{
    for (UIView* subview in [view subviews]) {
        const UIViewAutoresizing mask = [subview autoresizingMask];
        if (mask == UIViewAutoresizingNone)
            continue;
        CGRect frame = [subview frame];
        if (mask & UIViewAutoresizingFlexibleWidth)
            frame.size.width += after.width - before.width;
        if (mask & UIViewAutoresizingFlexibleHeight)
            frame.size.height += after.height - before.height;
        [subview setFrame:frame];
    }
}

void resignWithin(UIView* view)
{
    UIResponder* responder = brimsound::doubles::currentFirstResponder();
    if ([responder isKindOfClass:[UIView class]] && [static_cast<UIView*>(responder) isDescendantOfView:view])
        [responder resignFirstResponder];
}

} // namespace

@implementation UIView

// Here, as others do not see where the state is kept.
UIViewState& brimsound::doubles::stateOf(UIView* view)
{
    return *view->_viewState;
}

- (instancetype)init
{
    return [self initWithFrame:CGRect {}];
}

- (instancetype)initWithFrame:(CGRect)frame
{
    self = [super init];
    if (self) {
        refuseWhatIsNoNumber(frame);
        _viewState = new UIViewState;
        _viewState->frame = frame;
    }
    return self;
}

- (void)dealloc
{
    for (UIView* subview : _viewState->subviews) {
        resignWithin(subview);
        stateOf(subview).superview = nil;
        [subview release];
    }
    [_viewState->backgroundColor release];
    [_viewState->layer release];
    [_viewState->accessibilityLabel release];
    [_viewState->accessibilityValue release];
    delete _viewState;
    [super dealloc];
}

- (CGRect)frame
{
    return _viewState->frame;
}

- (void)setFrame:(CGRect)frame
{
    const auto former = _viewState->frame;
    if (NSEqualRects(former, frame))
        return;
    refuseWhatIsNoNumber(frame);
    willChange(_viewState->animation.frame, former);
    _viewState->frame = frame;
    if (!NSEqualSizes(former.size, frame.size)) {
        [self setNeedsLayout];
        resizeSubviews(self, former.size, frame.size);
    }
}

- (CGRect)bounds
{
    CGRect bounds;
    bounds.origin = _viewState->boundsOrigin;
    bounds.size = _viewState->frame.size;
    return bounds;
}

- (void)setBounds:(CGRect)bounds
{
    if (!NSEqualPoints(bounds.origin, _viewState->boundsOrigin)) {
        _viewState->boundsOrigin = bounds.origin;
        [self setNeedsLayout];
    }
    const auto former = _viewState->frame;
    if (NSEqualSizes(bounds.size, former.size))
        return;
    // The middle stays where it is.
    const auto frame = CGRectMake(former.origin.x + (former.size.width - bounds.size.width) / 2,
        former.origin.y + (former.size.height - bounds.size.height) / 2, bounds.size.width,
        bounds.size.height);
    refuseWhatIsNoNumber(frame);
    willChange(_viewState->animation.frame, former);
    _viewState->frame = frame;
    [self setNeedsLayout];
    resizeSubviews(self, former.size, frame.size);
}

- (UIViewAutoresizing)autoresizingMask
{
    return _viewState->autoresizingMask;
}

- (void)setAutoresizingMask:(UIViewAutoresizing)mask
{
    _viewState->autoresizingMask = mask;
}

- (UIView*)superview
{
    return _viewState->superview;
}

- (NSArray*)subviews
{
    return [NSArray arrayWithObjects:_viewState->subviews.data() count:_viewState->subviews.size()];
}

- (UIWindow*)window
{
    UIView* view = self;
    while (view && ![view isKindOfClass:[UIWindow class]])
        view = [view superview];
    return static_cast<UIWindow*>(view);
}

- (void)addSubview:(UIView*)view
{
    if (!view)
        return;
    [view retain];
    [view removeFromSuperview];
    _viewState->subviews.push_back(view);
    stateOf(view).superview = self;
    [self setNeedsLayout];
}

- (void)insertSubview:(UIView*)view atIndex:(NSInteger)index
{
    [self addSubview:view];
    auto& subviews = _viewState->subviews;
    if (view && static_cast<std::size_t>(index) < subviews.size())
        std::rotate(subviews.begin() + index, subviews.end() - 1, subviews.end());
}

- (void)removeFromSuperview
{
    if (!_viewState->superview)
        return;
    resignWithin(self);
    auto& formerState = stateOf(std::exchange(_viewState->superview, nil));
    std::erase(formerState.subviews, self);
    formerState.needsLayout = true;
    [self release];
}

- (BOOL)isDescendantOfView:(UIView*)ancestor
{
    UIView* view = self;
    while (view && view != ancestor)
        view = [view superview];
    return view != nil;
}

- (void)setNeedsLayout
{
    _viewState->needsLayout = true;
}

- (void)layoutIfNeeded
{
    layOutTree(self);
}

- (void)layoutSubviews
{
}

- (UIColor*)backgroundColor
{
    return _viewState->backgroundColor;
}

- (void)setBackgroundColor:(UIColor*)color
{
    const auto former = componentsOf(_viewState->backgroundColor);
    if (componentsOf(color) != former)
        willChange(_viewState->animation.background, former);
    assignCopied(_viewState->backgroundColor, color);
}

- (CGFloat)alpha
{
    return _viewState->alpha;
}

- (void)setAlpha:(CGFloat)alpha
{
    alpha = std::clamp(alpha, 0.0, 1.0);
    if (alpha == _viewState->alpha)
        return;
    willChange(_viewState->animation.alpha, _viewState->alpha);
    _viewState->alpha = alpha;
}

- (BOOL)isHidden
{
    return _viewState->isHidden;
}

- (void)setHidden:(BOOL)hidden
{
    _viewState->isHidden = hidden;
}

- (BOOL)clipsToBounds
{
    return _viewState->clipsToBounds;
}

- (void)setClipsToBounds:(BOOL)clips
{
    _viewState->clipsToBounds = clips;
}

- (BOOL)isUserInteractionEnabled
{
    return _viewState->isUserInteractionEnabled;
}

- (void)setUserInteractionEnabled:(BOOL)enabled
{
    _viewState->isUserInteractionEnabled = enabled;
}

- (CALayer*)layer
{
    if (!_viewState->layer)
        _viewState->layer = [[CALayer alloc] init];
    return _viewState->layer;
}

- (NSInteger)tag
{
    return _viewState->tag;
}

- (void)setTag:(NSInteger)tag
{
    _viewState->tag = tag;
}

- (NSString*)accessibilityLabel
{
    return _viewState->accessibilityLabel;
}

- (void)setAccessibilityLabel:(NSString*)label
{
    assignCopied(_viewState->accessibilityLabel, label);
}

- (BOOL)isAccessibilityElement
{
    return _viewState->isAccessibilityElement;
}

- (void)setIsAccessibilityElement:(BOOL)isElement
{
    _viewState->isAccessibilityElement = isElement;
}

- (NSString*)accessibilityValue
{
    return _viewState->accessibilityValue;
}

- (void)setAccessibilityValue:(NSString*)value
{
    assignCopied(_viewState->accessibilityValue, value);
}

- (void)accessibilityIncrement
{
}

- (void)accessibilityDecrement
{
}

- (UIAccessibilityTraits)accessibilityTraits
{
    return _viewState->accessibilityTraits;
}

- (void)setAccessibilityTraits:(UIAccessibilityTraits)traits
{
    _viewState->accessibilityTraits = traits;
}

- (UIView*)viewWithTag:(NSInteger)tag
{
    if (_viewState->tag == tag)
        return self;
    for (UIView* subview : _viewState->subviews) {
        if (UIView* found = [subview viewWithTag:tag])
            return found;
    }
    return nil;
}

- (BOOL)becomeFirstResponder
{
    return [self window] && [super becomeFirstResponder];
}

@end

namespace brimsound::doubles {

CGRect shownFrame(UIView* view)
{
    const auto& state = stateOf(view);
    return shown(state.animation.frame, state.frame);
}

Components shownBackground(UIView* view)
{
    const auto& state = stateOf(view);
    return shown(state.animation.background, componentsOf(state.backgroundColor));
}

CGFloat shownAlpha(UIView* view)
{
    const auto& state = stateOf(view);
    return shown(state.animation.alpha, state.alpha);
}

} // namespace brimsound::doubles
