#pragma once

#import <UIKit/UIResponder.h>

@class UIView;

@interface UIViewController : UIResponder
#if defined(GNUSTEP)
{
    UIView* _view;
    UIViewController* _presented;
    UIViewController* _presenting;
}
#endif

/// Loaded at its first use.
@property (nonatomic, retain) UIView* view;
- (BOOL)isViewLoaded;
- (void)loadView;
- (void)viewDidLoad;
- (void)viewDidUnload;
- (void)viewDidAppear:(BOOL)animated;
- (void)viewDidDisappear:(BOOL)animated;
- (void)viewDidLayoutSubviews;

@property (nonatomic, readonly) UIViewController* presentedViewController;
@property (nonatomic, readonly) UIViewController* presentingViewController;
- (BOOL)isBeingDismissed;
- (void)presentViewController:(UIViewController*)viewController
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion;
- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion;
@end
