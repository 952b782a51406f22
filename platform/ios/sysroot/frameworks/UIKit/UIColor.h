#pragma once

#import <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

@interface UIColor : NSObject
#if defined(GNUSTEP)
{
    CGFloat _components[4];
}
#endif

- (instancetype)initWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
- (instancetype)initWithHue:(CGFloat)hue
                 saturation:(CGFloat)saturation
                 brightness:(CGFloat)brightness
                      alpha:(CGFloat)alpha;
- (instancetype)initWithWhite:(CGFloat)white alpha:(CGFloat)alpha;

+ (UIColor*)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
+ (UIColor*)colorWithHue:(CGFloat)hue
              saturation:(CGFloat)saturation
              brightness:(CGFloat)brightness
                   alpha:(CGFloat)alpha;
+ (UIColor*)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha;
+ (UIColor*)blackColor;
+ (UIColor*)whiteColor;
+ (UIColor*)yellowColor;
+ (UIColor*)lightGrayColor;
+ (UIColor*)clearColor;

- (BOOL)getRed:(CGFloat*)red green:(CGFloat*)green blue:(CGFloat*)blue alpha:(CGFloat*)alpha;
- (BOOL)getHue:(CGFloat*)hue
    saturation:(CGFloat*)saturation
    brightness:(CGFloat*)brightness
         alpha:(CGFloat*)alpha;
- (void)setFill;
@end
