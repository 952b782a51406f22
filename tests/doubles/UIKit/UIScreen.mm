#include "tests/doubles/UIKit/App.h"

#import <UIKit/UIKit.h>

@implementation UIScreen

+ (UIScreen*)mainScreen
{
    static UIScreen* const screen = [[UIScreen alloc] init];
    return screen;
}

- (CGRect)bounds
{
    // A screen is as large as the window that fills it.
    UIWindow* const window = brimsound::doubles::keyWindow();
    const CGSize size = window ? [window bounds].size : CGSizeMake(320, 568);
    return CGRectMake(0, 0, size.width, size.height);
}

- (CGFloat)scale
{
    return 2;
}

@end
