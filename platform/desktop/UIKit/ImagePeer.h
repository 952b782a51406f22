// What stands behind a UIImage.
#pragma once

#include "platform/UIKit/UIImage.h"
#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/UIKit/Canvas.h"

namespace brimsound::desktop {

/// An image knows its size, how to draw itself, and its pixels. Those of one that is drawn by operations are
/// made, for the screen's scale, when they are first asked for.
struct ImagePeer : Peer {
    /// In points.
    CGSize size;

    /// Draws the image over the rectangle.
    virtual void draw(Canvas&, const CGRect&) const = 0;

    /// The pixels, which stay the image's, and how many of them make a point. Null where there is no memory
    /// for them.
    virtual CGImageRef picture() const;
    virtual double scale() const;

private:
    void makePixels() const;

    mutable RetainPtr<CGImage> _picture;
    mutable double _scale = 0;
};

const ImagePeer& peerOf(const UIImage&);

/// Makes an image; takes the peer over.
RetainPtr<UIImage> makeImage(ImagePeer*);
/// An image of pixels, so many a point. Null for null.
RetainPtr<UIImage> makeImage(const RetainPtr<CGImage>&, double scale);

} // namespace brimsound::desktop
