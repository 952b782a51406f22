// Drawing images.
#pragma once

#include "platform/CoreGraphics/CGContext.h"
#include "platform/UIKit/UIImage.h"

namespace brimsound {

/// Begins a transparent context of a size in points, rounded up to whole pixels, and makes it the current
/// one. Its origin is the top left corner, y runs downwards: an image lies upright there when it draws
/// itself, and upside down as CGContextDrawImage draws it. `scale` is pixels a point, where 0 means the main
/// screen's. Where no such bitmap can be made the current context is none. Must be ended in either case.
void UIGraphicsBeginImageContextWithOptions(CGSize, CGFloat scale);
/// The same with scale 1.
void UIGraphicsBeginImageContext(CGSize);
/// Brings back the context that was current before.
void UIGraphicsEndImageContext();

/// Null when there is none.
CGContextRef UIGraphicsGetCurrentContext();

/// What is in the current context now, at the context's scale. Null when there is none.
RetainPtr<UIImage> UIGraphicsGetImageFromCurrentImageContext();

} // namespace brimsound
