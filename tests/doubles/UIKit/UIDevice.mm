#import <UIKit/UIKit.h>

@implementation UIDevice

+ (UIDevice*)currentDevice
{
    static UIDevice* const device = [[UIDevice alloc] init];
    return device;
}

- (NSString*)systemVersion
{
    return @"9.0.2";
}

@end
