#pragma once

#import <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

@interface UIFont : NSObject
#if defined(GNUSTEP)
{
    NSString* _fontName;
    CGFloat _pointSize;
}
#endif

+ (UIFont*)systemFontOfSize:(CGFloat)size;
/// nil when there is no such font.
+ (UIFont*)fontWithName:(NSString*)name size:(CGFloat)size;
- (UIFont*)fontWithSize:(CGFloat)size;

@property (nonatomic, readonly, retain) NSString* fontName;
@property (nonatomic, readonly) CGFloat pointSize;
@end
