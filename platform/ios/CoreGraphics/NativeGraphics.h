// Native objects that hold Core Graphics contexts and pictures. They are the peers of the product's objects,
// because Core Graphics' own types cannot be.
#pragma once

#include "platform/CoreGraphics/CGContext.h"

#import <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

@interface BRGraphicsContext : NSObject {
    CGContextRef _context;
}
/// Retains the context.
- (id)initWithContext:(CGContextRef)context;
- (CGContextRef)context;
@end

@interface BRPicture : NSObject {
    CGImageRef _image;
}
/// Retains the image.
- (id)initWithImage:(CGImageRef)image;
- (CGImageRef)image;
@end

namespace brimsound::ios {

/// Null for none.
::CGContextRef nativeContext(CGContextRef);
::CGImageRef nativeImage(CGImageRef);

/// Null for none.
RetainPtr<CGContext> makeContext(::CGContextRef);
RetainPtr<CGImage> makePicture(::CGImageRef);

} // namespace brimsound::ios
