#pragma once

#import <UIKit/UIView.h>

@class UIViewController;

@interface UIWindow : UIView
#if defined(GNUSTEP)
{
    UIViewController* _rootViewController;
}
#endif

/// Its view fills the window.
@property (nonatomic, retain) UIViewController* rootViewController;
- (void)makeKeyAndVisible;
@end
