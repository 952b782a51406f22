#pragma once

#include <cstdint>
#include <span>

namespace brimsound {

/// Inverts the colors of premultiplied pixels whose bytes in memory are red, green, blue, alpha. Each color
/// byte X of a pixel with alpha A becomes A·(255 - (X·255)/A) / 255, in integer divisions that truncate
/// toward zero. The result is taken modulo 256 when X is above A, and is 0 when A is 0. The alpha stays.
void invertPixels(std::span<std::uint32_t> pixels);

} // namespace brimsound
