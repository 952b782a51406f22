// Images under test.
#pragma once

#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIGraphics.h"

namespace brimsound::tests {

/// An image of that size in points, at scale 1, of one color.
inline RetainPtr<UIImage> filledImage(CGSize size, const RetainPtr<UIColor>& color)
{
    UIGraphicsBeginImageContext(size);
    color->setFill();
    CGContextFillRect(UIGraphicsGetCurrentContext(), { {}, size });
    auto image = UIGraphicsGetImageFromCurrentImageContext();
    UIGraphicsEndImageContext();
    return image;
}

} // namespace brimsound::tests
