// The parts of Core Graphics that the platform uses: geometry, and drawing on bitmaps.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <stddef.h>
#include <stdint.h>

#if defined(GNUSTEP)
#import <Foundation/NSGeometry.h>

typedef NSPoint CGPoint;
typedef NSSize CGSize;
typedef NSRect CGRect;
#else
typedef double CGFloat;

struct CGPoint {
    CGFloat x;
    CGFloat y;
};
typedef struct CGPoint CGPoint;

struct CGSize {
    CGFloat width;
    CGFloat height;
};
typedef struct CGSize CGSize;

struct CGRect {
    CGPoint origin;
    CGSize size;
};
typedef struct CGRect CGRect;
#endif

static inline CGPoint CGPointMake(CGFloat x, CGFloat y)
{
    CGPoint point;
    point.x = x;
    point.y = y;
    return point;
}

static inline CGSize CGSizeMake(CGFloat width, CGFloat height)
{
    CGSize size;
    size.width = width;
    size.height = height;
    return size;
}

static inline CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height)
{
    CGRect rect;
    rect.origin = CGPointMake(x, y);
    rect.size = CGSizeMake(width, height);
    return rect;
}

typedef struct CGColorSpace* CGColorSpaceRef;
typedef struct CGContext* CGContextRef;
typedef struct CGImage* CGImageRef;

typedef uint32_t CGBitmapInfo;

typedef enum CGImageAlphaInfo : uint32_t {
    kCGImageAlphaPremultipliedLast = 1,
} CGImageAlphaInfo;

enum : uint32_t {
    kCGBitmapByteOrder32Big = 4 << 12,
};

typedef enum CGBlendMode : int32_t {
    kCGBlendModeNormal = 0,
    kCGBlendModeMultiply,
    kCGBlendModeScreen,
    kCGBlendModeOverlay,
    kCGBlendModeDarken,
    kCGBlendModeLighten,
    kCGBlendModeColorDodge,
    kCGBlendModeColorBurn,
    kCGBlendModeSoftLight,
    kCGBlendModeHardLight,
    kCGBlendModeDifference,
    kCGBlendModeExclusion,
    kCGBlendModeHue,
    kCGBlendModeSaturation,
    kCGBlendModeColor,
    kCGBlendModeLuminosity,
    kCGBlendModeClear,
    kCGBlendModeCopy,
    kCGBlendModeSourceIn,
    kCGBlendModeSourceOut,
    kCGBlendModeSourceAtop,
    kCGBlendModeDestinationOver,
    kCGBlendModeDestinationIn,
    kCGBlendModeDestinationOut,
    kCGBlendModeDestinationAtop,
    kCGBlendModeXOR,
    kCGBlendModePlusDarker,
    kCGBlendModePlusLighter,
} CGBlendMode;

#ifdef __cplusplus
extern "C" {
#endif

CGColorSpaceRef CGColorSpaceCreateDeviceRGB(void);
void CGColorSpaceRelease(CGColorSpaceRef space);

CGContextRef CGBitmapContextCreate(void* data, size_t width, size_t height, size_t bitsPerComponent,
    size_t bytesPerRow, CGColorSpaceRef space, CGBitmapInfo bitmapInfo);
CGImageRef CGBitmapContextCreateImage(CGContextRef context);

CGContextRef CGContextRetain(CGContextRef context);
void CGContextRelease(CGContextRef context);
void CGContextTranslateCTM(CGContextRef context, CGFloat tx, CGFloat ty);
void CGContextScaleCTM(CGContextRef context, CGFloat sx, CGFloat sy);
void CGContextSetBlendMode(CGContextRef context, CGBlendMode mode);
void CGContextDrawImage(CGContextRef context, CGRect rect, CGImageRef image);
void CGContextFillRect(CGContextRef context, CGRect rect);
#if defined(GNUSTEP)
/// Used by the test double of UIColor.
void CGContextSetRGBFillColor(CGContextRef context, CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
#endif

CGImageRef CGImageRetain(CGImageRef image);
void CGImageRelease(CGImageRef image);
size_t CGImageGetWidth(CGImageRef image);
size_t CGImageGetHeight(CGImageRef image);

#ifdef __cplusplus
}
#endif
