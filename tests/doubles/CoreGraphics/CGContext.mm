#include "tests/doubles/CoreGraphics/Picture.h"

#include <algorithm>

using brimsound::desktop::Bitmap;
using brimsound::desktop::longestSide;
using brimsound::desktop::Pixels;

/// There is only one color space, so it needs no members.
struct CGColorSpace { };

namespace brimsound::doubles {

::CGContextRef makeContext(std::size_t width, std::size_t height, double scale)
{
    auto bitmap = Bitmap::make(width, height);
    if (!bitmap)
        return nullptr;
    const auto pixels = bitmap->pixels();
    return new ::CGContext {
        .pixels = pixels, .bitmap = std::move(bitmap), .scaleX = scale, .scaleY = scale
    };
}

void drawPicture(::CGContextRef context, const ::CGRect& rect, ::CGImageRef image, Top top)
{
    if (!context || !image)
        return;
    const auto [leastX, mostX] = std::minmax({ rect.origin.x, rect.origin.x + rect.size.width });
    const auto [leastY, mostY] = std::minmax({ rect.origin.y, rect.origin.y + rect.size.height });
    const auto topY = top == Top::AtLeastY ? leastY : mostY;
    const auto bottomY = top == Top::AtLeastY ? mostY : leastY;
    desktop::drawPicture(context->pixels, context->blendMode, image->bitmap->pixels(),
        { context->column(leastX), context->row(topY), context->column(mostX), context->row(bottomY) });
}

} // namespace brimsound::doubles

CGColorSpaceRef CGColorSpaceCreateDeviceRGB()
{
    static CGColorSpace space;
    return &space;
}

void CGColorSpaceRelease(CGColorSpaceRef) { }

CGContextRef CGBitmapContextCreate(void* data, size_t width, size_t height, size_t bitsPerComponent,
    size_t bytesPerRow, CGColorSpaceRef space, CGBitmapInfo bitmapInfo)
{
    const bool isKnown = space && bitsPerComponent == 8
        && bitmapInfo == (CGBitmapInfo { kCGImageAlphaPremultipliedLast } | kCGBitmapByteOrder32Big);
    const bool isBitmap = data && width > 0 && height > 0 && width <= longestSide && height <= longestSide
        && bytesPerRow >= width * Bitmap::bytesPerPixel && bytesPerRow % Bitmap::bytesPerPixel == 0;
    if (!isKnown || !isBitmap)
        return nullptr;
    const Pixels pixels { static_cast<std::uint8_t*>(data), width, height, bytesPerRow };
    return new CGContext { .pixels = pixels, .scaleY = -1, .originY = static_cast<double>(height) };
}

CGImageRef CGBitmapContextCreateImage(CGContextRef context)
{
    return context ? brimsound::doubles::makePicture(Bitmap::copyOf(context->pixels)) : nullptr;
}

CGContextRef CGContextRetain(CGContextRef context)
{
    if (context)
        ++context->references;
    return context;
}

void CGContextRelease(CGContextRef context)
{
    if (context && --context->references == 0)
        delete context;
}

void CGContextTranslateCTM(CGContextRef context, CGFloat tx, CGFloat ty)
{
    if (!context)
        return;
    context->originX = context->column(tx);
    context->originY = context->row(ty);
}

void CGContextScaleCTM(CGContextRef context, CGFloat sx, CGFloat sy)
{
    if (!context)
        return;
    context->scaleX *= sx;
    context->scaleY *= sy;
}

void CGContextSetBlendMode(CGContextRef context, CGBlendMode mode)
{
    if (context && mode >= kCGBlendModeNormal && mode <= kCGBlendModePlusLighter)
        context->blendMode = static_cast<brimsound::CGBlendMode>(mode);
}

void CGContextSetRGBFillColor(CGContextRef context, CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha)
{
    if (context)
        context->fillColor = { red, green, blue, alpha };
}

void CGContextDrawImage(CGContextRef context, CGRect rect, CGImageRef image)
{
    brimsound::doubles::drawPicture(context, rect, image, brimsound::doubles::Top::AtMostY);
}

void CGContextFillRect(CGContextRef context, CGRect rect)
{
    if (!context)
        return;
    brimsound::desktop::fill(context->pixels, context->blendMode, context->fillColor,
        { context->column(rect.origin.x), context->row(rect.origin.y),
            context->column(rect.origin.x + rect.size.width),
            context->row(rect.origin.y + rect.size.height) });
}
