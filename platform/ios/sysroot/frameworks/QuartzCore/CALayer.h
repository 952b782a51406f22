#pragma once

#import <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

@interface CALayer : NSObject
#if defined(GNUSTEP)
{
    CGFloat _cornerRadius;
}
#endif

@property CGFloat cornerRadius;
@end
