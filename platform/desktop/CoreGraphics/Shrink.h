#pragma once

#include "platform/desktop/CoreGraphics/Bitmap.h"

namespace brimsound::desktop {

/// The picture scaled down to this size; neither side may be larger than before. Each new pixel is the mean
/// of the area that it covers, rounded to the nearest level. Null without enough memory.
std::shared_ptr<Bitmap> shrunk(const Pixels&, std::size_t width, std::size_t height);

} // namespace brimsound::desktop
