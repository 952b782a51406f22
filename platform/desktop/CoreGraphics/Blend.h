// Blends that the library for them lacks, or takes its time for.
#pragma once

#include "platform/desktop/CoreGraphics/Bitmap.h"

#include <array>

namespace brimsound::desktop {

/// One pixel: red, green, blue, alpha, premultiplied.
using Pixel = std::array<std::uint8_t, Bitmap::bytesPerPixel>;

/// Fills with the color in CGBlendMode::Darken, rounding to the nearest: the same bytes as pixman's, in a
/// tenth of the time.
void fillDarkening(const Pixels&, const Pixel&);

/// Lays the source, which is as large, over the destination in CGBlendMode::PlusDarker, which pixman has not.
void addDarkening(const Pixels& destination, const Pixels& source);

} // namespace brimsound::desktop
