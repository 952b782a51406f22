// Information about the system.
#pragma once

#include <cstddef>

namespace brimsound {

/// Reads the value of that name ("hw.machine": the machine's model) into a buffer of `*size` bytes, including
/// the terminating NUL, and sets `*size` to the number of bytes used. With a null buffer it only returns the
/// size. Values cannot be set: the last two arguments are null and 0. Returns 0 on success and -1 for an
/// unknown name or a buffer that is too small.
int sysctlbyname(const char* name, void* value, std::size_t* size, void* newValue, std::size_t newSize);

} // namespace brimsound
