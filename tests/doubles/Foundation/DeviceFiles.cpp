#include "tests/doubles/Foundation/DeviceFiles.h"

#include "tests/doubles/Trace.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>
#include <string_view>

namespace {

std::string& deviceRoot()
{
    static auto& root = *new std::string;
    return root;
}

bool isOnDevice(std::string_view path)
{
    return !deviceRoot().empty() && (path.starts_with("/var/mobile/") || path.starts_with("/Library/"));
}

std::string resolved(const char* path)
{
    return isOnDevice(path) ? deviceRoot() + path : path;
}

/// The function of the C library.
template <typename Function> Function* original(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

void traceWrite(const char* path)
{
    if (isOnDevice(path))
        brimsound::doubles::record(std::string("write ") + path);
}

std::FILE* openStream(const char* name, const char* path, const char* mode)
{
    auto* stream = original<std::FILE*(const char*, const char*)>(name)(resolved(path).c_str(), mode);
    if (stream && std::string_view(mode).find_first_of("wa+") != std::string_view::npos)
        traceWrite(path);
    return stream;
}

int openFile(const char* name, const char* path, int flags, mode_t mode)
{
    const int file = original<int(const char*, int, ...)>(name)(resolved(path).c_str(), flags, mode);
    if (file >= 0 && (flags & O_ACCMODE) != O_RDONLY)
        traceWrite(path);
    return file;
}

} // namespace

namespace brimsound::doubles {

void setDeviceRoot(const std::string& folder)
{
    ::deviceRoot() = folder;
}

} // namespace brimsound::doubles

// Foundation reads and writes files with these functions. They replace the C library's.
extern "C" {

std::FILE* fopen(const char* path, const char* mode)
{
    return openStream("fopen", path, mode);
}

std::FILE* fopen64(const char* path, const char* mode)
{
    return openStream("fopen64", path, mode);
}

int open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const auto mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return openFile("open", path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const auto mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return openFile("open64", path, flags, mode);
}

int access(const char* path, int mode) noexcept
{
    return original<int(const char*, int)>("access")(resolved(path).c_str(), mode);
}

int stat(const char* path, struct stat* status) noexcept
{
    return original<int(const char*, struct stat*)>("stat")(resolved(path).c_str(), status);
}

int stat64(const char* path, struct stat64* status) noexcept
{
    return original<int(const char*, struct stat64*)>("stat64")(resolved(path).c_str(), status);
}

int lstat(const char* path, struct stat* status) noexcept
{
    return original<int(const char*, struct stat*)>("lstat")(resolved(path).c_str(), status);
}

int lstat64(const char* path, struct stat64* status) noexcept
{
    return original<int(const char*, struct stat64*)>("lstat64")(resolved(path).c_str(), status);
}

} // extern "C"
