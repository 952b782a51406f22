#include "platform/QuartzCore/CALayer.h"

#include "platform/desktop/UIKit/HostedView.h"

namespace brimsound {

CGFloat CALayer::cornerRadius() const
{
    return desktop::nativeView(*_view).cornerRadius();
}

void CALayer::setCornerRadius(CGFloat radius) const
{
    desktop::nativeView(*_view).setCornerRadius(radius);
}

} // namespace brimsound
