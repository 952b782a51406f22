#include "platform/desktop/CoreGraphics/BitmapContext.h"

#include "platform/desktop/CoreGraphics/ImageBitmap.h"
#include "platform/desktop/Foundation/Peer.h"

#include <algorithm>

namespace brimsound::desktop {

BitmapContext::BitmapContext(const Pixels& pixels, const Axes& firstAxes)
    : axes(firstAxes)
    , _pixels(pixels)
{
}

BitmapContext::BitmapContext(std::shared_ptr<Bitmap> bitmap, const Axes& firstAxes)
    : axes(firstAxes)
    , _pixels(bitmap->pixels())
    , _isBlank(true)
    , _bitmap(std::move(bitmap))
{
}

const Pixels* BitmapContext::pixelsToDrawOn()
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

CGBlendMode BitmapContext::modeToDrawIn() const
{
    return _isBlank && blendMode == CGBlendMode::Normal ? CGBlendMode::Copy : blendMode;
}

RetainPtr<CGImage> BitmapContext::image() const
{
    return makeCGImage(_bitmap ? _bitmap : Bitmap::copyOf(_pixels));
}

void BitmapContext::draw(const CGRect& rect, const CGImage& image, Top top)
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

void BitmapContext::fillRect(const CGRect& rect)
{
    if (const auto* pixels = pixelsToDrawOn()) {
        fill(*pixels, blendMode, fillColor,
            { axes.column(rect.origin.x), axes.row(rect.origin.y),
                axes.column(rect.origin.x + rect.size.width), axes.row(rect.origin.y + rect.size.height) });
        _isBlank = false;
    }
}

BitmapContext& bitmapContextOf(const CGContext& context)
{
    return nativeOf<BitmapContext>(context);
}

RetainPtr<CGContext> makeCGContext(std::size_t width, std::size_t height, double scale)
{
    auto bitmap = Bitmap::make(width, height);
    if (!bitmap)
        return nullptr;
    const Axes axes { .scaleX = scale, .scaleY = scale };
    return adopt(&objectOf<CGContext>(*new BitmapContext(std::move(bitmap), axes)));
}

} // namespace brimsound::desktop
