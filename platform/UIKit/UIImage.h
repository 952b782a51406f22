#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/CoreGraphics/CGImage.h"
#include "platform/Foundation/NSObject.h"

#include <string>

namespace brimsound {

/// An immutable image.
class UIImage : public NSObject {
public:
    /// The picture at scale 1. Null for null.
    static RetainPtr<UIImage> imageWithCGImage(CGImageRef);
    /// Reads the PNG file at a device path. The end of its name, before the extension, gives the scale: 2 for
    /// "plus@2x.png" and "plus@2x~ipad.png", 3 for "@3x", otherwise 1. Null when the file is missing or
    /// cannot be read.
    static RetainPtr<UIImage> imageWithContentsOfFile(const std::string& path);

    /// Width and height in points.
    CGSize size() const;
    /// Pixels per point.
    CGFloat scale() const;
    /// The image's pixels, owned by the image.
    CGImageRef CGImage() const;

    /// Stretches the image over the rectangle, upright, in the current context (UIGraphics.h), if there is
    /// one.
    void drawInRect(const CGRect&) const;

protected:
    explicit UIImage(Peer*);
};

} // namespace brimsound
