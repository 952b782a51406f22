#pragma once

#include "platform/CoreGraphics/CGContext.h"
#include "platform/desktop/CoreGraphics/Compositing.h"
#include "toolkit/object/Object.h"

#include <memory>

namespace brimsound::desktop {

/// Converts a context's coordinates to pixels from the top left corner.
struct Axes {
    double scaleX = 1;
    double scaleY = 1;
    double originX = 0;
    double originY = 0;

    double column(double x) const { return originX + scaleX * x; }
    double row(double y) const { return originY + scaleY * y; }
};

/// Draws on pixels. The native object of every CGContext.
class BitmapContext : public toolkit::Object {
public:
    /// The pixels are the caller's and must outlive the context.
    BitmapContext(const Pixels&, const Axes&);
    /// The bitmap must be transparent.
    BitmapContext(std::shared_ptr<Bitmap>, const Axes&);

    /// An image of the current pixels; null without enough memory.
    RetainPtr<CGImage> image() const;

    /// Stretches the image over the rectangle, with the image's top edge at the smallest or the largest y.
    enum class Top { AtLeastY, AtMostY };
    void draw(const CGRect&, const CGImage&, Top);
    void fillRect(const CGRect&);

    Axes axes;
    CGBlendMode blendMode = CGBlendMode::Normal;
    Color fillColor;

private:
    /// The pixels to draw on. They are copied first while images share them. Null without enough memory.
    const Pixels* pixelsToDrawOn();
    /// The blend mode, or a faster one with the same result.
    CGBlendMode modeToDrawIn() const;

    Pixels _pixels;
    /// Whether the bitmap was transparent at first and has not been drawn on.
    bool _isBlank = false;
    /// Null for the caller's pixels. Images share it until the context draws again.
    std::shared_ptr<Bitmap> _bitmap;
};

BitmapContext& bitmapContextOf(const CGContext&);

/// A context on a transparent bitmap of its own. The origin is the top left corner, y points down, and
/// `scale` is the number of pixels per point. Null when the bitmap cannot be created.
RetainPtr<CGContext> makeCGContext(std::size_t width, std::size_t height, double scale);

} // namespace brimsound::desktop
