#pragma once

#include "platform/CoreGraphics/CGImage.h"
#include "platform/UIKit/UIImage.h"
#include "toolkit/image/Image.h"

namespace brimsound::desktop {

/// An image made of pixels, with the number of pixels per point. The native object of every UIImage.
class BitmapImage : public toolkit::Image {
public:
    BitmapImage(const RetainPtr<CGImage>&, double scale);

    void draw(toolkit::Canvas&, const toolkit::Rect&) const override;

    CGImageRef picture() const { return _picture.get(); }
    double scale() const { return _scale; }

private:
    const RetainPtr<CGImage> _picture;
    const double _scale;
};

/// Null for null.
RetainPtr<UIImage> makeImage(const RetainPtr<CGImage>&, double scale);

} // namespace brimsound::desktop
