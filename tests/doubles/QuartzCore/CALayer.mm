#import <QuartzCore/QuartzCore.h>

@implementation CALayer

- (CGFloat)cornerRadius
{
    return _cornerRadius;
}

- (void)setCornerRadius:(CGFloat)radius
{
    _cornerRadius = radius;
}

@end
