// What the system tells of itself.
#pragma once

#include <cstddef>

namespace brimsound {

/// Reads the value of that name ("hw.machine": the machine's model) into a buffer of `*size` bytes, NUL
/// included, and sets `*size` to the bytes it takes; a null buffer only asks for the size. Nothing can be
/// set: the last two are null and 0. 0 when all is well; -1 for an unknown name or a buffer that is too
/// small.
int sysctlbyname(const char* name, void* value, std::size_t* size, void* newValue, std::size_t newSize);

} // namespace brimsound
