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
- (void)viewDidUnload;
- (void)viewDidLayoutSubviews;

@property (nonatomic, readonly) UIViewController* presentedViewController;
// A compiler without blocks can only pass nil as `completion`.
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
