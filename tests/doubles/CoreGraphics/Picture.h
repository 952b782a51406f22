// The types behind the references of Core Graphics.
#pragma once

#include "platform/desktop/CoreGraphics/Compositing.h"

#import <CoreGraphics/CoreGraphics.h>

#include <memory>

/// An immutable picture.
struct CGImage {
    std::size_t references = 1;
    std::shared_ptr<const brimsound::desktop::Bitmap> bitmap;
};

struct CGContext {
    /// Converts the context's coordinates to pixels, which are counted from the top left corner.
    double column(double x) const { return originX + scaleX * x; }
    double row(double y) const { return originY + scaleY * y; }

    std::size_t references = 1;
    brimsound::desktop::Pixels pixels {};
    /// Null when the caller owns the memory.
    std::shared_ptr<brimsound::desktop::Bitmap> bitmap = nullptr;
    double scaleX = 1;
    double scaleY = 1;
    double originX = 0;
    double originY = 0;
    brimsound::CGBlendMode blendMode = brimsound::CGBlendMode::Normal;
    brimsound::desktop::Color fillColor {};
};

namespace brimsound::doubles {

/// The picture of the bitmap. The caller releases it. Null for null.
::CGImageRef makePicture(std::shared_ptr<const desktop::Bitmap>);

/// A context on its own transparent bitmap with the origin in the top left corner, y pointing down, and
/// `scale` pixels per point. The caller releases it. Null when the bitmap cannot be created.
::CGContextRef makeContext(std::size_t width, std::size_t height, double scale);

/// Where the picture's top edge is drawn when it is stretched over a rectangle.
enum class Top { AtLeastY, AtMostY };
void drawPicture(::CGContextRef, const ::CGRect&, ::CGImageRef, Top);

} // namespace brimsound::doubles
