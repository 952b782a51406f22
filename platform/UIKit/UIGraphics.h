// Contexts for drawing images.
#pragma once

#include "platform/CoreGraphics/CGContext.h"
#include "platform/UIKit/UIImage.h"

namespace brimsound {

/// Begins a transparent context with a size in points, rounded up to whole pixels, and makes it current. Its
/// origin is the top left corner and y points down: UIImage draws upright there, CGContextDrawImage upside
/// down. `scale` is the number of pixels per point; 0 means the main screen's. When the bitmap cannot be
/// created there is no current context. Each call must be paired with UIGraphicsEndImageContext, even then.
void UIGraphicsBeginImageContextWithOptions(CGSize, CGFloat scale);
/// The same with scale 1.
void UIGraphicsBeginImageContext(CGSize);
/// Restores the previous context.
void UIGraphicsEndImageContext();

/// Null when there is none.
CGContextRef UIGraphicsGetCurrentContext();

/// A copy of what is in the current context, at the context's scale. Null when there is no context.
RetainPtr<UIImage> UIGraphicsGetImageFromCurrentImageContext();

} // namespace brimsound
