// Inverting colors, pixel by pixel.
#pragma once

#include <cstdint>
#include <span>

namespace brimsound {

/// Inverts the colors of pixels whose bytes in memory are red, green, blue, alpha, premultiplied. Each color
/// byte X of a pixel of alpha A becomes, dividing whole numbers with truncation toward zero, A·(255 -
/// (X·255)/A) / 255, and that modulo 256 where X is above A; 0 where A is 0. The alpha stays.
void invertPixels(std::span<std::uint32_t> pixels);

} // namespace brimsound
