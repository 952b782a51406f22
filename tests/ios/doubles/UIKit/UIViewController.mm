#include "tests/ios/doubles/Doubles.h"
#include "tests/ios/doubles/UIKit/Assign.h"
#include "tests/ios/doubles/UIKit/HostedView.h"
#include "tests/ios/doubles/UIKit/UIWindowState.h"
#include "toolkit/time/Animation.h"

struct UIViewControllerState {
    UIView* view = nil;
    /// Retained.
    UIViewController* presented = nil;
    /// Not retained.
    UIViewController* presenting = nil;
};

namespace {

/// Runs while the sheet that was presented or dismissed last is on its way.
brimsound::toolkit::Animation sheetMovement;

void sheetMoves(bool animated)
{
    constexpr double sheetTime = 0.5;
    if (animated)
        sheetMovement.wait(sheetTime, [] {});
    else
        sheetMovement.cancel();
}

} // namespace

bool brimsound::doubles::isSheetMoving()
{
    return sheetMovement.isRunning();
}

@implementation UIViewController

- (instancetype)init
{
    self = [super init];
    if (self)
        _viewControllerState = new UIViewControllerState;
    return self;
}

- (void)dealloc
{
    if (UIViewController* presented = _viewControllerState->presented) {
        presented->_viewControllerState->presenting = nil;
        if ([presented isViewLoaded])
            [[presented view] removeFromSuperview];
        [presented release];
    }
    brimsound::doubles::setController(_viewControllerState->view, nil);
    [_viewControllerState->view release];
    delete _viewControllerState;
    [super dealloc];
}

- (UIView*)view
{
    if (!_viewControllerState->view) {
        [self loadView];
        [self viewDidLoad];
    }
    return _viewControllerState->view;
}

- (void)setView:(UIView*)view
{
    brimsound::doubles::setController(_viewControllerState->view, nil);
    brimsound::doubles::assignRetained(_viewControllerState->view, view);
    brimsound::doubles::setController(view, self);
}

- (BOOL)isViewLoaded
{
    return _viewControllerState->view != nil;
}

- (void)loadView
{
    UIView* view = [[UIView alloc] initWithFrame:[[UIScreen mainScreen] bounds]];
    [self setView:view];
    [view release];
}

- (void)viewDidLoad
{
}

- (void)viewDidUnload
{
}

- (void)viewDidLayoutSubviews
{
}

- (UIViewController*)presentedViewController
{
    return _viewControllerState->presented;
}

- (void)presentViewController:(UIViewController*)viewController
                     animated:(BOOL)animated
                   completion:(id)completion
{
    if (!viewController)
        [NSException raise:NSInvalidArgumentException format:@"No controller to present"];
    if (_viewControllerState->presented)
        return;
    _viewControllerState->presented = [viewController retain];
    viewController->_viewControllerState->presenting = self;
    sheetMoves(animated);
    UIWindow* const window = brimsound::doubles::currentKeyWindow();
    [[viewController view] setFrame:[window bounds]];
    [window addSubview:[viewController view]];
}

- (void)dismissViewControllerAnimated:(BOOL)animated completion:(id)completion
{
    UIViewController* const presented = _viewControllerState->presented;
    if (!presented) {
        // Who is presented and presents nobody is dismissed itself.
        [_viewControllerState->presenting dismissViewControllerAnimated:animated completion:completion];
        return;
    }
    _viewControllerState->presented = nil;
    presented->_viewControllerState->presenting = nil;
    [[presented view] removeFromSuperview];
    sheetMoves(animated);
    [presented release];
}

@end
