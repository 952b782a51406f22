// Conversions between images and bitmaps.
#pragma once

#include "platform/desktop/CoreGraphics/Bitmap.h"
#include "toolkit/image/Image.h"

#include <cstddef>
#include <memory>
#include <span>

namespace brimsound::desktop {

/// The image drawn on a transparent bitmap. The size of the bitmap is the image's size in points times the
/// scale, rounded up. Null when the bitmap cannot be created.
std::shared_ptr<const Bitmap> rasterized(const toolkit::Image&, double scale);

/// Decodes a PNG file. Null when it is invalid.
std::shared_ptr<const Bitmap> readPng(std::span<const std::byte>);

} // namespace brimsound::desktop
