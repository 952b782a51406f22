#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/CoreGraphics/CGImage.h"

#include <cstddef>
#include <cstdint>

namespace brimsound {

/// How the source S, which is drawn, is combined with the destination D, which is there already. The numbers
/// are the platform's.
///
/// In these formulas S and D are premultiplied colors and Sa and Da their alphas. The first sixteen modes
/// draw S over D, with a blended color where both are present: R = S(1 - Da) + D(1 - Sa) + SaDa·B(D/Da, S/Sa)
/// and Ra = Sa + Da - SaDa. The blend function B is the source's color for Normal and the smaller of the two
/// in each channel for Darken. The formulas from Clear on apply to premultiplied colors and to the alpha
/// alike.
enum class CGBlendMode : std::int32_t {
    Normal = 0,
    Multiply = 1,
    Screen = 2,
    Overlay = 3,
    Darken = 4,
    Lighten = 5,
    ColorDodge = 6,
    ColorBurn = 7,
    SoftLight = 8,
    HardLight = 9,
    Difference = 10,
    Exclusion = 11,
    Hue = 12,
    Saturation = 13,
    Color = 14,
    Luminosity = 15,
    Clear = 16, ///< R = 0
    Copy = 17, ///< R = S
    SourceIn = 18, ///< R = S·Da
    SourceOut = 19, ///< R = S(1 - Da)
    SourceAtop = 20, ///< R = S·Da + D(1 - Sa)
    DestinationOver = 21, ///< R = S(1 - Da) + D
    DestinationIn = 22, ///< R = D·Sa
    DestinationOut = 23, ///< R = D(1 - Sa)
    DestinationAtop = 24, ///< R = S(1 - Da) + D·Sa
    XOR = 25, ///< R = S(1 - Da) + D(1 - Sa)
    PlusDarker = 26, ///< R = max(0, S + D - 1)
    PlusLighter = 27, ///< R = min(1, S + D)
};

/// A drawing target. Lengths are in its own coordinates, initially pixels; the function that creates a
/// context defines their direction. The initial blend mode is Normal and the initial fill color opaque black.
/// Drawing changes only the area that is drawn, whatever the blend mode.
class CGContext : public NSObject {
protected:
    explicit CGContext(Peer*);
};

/// Not retained. May be null: calls on a null context do nothing.
using CGContextRef = CGContext*;

/// A context on memory that the caller owns and that must outlive the context: `height` rows of `width`
/// pixels, the top row first, `bytesPerRow` bytes apart. A pixel is four bytes: red, green, blue, alpha, in
/// the device's RGB with premultiplied colors. The origin is the bottom left corner and y points up, so an
/// image drawn there has its top row first in memory. Null when `data` is null, when the width
/// or height is 0 or too large, and when the rows are too short.
RetainPtr<CGContext> CGBitmapContextCreate(
    void* data, std::size_t width, std::size_t height, std::size_t bytesPerRow);

/// A copy of what is in the context now. Null when there is not enough memory.
RetainPtr<CGImage> CGBitmapContextCreateImage(CGContextRef);

void CGContextTranslateCTM(CGContextRef, CGFloat dx, CGFloat dy);
/// A negative scale reverses the axis.
void CGContextScaleCTM(CGContextRef, CGFloat sx, CGFloat sy);

void CGContextSetBlendMode(CGContextRef, CGBlendMode);

/// Stretches the image over the rectangle, with the image's top edge at the largest y.
void CGContextDrawImage(CGContextRef, const CGRect&, CGImageRef);
void CGContextFillRect(CGContextRef, const CGRect&);

} // namespace brimsound
