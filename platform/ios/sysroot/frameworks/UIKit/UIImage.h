#pragma once

#import <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

@interface UIImage : NSObject
#if defined(GNUSTEP)
{
    struct UIImageState* _imageState;
}
#endif

+ (UIImage*)imageWithCGImage:(CGImageRef)image;
+ (UIImage*)imageWithContentsOfFile:(NSString*)path;

@property (nonatomic, readonly) CGSize size;
@property (nonatomic, readonly) CGFloat scale;
@property (nonatomic, readonly) CGImageRef CGImage;
- (void)drawInRect:(CGRect)rect;
@end
