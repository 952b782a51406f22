#include "tests/ios/doubles/UIKit/UIWindowState.h"

#import <UIKit/UIKit.h>

struct UIWindowState {
    UIViewController* rootViewController = nil;
};

namespace {

/// Not retained.
UIWindow* keyWindow = nil;

} // namespace

@implementation UIWindow

- (instancetype)initWithFrame:(CGRect)frame
{
    self = [super initWithFrame:frame];
    if (self)
        _windowState = new UIWindowState;
    return self;
}

- (void)dealloc
{
    if (keyWindow == self)
        keyWindow = nil;
    [_windowState->rootViewController release];
    delete _windowState;
    [super dealloc];
}

- (UIViewController*)rootViewController
{
    return _windowState->rootViewController;
}

- (void)setRootViewController:(UIViewController*)controller
{
    if (controller == _windowState->rootViewController)
        return;
    UIViewController* const former = _windowState->rootViewController;
    if ([former isViewLoaded])
        [[former view] removeFromSuperview];
    _windowState->rootViewController = [controller retain];
    [former release];
    if (controller)
        [self insertSubview:[controller view] atIndex:0];
    [self setNeedsLayout];
}

- (void)layoutSubviews
{
    [[_windowState->rootViewController view] setFrame:[self bounds]];
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
