#include "platform/UIKit/UIDevice.h"

#include "platform/desktop/System/SystemVersion.h"

namespace brimsound {

const UIDevice& UIDevice::currentDevice()
{
    static const UIDevice device;
    return device;
}

std::string UIDevice::systemVersion() const
{
    return desktop::systemVersion();
}

} // namespace brimsound
