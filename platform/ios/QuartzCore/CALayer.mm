#include "platform/QuartzCore/CALayer.h"

#include "platform/ios/UIKit/NativeView.h"

#import <QuartzCore/QuartzCore.h>

namespace brimsound {

CGFloat CALayer::cornerRadius() const
{
    return [[ios::nativeView(*_view) layer] cornerRadius];
}

void CALayer::setCornerRadius(CGFloat radius) const
{
    [[ios::nativeView(*_view) layer] setCornerRadius:radius];
}

} // namespace brimsound
