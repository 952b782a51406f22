#pragma once

#import <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

@class UIImage;

#if defined(__cplusplus)
extern "C" {
#endif

void UIGraphicsBeginImageContext(CGSize size);
void UIGraphicsBeginImageContextWithOptions(CGSize size, BOOL opaque, CGFloat scale);
void UIGraphicsEndImageContext(void);
CGContextRef UIGraphicsGetCurrentContext(void);
UIImage* UIGraphicsGetImageFromCurrentImageContext(void);

#if defined(__cplusplus)
}
#endif
