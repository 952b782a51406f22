#import <UIKit/UIKit.h>

@implementation UIScreen

+ (UIScreen*)mainScreen
{
    static UIScreen* const screen = [[UIScreen alloc] init];
    return screen;
}

- (CGRect)bounds
{
    return CGRectMake(0, 0, 320, 568);
}

- (CGFloat)scale
{
    return 2;
}

@end
