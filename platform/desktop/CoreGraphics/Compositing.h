// Laying images and colors over pixels.
#pragma once

#include "platform/CoreGraphics/CGContext.h"
#include "platform/desktop/CoreGraphics/Bitmap.h"
#include "platform/desktop/UIKit/Color.h"

namespace brimsound::desktop {

/// Where something lies on pixels, which count from the top left corner; between pixels too. An image whose
/// bottom is above its top is drawn upside down, one whose right is left of its left mirrored.
struct Edges {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

/// What both write is within one of 256 levels of the blend mode's formula (CGContext.h), and within two in
/// Multiply; Normal, Darken and DestinationIn round to the nearest. Pixels that the edges cut through change
/// as much as lies within. What is larger than `longestSide`, or needs memory that there is not, is not
/// drawn.

/// Where a picture is drawn smaller each pixel is the mean of the area that it covers, within one level.
/// Between the pixels of one that is drawn larger colors change linearly, within two levels.
void drawPicture(const Pixels& onto, CGBlendMode, const Pixels& picture, const Edges&);
/// The color itself is rounded to 256 levels first, premultiplied.
void fill(const Pixels& onto, CGBlendMode, const Color&, const Edges&);

} // namespace brimsound::desktop
