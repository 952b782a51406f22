// What a process takes of the machine.
#pragma once

#include <sys/types.h>

#include <cstddef>

namespace brimsound::tests {

/// Bytes of memory that the process really holds.
std::size_t residentBytes(pid_t);

/// How many descriptors the process has open; 0 once it has ended.
std::size_t openDescriptors(pid_t);

/// Whether this program and those it starts are built with AddressSanitizer, which takes memory and time of
/// its own.
bool isSanitized();

} // namespace brimsound::tests
