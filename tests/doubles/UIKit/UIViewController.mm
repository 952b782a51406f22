#include "tests/doubles/Doubles.h"
#include "tests/doubles/UIKit/App.h"
#include "tests/doubles/UIKit/HostedView.h"
#include "toolkit/time/Animation.h"

using brimsound::doubles::setController;

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

- (void)dealloc
{
    if (_presented) {
        _presented->_presenting = nil;
        if ([_presented isViewLoaded])
            [[_presented view] removeFromSuperview];
        [_presented release];
    }
    setController(_view, nil);
    [_view release];
    [super dealloc];
}

- (UIView*)view
{
    if (!_view)
        [self loadView];
    return _view;
}

- (void)setView:(UIView*)view
{
    setController(_view, nil);
    [view retain];
    [_view release];
    _view = view;
    setController(_view, self);
}

- (BOOL)isViewLoaded
{
    return _view != nil;
}

- (void)loadView
{
    UIView* view = [[UIView alloc] initWithFrame:[[UIScreen mainScreen] bounds]];
    [self setView:view];
    [view release];
}

- (void)viewDidUnload
{
}

- (void)viewDidLayoutSubviews
{
}

- (UIViewController*)presentedViewController
{
    return _presented;
}

- (void)presentViewController:(UIViewController*)viewController
                     animated:(BOOL)animated
                   completion:(id)completion
{
    if (!viewController)
        [NSException raise:NSInvalidArgumentException format:@"No controller to present"];
    if (_presented)
        return;
    _presented = [viewController retain];
    viewController->_presenting = self;
    sheetMoves(animated);
    UIWindow* const window = brimsound::doubles::keyWindow();
    [[viewController view] setFrame:[window bounds]];
    [window addSubview:[viewController view]];
}

- (void)dismissViewControllerAnimated:(BOOL)animated completion:(id)completion
{
    UIViewController* const presented = _presented;
    if (!presented) {
        // A controller that is presented and presents none is dismissed itself.
        [_presenting dismissViewControllerAnimated:animated completion:completion];
        return;
    }
    _presented = nil;
    presented->_presenting = nil;
    [[presented view] removeFromSuperview];
    sheetMoves(animated);
    [presented release];
}

@end
