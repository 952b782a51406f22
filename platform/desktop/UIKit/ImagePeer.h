// What stands behind a UIImage.
#pragma once

#include "platform/UIKit/UIImage.h"
#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/UIKit/Canvas.h"

namespace brimsound::desktop {

/// An image knows its size and how to draw itself.
struct ImagePeer : Peer {
    /// In points.
    CGSize size;

    /// Draws the image over the rectangle.
    virtual void draw(Canvas&, const CGRect&) const = 0;
};

const ImagePeer& peerOf(const UIImage&);

/// Makes an image; takes the peer over.
RetainPtr<UIImage> makeImage(ImagePeer*);

} // namespace brimsound::desktop
