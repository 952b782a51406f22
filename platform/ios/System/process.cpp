#include "platform/System/process.h"

#include <dlfcn.h>

namespace brimsound {

int system(const char* command)
{
    // The C library has this function, but the headers for iOS declare it unavailable.
    static const auto run = reinterpret_cast<int (*)(const char*)>(dlsym(RTLD_DEFAULT, "system"));
    return run ? run(command) : -1;
}

std::FILE* popen(const char* command, const char* mode)
{
    return ::popen(command, mode);
}

int pclose(std::FILE* stream)
{
    return ::pclose(stream);
}

} // namespace brimsound
