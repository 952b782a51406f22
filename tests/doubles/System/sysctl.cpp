// A substitute for the device's sysctlbyname, which the C library here does not have.
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <string_view>

extern "C" int sysctlbyname(
    const char* name, void* oldp, std::size_t* oldlenp, const void* /*newp*/, std::size_t /*newlen*/)
{
    constexpr std::string_view machine = "iPhone8,1";
    if (std::string_view(name) != "hw.machine") {
        errno = ENOENT;
        return -1;
    }
    const auto size = machine.size() + 1;
    const auto room = *oldlenp;
    *oldlenp = size;
    if (!oldp)
        return 0;
    if (room < size) {
        errno = ENOMEM;
        return -1;
    }
    std::memcpy(oldp, machine.data(), size);
    return 0;
}
