// View controllers.
#pragma once

#import <UIKit/UIResponder.h>

@class UIView;

@interface UIViewController : UIResponder
#if defined(GNUSTEP)
{
    struct UIViewControllerState* _viewControllerState;
}
#endif

/// Loaded when it is first asked for.
@property (nonatomic, retain) UIView* view;
- (BOOL)isViewLoaded;
- (void)loadView;
- (void)viewDidLoad;
- (void)viewDidUnload;
- (void)viewDidLayoutSubviews;

@property (nonatomic, readonly) UIViewController* presentedViewController;
// Where blocks are not, `completion` can only be nil.
#if defined(__BLOCKS__)
- (void)presentViewController:(UIViewController*)viewController
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion;
- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion;
#else
- (void)presentViewController:(UIViewController*)viewController
                     animated:(BOOL)animated
                   completion:(id)completion;
- (void)dismissViewControllerAnimated:(BOOL)animated completion:(id)completion;
#endif
@end
