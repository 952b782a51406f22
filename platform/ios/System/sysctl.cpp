#include "platform/System/sysctl.h"

// Declared in <sys/sysctl.h> of the iOS SDK.
extern "C" int sysctlbyname(
    const char* name, void* value, std::size_t* size, void* newValue, std::size_t newSize);

namespace brimsound {

int sysctlbyname(const char* name, void* value, std::size_t* size, void* newValue, std::size_t newSize)
{
    return ::sysctlbyname(name, value, size, newValue, newSize);
}

} // namespace brimsound
