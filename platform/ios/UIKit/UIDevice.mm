#include "platform/UIKit/UIDevice.h"

#include "platform/ios/Foundation/NativeText.h"

#import <UIKit/UIKit.h>

namespace brimsound {

const UIDevice& UIDevice::currentDevice()
{
    static const UIDevice device;
    return device;
}

std::string UIDevice::systemVersion() const
{
    return ios::textOf([[::UIDevice currentDevice] systemVersion]);
}

} // namespace brimsound
