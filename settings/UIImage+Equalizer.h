#pragma once

#include "platform/CoreGraphics/CGContext.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIImage.h"

#include <string>

namespace brimsound {

// All of these leave the image unchanged. When the bitmap or the context cannot be made (an image without
// size, or one that is too large), no new image is returned, and the hash is that of no bytes.

/// The MD5 digest of the upper half of the image's pixels, as 32 lower-case hexadecimal digits. The image is
/// drawn at one pixel per point; its width w and height h in points are truncated to whole numbers. The rows
/// run from the top, with the bytes of a pixel in the order premultiplied red, green, blue, alpha. The digest
/// covers the first w·h·2 bytes, which end within a row when h is odd.
std::string md5Hash(const UIImage&);

/// The image stretched to the size in points, at the main screen's scale.
RetainPtr<UIImage> scaleToSize(const UIImage&, CGSize);

/// The image with inverted colors and the same alpha, drawn as for md5Hash, at scale 1. An image of scale 2
/// comes back with half the pixels in each direction and the same size in points. See invertPixels for the
/// formula.
RetainPtr<UIImage> negative(const UIImage&);

/// The image's shape; each channel is the smaller of the image's own color and the given color.
RetainPtr<UIImage> darkenWithColor(const UIImage&, const UIColor&);

/// The image's shape filled with the color.
RetainPtr<UIImage> fillWithColor(const UIImage&, const UIColor&);

/// The color blended over the image in the given mode. The result is masked with the image's alpha. It has
/// scale 1, whatever the screen's scale.
RetainPtr<UIImage> fillWithColorAndBlendMode(const UIImage&, const UIColor&, CGBlendMode);

} // namespace brimsound
