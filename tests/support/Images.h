// Images with known pixels.
#pragma once

#include "platform/UIKit/UIImage.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace brimsound::tests {

/// Four bytes per pixel: red, green, blue, alpha, premultiplied, the top row first.
using Bytes = std::vector<std::uint8_t>;

/// An image with that many pixels, at scale 1.
RetainPtr<UIImage> imageOf(std::size_t width, std::size_t height, Bytes);
/// The same with that many pixels per point.
RetainPtr<UIImage> imageAtScale(CGFloat scale, std::size_t width, std::size_t height, const Bytes&);

/// The size of an image in pixels.
std::size_t widthOf(const UIImage&);
std::size_t heightOf(const UIImage&);
/// All pixels.
Bytes bytesOf(const UIImage&);
/// One pixel, counted from the top left corner.
Bytes pixelOf(const UIImage&, std::size_t x, std::size_t y);

/// That many pixels, each computed from its position.
Bytes pixels(
    std::size_t width, std::size_t height, const std::function<Bytes(std::size_t x, std::size_t y)>&);
/// Opaque pixels; neighboring pixels all differ.
Bytes pattern(std::size_t width, std::size_t height);

} // namespace brimsound::tests
