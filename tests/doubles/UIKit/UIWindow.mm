#include "tests/doubles/UIKit/App.h"
#include "tests/doubles/UIKit/HostedView.h"
#include "toolkit/window/Window.h"

namespace {

/// The key window. Not retained.
UIWindow* keyboardWindow = nil;

} // namespace

@implementation UIWindow

- (instancetype)initWithFrame:(CGRect)frame
{
    const auto rect = brimsound::doubles::toToolkit(frame);
    auto* const native = new brimsound::doubles::Hosted<brimsound::toolkit::Window>(rect.size);
    native->setFrame(rect);
    return [self initWithNative:native];
}

- (void)dealloc
{
    if (keyboardWindow == self)
        keyboardWindow = nil;
    [_rootViewController release];
    [super dealloc];
}

- (UIViewController*)rootViewController
{
    return _rootViewController;
}

- (void)setRootViewController:(UIViewController*)controller
{
    if (controller == _rootViewController)
        return;
    if ([_rootViewController isViewLoaded])
        [[_rootViewController view] removeFromSuperview];
    [controller retain];
    [_rootViewController release];
    _rootViewController = controller;
    [self insertSubview:[controller view] atIndex:0];
    [self setNeedsLayout];
}

- (void)layoutSubviews
{
    [[_rootViewController view] setFrame:[self bounds]];
}

- (void)makeKeyAndVisible
{
    keyboardWindow = self;
}

@end

namespace brimsound::doubles {

UIWindow* keyWindow()
{
    return keyboardWindow;
}

} // namespace brimsound::doubles
