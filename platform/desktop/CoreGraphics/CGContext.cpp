#include "platform/CoreGraphics/CGContext.h"

#include "platform/desktop/CoreGraphics/CGContextPeer.h"
#include "platform/desktop/CoreGraphics/CGImagePeer.h"

#include <algorithm>

namespace brimsound {

namespace desktop {

namespace {

class Context : public CGContext {
public:
    explicit Context(CGContextPeer* native)
        : CGContext(desktop::peer(native))
    {
    }
};

} // namespace

CGContextPeer::CGContextPeer(const Pixels& pixels, const Axes& firstAxes)
    : axes(firstAxes)
    , _pixels(pixels)
{
}

CGContextPeer::CGContextPeer(std::shared_ptr<Bitmap> bitmap, const Axes& firstAxes)
    : axes(firstAxes)
    , _pixels(bitmap->pixels())
    , _isBlank(true)
    , _bitmap(std::move(bitmap))
{
}

const Pixels* CGContextPeer::pixelsToDrawOn()
{
    if (_bitmap && _bitmap.use_count() > 1) {
        auto own = Bitmap::copyOf(_pixels);
        if (!own)
            return nullptr;
        _bitmap = std::move(own);
        _pixels = _bitmap->pixels();
    }
    return &_pixels;
}

CGBlendMode CGContextPeer::modeToDrawIn() const
{
    return _isBlank && blendMode == CGBlendMode::Normal ? CGBlendMode::Copy : blendMode;
}

RetainPtr<CGImage> CGContextPeer::picture() const
{
    return makeCGImage(_bitmap ? _bitmap : Bitmap::copyOf(_pixels));
}

void CGContextPeer::draw(const CGRect& rect, const CGImage& image, Top top)
{
    const auto [leastX, mostX] = std::minmax({ rect.origin.x, rect.origin.x + rect.size.width });
    const auto [leastY, mostY] = std::minmax({ rect.origin.y, rect.origin.y + rect.size.height });
    const auto topY = top == Top::AtLeastY ? leastY : mostY;
    const auto bottomY = top == Top::AtLeastY ? mostY : leastY;
    if (const auto* pixels = pixelsToDrawOn()) {
        drawPicture(*pixels, modeToDrawIn(), bitmapOf(image).pixels(),
            { axes.column(leastX), axes.row(topY), axes.column(mostX), axes.row(bottomY) });
        _isBlank = false;
    }
}

void CGContextPeer::fillRect(const CGRect& rect)
{
    if (const auto* pixels = pixelsToDrawOn()) {
        fill(*pixels, blendMode, fillColor,
            { axes.column(rect.origin.x), axes.row(rect.origin.y),
                axes.column(rect.origin.x + rect.size.width), axes.row(rect.origin.y + rect.size.height) });
        _isBlank = false;
    }
}

CGContextPeer& peerOf(const CGContext& context)
{
    return nativeOf<CGContextPeer>(context);
}

RetainPtr<CGContext> makeContext(std::size_t width, std::size_t height, double scale)
{
    auto bitmap = Bitmap::make(width, height);
    if (!bitmap)
        return nullptr;
    return brimsound::make<Context>(
        new CGContextPeer(std::move(bitmap), Axes { .scaleX = scale, .scaleY = scale }));
}

} // namespace desktop

using desktop::peerOf;

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
    return brimsound::make<desktop::Context>(new desktop::CGContextPeer(pixels, upwards));
}

RetainPtr<CGImage> CGBitmapContextCreateImage(CGContextRef context)
{
    return context ? peerOf(*context).picture() : nullptr;
}

void CGContextTranslateCTM(CGContextRef context, CGFloat dx, CGFloat dy)
{
    if (!context)
        return;
    auto& axes = peerOf(*context).axes;
    axes.originX = axes.column(dx);
    axes.originY = axes.row(dy);
}

void CGContextScaleCTM(CGContextRef context, CGFloat sx, CGFloat sy)
{
    if (!context)
        return;
    auto& axes = peerOf(*context).axes;
    axes.scaleX *= sx;
    axes.scaleY *= sy;
}

void CGContextSetBlendMode(CGContextRef context, CGBlendMode mode)
{
    if (context && mode >= CGBlendMode::Normal && mode <= CGBlendMode::PlusLighter)
        peerOf(*context).blendMode = mode;
}

void CGContextDrawImage(CGContextRef context, const CGRect& rect, CGImageRef image)
{
    if (context && image)
        peerOf(*context).draw(rect, *image, desktop::CGContextPeer::Top::AtMostY);
}

void CGContextFillRect(CGContextRef context, const CGRect& rect)
{
    if (context)
        peerOf(*context).fillRect(rect);
}

} // namespace brimsound
