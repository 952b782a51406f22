#import <UIKit/UIKit.h>

@implementation UIButton

+ (instancetype)buttonWithType:(UIButtonType)buttonType
{
    return [[[self alloc] initWithFrame:CGRect {}] autorelease];
}

@end
