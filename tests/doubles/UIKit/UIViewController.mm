#include "tests/doubles/Doubles.h"
#include "tests/doubles/UIKit/App.h"
#include "tests/doubles/UIKit/HostedView.h"
#include "toolkit/time/Animation.h"

#include <Block.h>

#include <functional>
#include <memory>

using brimsound::doubles::setController;

namespace {

/// Runs while the sheet that was presented or dismissed last is on its way.
brimsound::toolkit::Animation sheetMovement;

using Completion = void (^)(void);

/// Nothing for null.
std::function<void()> functionOf(Completion completion)
{
    if (!completion)
        return [] {};
    void* const copied = Block_copy(completion);
    const std::shared_ptr<void> copy(copied, [](void* block) { Block_release(block); });
    return [copy] { ((Completion)copy.get())(); };
}

void sheetMoves(bool animated, Completion completion)
{
    constexpr double sheetTime = 0.5;
    sheetMovement.cancel();
    if (animated)
        sheetMovement.wait(sheetTime, functionOf(completion));
    else
        functionOf(completion)();
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
    if (!_view) {
        [self loadView];
        [self viewDidLoad];
    }
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

- (void)viewDidLoad
{
}

- (void)viewDidUnload
{
}

- (void)viewDidAppear:(BOOL)animated
{
}

- (void)viewDidDisappear:(BOOL)animated
{
}

- (void)viewDidLayoutSubviews
{
}

- (UIViewController*)presentedViewController
{
    return _presented;
}

- (UIViewController*)presentingViewController
{
    return _presenting;
}

/// Controllers are dismissed at once here.
- (BOOL)isBeingDismissed
{
    return NO;
}

- (void)presentViewController:(UIViewController*)viewController
                     animated:(BOOL)animated
                   completion:(Completion)completion
{
    if (!viewController)
        [NSException raise:NSInvalidArgumentException format:@"No controller to present"];
    if (viewController->_presenting)
        [NSException raise:NSInvalidArgumentException format:@"The controller is presented already"];
    if (_presented)
        return;
    _presented = [viewController retain];
    viewController->_presenting = self;
    sheetMoves(animated, completion);
    UIWindow* const window = brimsound::doubles::keyWindow();
    [[viewController view] setFrame:[window bounds]];
    [window addSubview:[viewController view]];
    [viewController viewDidAppear:animated];
}

- (void)dismissViewControllerAnimated:(BOOL)animated completion:(Completion)completion
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
    sheetMoves(animated, completion);
    [presented viewDidDisappear:animated];
    [presented release];
}

@end
