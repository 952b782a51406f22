// Operations on images: hash, scaling, inversion, and color in an image's shape.
#pragma once

#include "platform/CoreGraphics/CGContext.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIImage.h"

#include <string>

namespace brimsound {

/// All of them leave the image as it is. Where the bitmap or the context for one cannot be made (an image
/// without size, or one too large) there is no new image, and the hash is that of no bytes.

/// The MD5 digest of the upper half of the image's pixels, as 32 lower-case hexadecimal digits. The image is
/// drawn for that at one pixel a point, its width w and height h in points truncated to whole numbers, in
/// rows of premultiplied red, green, blue and alpha from the top; the digest is of the first w·h·2 of its
/// bytes, which end within a row where h is odd.
std::string md5Hash(const UIImage&);

/// The image stretched to the size in points, at the main screen's scale.
RetainPtr<UIImage> scaleToSize(const UIImage&, CGSize);

/// The image with its colors inverted and its alpha kept, drawn as for md5Hash, at scale 1: an image of scale
/// 2 comes back with half its pixels along each side, and as large in points. See invertPixels for the
/// formula.
RetainPtr<UIImage> negative(const UIImage&);

/// The image's shape with the smaller of its own color and the given one in each channel.
RetainPtr<UIImage> darkenWithColor(const UIImage&, const UIColor&);

/// The image's shape in the color.
RetainPtr<UIImage> fillWithColor(const UIImage&, const UIColor&);

/// The color laid over the image in the mode, and the result kept where the image is, weighted with its
/// alpha. At scale 1, whatever the screen's.
RetainPtr<UIImage> fillWithColorAndBlendMode(const UIImage&, const UIColor&, CGBlendMode);

} // namespace brimsound
