#pragma once

#include "platform/CoreGraphics/CGImage.h"
#include "platform/desktop/CoreGraphics/Bitmap.h"

namespace brimsound::desktop {

/// An image of the bitmap, which must not change any more. Null for null.
RetainPtr<CGImage> makeCGImage(std::shared_ptr<const Bitmap>);

const Bitmap& bitmapOf(const CGImage&);

} // namespace brimsound::desktop
