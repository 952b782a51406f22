// Pictures in files.
#pragma once

#include "platform/desktop/CoreGraphics/Bitmap.h"

#include <cstddef>
#include <memory>

namespace brimsound::doubles {

/// The picture in the bytes of a PNG file. Null when they are none.
std::shared_ptr<desktop::Bitmap> readPng(const void* bytes, std::size_t length);

} // namespace brimsound::doubles
