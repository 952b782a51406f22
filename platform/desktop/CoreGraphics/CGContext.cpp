#include "platform/CoreGraphics/CGContext.h"

#include "platform/desktop/CoreGraphics/BitmapContext.h"
#include "platform/desktop/Foundation/Peer.h"

namespace brimsound {

using desktop::bitmapContextOf, desktop::BitmapContext;

CGContext::CGContext(Peer* peer)
    : NSObject(peer)
{
}

RetainPtr<CGContext> CGBitmapContextCreate(
    void* data, std::size_t width, std::size_t height, std::size_t bytesPerRow)
{
    using desktop::Bitmap, desktop::longestSide;
    const bool isBitmap = data && width > 0 && height > 0 && width <= longestSide && height <= longestSide
        && bytesPerRow >= width * Bitmap::bytesPerPixel && bytesPerRow % Bitmap::bytesPerPixel == 0;
    if (!isBitmap)
        return nullptr;
    const desktop::Pixels pixels { static_cast<std::uint8_t*>(data), width, height, bytesPerRow };
    const desktop::Axes upwards { .scaleY = -1, .originY = static_cast<double>(height) };
    return adopt(&desktop::objectOf<CGContext>(*new BitmapContext(pixels, upwards)));
}

RetainPtr<CGImage> CGBitmapContextCreateImage(CGContextRef context)
{
    return context ? bitmapContextOf(*context).image() : nullptr;
}

void CGContextTranslateCTM(CGContextRef context, CGFloat dx, CGFloat dy)
{
    if (!context)
        return;
    auto& axes = bitmapContextOf(*context).axes;
    axes.originX = axes.column(dx);
    axes.originY = axes.row(dy);
}

void CGContextScaleCTM(CGContextRef context, CGFloat sx, CGFloat sy)
{
    if (!context)
        return;
    auto& axes = bitmapContextOf(*context).axes;
    axes.scaleX *= sx;
    axes.scaleY *= sy;
}

void CGContextSetBlendMode(CGContextRef context, CGBlendMode mode)
{
    if (context && mode >= CGBlendMode::Normal && mode <= CGBlendMode::PlusLighter)
        bitmapContextOf(*context).blendMode = mode;
}

void CGContextDrawImage(CGContextRef context, const CGRect& rect, CGImageRef image)
{
    if (context && image)
        bitmapContextOf(*context).draw(rect, *image, BitmapContext::Top::AtMostY);
}

void CGContextFillRect(CGContextRef context, const CGRect& rect)
{
    if (context)
        bitmapContextOf(*context).fillRect(rect);
}

} // namespace brimsound
