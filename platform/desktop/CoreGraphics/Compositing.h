// Drawing images and colors on pixels.
#pragma once

#include "platform/CoreGraphics/CGContext.h"
#include "platform/desktop/CoreGraphics/Bitmap.h"
#include "platform/desktop/UIKit/Color.h"

namespace brimsound::desktop {

/// A rectangle in pixels from the top left corner; its edges may lie between pixels. An image whose bottom
/// edge is above its top edge is drawn upside down, one whose right edge is left of its left edge mirrored.
struct Edges {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

/// The results of both functions are within one of 256 levels of the blend mode's formula (CGContext.h),
/// within two for Multiply, and rounded to the nearest level for Normal, Darken and DestinationIn. A pixel
/// between the edges only in part changes in proportion to that part, within another two levels. Nothing is
/// drawn when the edges are more than `longestSide` apart or memory is missing.

/// In a picture that is drawn smaller each pixel is the mean of the area that it covers, within one level.
/// A picture that is drawn larger is interpolated linearly, within two levels.
void drawPicture(const Pixels& onto, CGBlendMode, const Pixels& picture, const Edges&);
/// The color itself is rounded to 256 levels first, premultiplied.
void fill(const Pixels& onto, CGBlendMode, const Color&, const Edges&);

} // namespace brimsound::desktop
