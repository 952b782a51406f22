// Images.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/CoreGraphics/CGImage.h"
#include "platform/Foundation/NSObject.h"

#include <string>

namespace brimsound {

/// An unchanging image.
class UIImage : public NSObject {
public:
    /// The picture at scale 1. Null for null.
    static RetainPtr<UIImage> imageWithCGImage(CGImageRef);
    /// The PNG file at a device path, at the scale that its name ends in before the extension: 2 for
    /// "plus@2x.png" and "plus@2x~ipad.png", 3 for "@3x", else 1. Null when there is none or it cannot be
    /// read.
    static RetainPtr<UIImage> imageWithContentsOfFile(const std::string& path);

    /// Width and height in points.
    CGSize size() const;
    /// Pixels a point.
    CGFloat scale() const;
    /// The image's pixels; the image's own.
    CGImageRef CGImage() const;

    /// Stretches the image over the rectangle, upright, in the current context (UIGraphics.h), if there is
    /// one.
    void drawInRect(const CGRect&) const;

protected:
    explicit UIImage(Peer*);
};

} // namespace brimsound
