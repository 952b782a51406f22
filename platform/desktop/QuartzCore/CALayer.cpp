#include "platform/QuartzCore/CALayer.h"

#include "platform/desktop/UIKit/ViewPeer.h"

namespace brimsound {

using desktop::peerOf;

CGFloat CALayer::cornerRadius() const
{
    return peerOf(*_view).cornerRadius;
}

void CALayer::setCornerRadius(CGFloat radius) const
{
    if (peerOf(*_view).cornerRadius == radius)
        return;
    peerOf(*_view).cornerRadius = radius;
    desktop::setNeedsDisplay(*_view);
}

} // namespace brimsound
