// From images to pixels and back.
#pragma once

#include "platform/desktop/CoreGraphics/Bitmap.h"
#include "toolkit/image/Image.h"

#include <cstddef>
#include <memory>
#include <span>

namespace brimsound::desktop {

/// The image drawn on a transparent bitmap, its size in points times the scale and rounded up. Null when
/// there is no such bitmap.
std::shared_ptr<const Bitmap> rasterized(const toolkit::Image&, double scale);

/// The picture in a PNG file's bytes. Null when they are none.
std::shared_ptr<const Bitmap> readPng(std::span<const std::byte>);

} // namespace brimsound::desktop
