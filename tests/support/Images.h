// Images whose pixels a test knows.
#pragma once

#include "platform/UIKit/UIImage.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace brimsound::tests {

/// Four bytes a pixel, red, green, blue, alpha, premultiplied, the top row first.
using Bytes = std::vector<std::uint8_t>;

/// An image of so many pixels, at scale 1.
RetainPtr<UIImage> imageOf(std::size_t width, std::size_t height, Bytes);
/// The same pixels, so many a point.
RetainPtr<UIImage> imageAtScale(CGFloat scale, std::size_t width, std::size_t height, const Bytes&);

/// How many pixels an image has.
std::size_t widthOf(const UIImage&);
std::size_t heightOf(const UIImage&);
/// The pixels, all of them.
Bytes bytesOf(const UIImage&);
/// One of them, from the top left corner.
Bytes pixelOf(const UIImage&, std::size_t x, std::size_t y);

/// So many pixels, each made from where it is.
Bytes pixels(
    std::size_t width, std::size_t height, const std::function<Bytes(std::size_t x, std::size_t y)>&);
/// Opaque pixels, no two of them near each other alike.
Bytes pattern(std::size_t width, std::size_t height);

} // namespace brimsound::tests
