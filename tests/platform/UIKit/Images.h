// Images under test.
#pragma once

#include "platform/desktop/UIKit/ImagePeer.h"

namespace brimsound::tests {

/// An image of that size in points, of one colour.
inline RetainPtr<UIImage> filledImage(CGSize size, const desktop::Color& color)
{
    struct Filled : desktop::ImagePeer {
        desktop::Color color;
        void draw(desktop::Canvas& canvas, const CGRect& rect) const override
        {
            canvas.fillRect(rect, color);
        }
    };
    auto* peer = new Filled;
    peer->size = size;
    peer->color = color;
    return desktop::makeImage(peer);
}

} // namespace brimsound::tests
