#include "tests/ios/doubles/UIKit/UIWindowState.h"

#include "tests/ios/doubles/UIKit/Assign.h"
#include "tests/ios/doubles/UIKit/HostedView.h"
#include "toolkit/window/Window.h"

namespace {

/// Not retained.
UIWindow* keyWindow = nil;

} // namespace

@implementation UIWindow

- (instancetype)initWithFrame:(CGRect)frame
{
    const auto [origin, size] = brimsound::doubles::toolkitRect(frame);
    auto* const native = new brimsound::doubles::Hosted<brimsound::toolkit::Window>(size);
    native->View::setFrame({ origin, size });
    return [self initWithNative:native];
}

- (void)dealloc
{
    if (keyWindow == self)
        keyWindow = nil;
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
    brimsound::doubles::assignRetained(_rootViewController, controller);
    [self insertSubview:[controller view] atIndex:0];
    [self setNeedsLayout];
}

- (void)layoutSubviews
{
    [[_rootViewController view] setFrame:[self bounds]];
}

- (void)makeKeyAndVisible
{
    keyWindow = self;
}

@end

namespace brimsound::doubles {

UIWindow* currentKeyWindow()
{
    return keyWindow;
}

} // namespace brimsound::doubles
