#include "platform/CoreGraphics/CGContext.h"

#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/CoreGraphics/NativeGraphics.h"

#include <limits>

namespace brimsound {

using ios::native;
using ios::nativeContext;

namespace {

constexpr std::size_t bytesPerPixel = 4;
constexpr std::size_t bitsPerComponent = 8;

} // namespace

RetainPtr<CGContext> CGBitmapContextCreate(
    void* data, std::size_t width, std::size_t height, std::size_t bytesPerRow)
{
    if (!data || width == 0 || height == 0 || bytesPerRow / bytesPerPixel < width
        || height > std::numeric_limits<std::size_t>::max() / bytesPerRow)
        return nullptr;
    auto* colors = CGColorSpaceCreateDeviceRGB();
    auto* created = ::CGBitmapContextCreate(data, width, height, bitsPerComponent, bytesPerRow, colors,
        static_cast<::CGBitmapInfo>(kCGImageAlphaPremultipliedLast)
            | static_cast<::CGBitmapInfo>(kCGBitmapByteOrder32Big));
    CGColorSpaceRelease(colors);
    auto context = ios::makeContext(created);
    CGContextRelease(created);
    return context;
}

RetainPtr<CGImage> CGBitmapContextCreateImage(CGContextRef context)
{
    if (!context)
        return nullptr;
    auto* created = ::CGBitmapContextCreateImage(nativeContext(context));
    auto picture = ios::makePicture(created);
    CGImageRelease(created);
    return picture;
}

void CGContextTranslateCTM(CGContextRef context, CGFloat dx, CGFloat dy)
{
    if (context)
        ::CGContextTranslateCTM(nativeContext(context), dx, dy);
}

void CGContextScaleCTM(CGContextRef context, CGFloat sx, CGFloat sy)
{
    if (context)
        ::CGContextScaleCTM(nativeContext(context), sx, sy);
}

void CGContextSetBlendMode(CGContextRef context, CGBlendMode mode)
{
    if (context)
        ::CGContextSetBlendMode(nativeContext(context), static_cast<::CGBlendMode>(mode));
}

void CGContextDrawImage(CGContextRef context, const CGRect& rect, CGImageRef image)
{
    if (context && image)
        ::CGContextDrawImage(nativeContext(context), native(rect), ios::nativeImage(image));
}

void CGContextFillRect(CGContextRef context, const CGRect& rect)
{
    if (context)
        ::CGContextFillRect(nativeContext(context), native(rect));
}

} // namespace brimsound
