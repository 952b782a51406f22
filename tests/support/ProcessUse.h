// The resources that a process uses.
#pragma once

#include <sys/types.h>

#include <cstddef>

namespace brimsound::tests {

/// The resident memory of the process in bytes.
std::size_t residentBytes(pid_t);

/// The number of open descriptors of the process; 0 once it has ended.
std::size_t openDescriptors(pid_t);

/// Whether this program and those it starts are built with AddressSanitizer, which needs more memory and
/// time.
bool isSanitized();

} // namespace brimsound::tests
