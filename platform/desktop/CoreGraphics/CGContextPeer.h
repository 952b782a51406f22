// What stands behind a CGContext.
#pragma once

#include "platform/CoreGraphics/CGContext.h"
#include "platform/desktop/CoreGraphics/Compositing.h"
#include "platform/desktop/Foundation/Peer.h"

#include <memory>

namespace brimsound::desktop {

/// Where the context's coordinates are on its pixels, which count from the top left corner.
struct Axes {
    double scaleX = 1;
    double scaleY = 1;
    double originX = 0;
    double originY = 0;

    double column(double x) const { return originX + scaleX * x; }
    double row(double y) const { return originY + scaleY * y; }
};

struct CGContextPeer : toolkit::Object {
    /// On memory of the caller's.
    CGContextPeer(const Pixels&, const Axes&);
    /// On a bitmap of its own.
    CGContextPeer(std::shared_ptr<Bitmap>, const Axes&);

    /// A picture of what is there now, or null.
    RetainPtr<CGImage> picture() const;

    /// Stretches the picture over the rectangle, its top edge at one of those two.
    enum class Top { AtLeastY, AtMostY };
    void draw(const CGRect&, const CGImage&, Top);
    void fillRect(const CGRect&);

    Axes axes;
    CGBlendMode blendMode = CGBlendMode::Normal;
    Color fillColor;

private:
    /// The pixels, to be drawn on: pictures that were taken of them keep what they show. Null where there is
    /// no memory for that.
    const Pixels* pixelsToDrawOn();
    /// The blend mode, or a faster one that comes to the same.
    CGBlendMode modeToDrawIn() const;

    Pixels _pixels;
    /// Nothing was drawn yet on what was made transparent.
    bool _isBlank = false;
    /// Null where the memory is the caller's. Shared with the pictures taken of it until it is drawn on
    /// again.
    std::shared_ptr<Bitmap> _bitmap;
};

CGContextPeer& peerOf(const CGContext&);

/// A context on a transparent bitmap of its own, with the origin in the top left corner, y downwards and so
/// many pixels a point. Null when there is no such bitmap.
RetainPtr<CGContext> makeContext(std::size_t width, std::size_t height, double scale);

} // namespace brimsound::desktop
