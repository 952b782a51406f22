// What stands behind a CGImage.
#pragma once

#include "platform/CoreGraphics/CGImage.h"
#include "platform/desktop/CoreGraphics/Bitmap.h"

namespace brimsound::desktop {

/// The picture of the bitmap, which nobody changes any more. Null for null.
RetainPtr<CGImage> makeCGImage(std::shared_ptr<const Bitmap>);

const Bitmap& bitmapOf(const CGImage&);

} // namespace brimsound::desktop
