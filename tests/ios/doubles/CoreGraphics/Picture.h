// What the references of Core Graphics point at.
#pragma once

#include "platform/desktop/CoreGraphics/Compositing.h"

#import <CoreGraphics/CoreGraphics.h>

#include <memory>

/// An unchanging picture.
struct CGImage {
    std::size_t references = 1;
    std::shared_ptr<const brimsound::desktop::Bitmap> bitmap;
};

struct CGContext {
    /// Where the context's coordinates are on its pixels, which count from the top left corner.
    double column(double x) const { return originX + scaleX * x; }
    double row(double y) const { return originY + scaleY * y; }

    std::size_t references = 1;
    brimsound::desktop::Pixels pixels;
    /// Null where the memory is the caller's.
    std::shared_ptr<brimsound::desktop::Bitmap> bitmap;
    double scaleX = 1;
    double scaleY = 1;
    double originX = 0;
    double originY = 0;
    brimsound::CGBlendMode blendMode = brimsound::CGBlendMode::Normal;
    brimsound::desktop::Color fillColor;
};

namespace brimsound::doubles {

/// The picture of the bitmap, to be released. Null for null.
::CGImageRef makePicture(std::shared_ptr<const desktop::Bitmap>);

/// A context on a transparent bitmap of its own with the origin in the top left corner, y downwards and so
/// many pixels a point; to be released. Null when there is no such bitmap.
::CGContextRef makeContext(std::size_t width, std::size_t height, double scale);

/// Stretches the picture over the rectangle, its top edge at one of those two.
enum class Top { AtLeastY, AtMostY };
void drawPicture(::CGContextRef, const ::CGRect&, ::CGImageRef, Top);

} // namespace brimsound::doubles
