// Shell commands.
#pragma once

#include <cstdio>

namespace brimsound {

/// Runs a shell command and waits for its end. The exit status as the C library's `system` gives it.
int system(const char* command);

/// Starts a shell command whose output can be read from the stream (mode "r"); null when it cannot be
/// started. To be closed with pclose, which waits for the command's end and gives its exit status.
std::FILE* popen(const char* command, const char* mode);
int pclose(std::FILE*);

} // namespace brimsound
