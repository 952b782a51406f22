// Drawing on pixels.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/CoreGraphics/CGImage.h"

#include <cstddef>
#include <cstdint>

namespace brimsound {

/// How what is drawn, the source S, meets what is there, the destination D. The numbers are the platform's.
///
/// The first sixteen put S over D with a blended color where both are: with premultiplied colors S and D,
/// alphas Sa and Da, and the blending B of the colors themselves, R = S(1 - Da) + D(1 - Sa) + SaDa·B(D/Da,
/// S/Sa) and Ra = Sa + Da - SaDa. For Normal B is the source's color, for Darken the smaller of the two,
/// channel by channel. Those from Clear on are given in premultiplied colors, and hold for the alpha alike.
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

/// Something to draw on. Lengths are in its own coordinates, which are pixels at first; where they run is up
/// to who makes it. Blends in Normal and fills in opaque black at first. Nothing outside of what is drawn
/// changes, whatever the blend mode.
class CGContext : public NSObject {
protected:
    explicit CGContext(Peer*);
};

/// Not retained. May be null: what is done to no context is not done.
using CGContextRef = CGContext*;

/// A context on memory that stays the caller's, and has to outlive it: `height` rows of `width` pixels, the
/// top row first, `bytesPerRow` bytes from one to the next; a pixel is four bytes, red, green, blue, alpha,
/// in the device's RGB with the colors premultiplied. The origin is the bottom left corner, y runs upwards:
/// an image drawn there has its top row first in memory. Null when there is no such bitmap: no memory, no
/// width or height, or rows that are too short.
RetainPtr<CGContext> CGBitmapContextCreate(
    void* data, std::size_t width, std::size_t height, std::size_t bytesPerRow);

/// What is in the context now, as a picture of its own. Null when there is no memory for it.
RetainPtr<CGImage> CGBitmapContextCreateImage(CGContextRef);

void CGContextTranslateCTM(CGContextRef, CGFloat dx, CGFloat dy);
/// A negative scale turns the axis round.
void CGContextScaleCTM(CGContextRef, CGFloat sx, CGFloat sy);

void CGContextSetBlendMode(CGContextRef, CGBlendMode);

/// Stretches the image over the rectangle, its top edge where y is largest.
void CGContextDrawImage(CGContextRef, const CGRect&, CGImageRef);
void CGContextFillRect(CGContextRef, const CGRect&);

} // namespace brimsound
