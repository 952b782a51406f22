// Making pictures smaller.
#pragma once

#include "platform/desktop/CoreGraphics/Bitmap.h"

namespace brimsound::desktop {

/// The picture in fewer pixels, or as many, along each side. Each of the new ones is the mean of the area
/// that it covers, rounded to the nearest. Null when there is no memory for it.
std::shared_ptr<Bitmap> shrunk(const Pixels&, std::size_t width, std::size_t height);

} // namespace brimsound::desktop
