#include "settings/get_model.h"

#include "platform/System/sysctl.h"
#include "platform/UIKit/UIDevice.h"

#include <cstddef>
#include <cstring>

namespace brimsound {

std::string get_model()
{
    std::size_t size = 0;
    sysctlbyname("hw.machine", nullptr, &size, nullptr, 0);
    std::string machine(size, '\0');
    sysctlbyname("hw.machine", machine.data(), &size, nullptr, 0);
    // The value includes a terminating NUL.
    machine.resize(std::strlen(machine.c_str()));
    return machine + " on iOS " + UIDevice::currentDevice().systemVersion();
}

} // namespace brimsound
