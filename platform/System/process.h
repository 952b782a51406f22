// Shell commands.
#pragma once

#include <cstdio>

namespace brimsound {

/// Runs a shell command and waits for it to end. Returns the status in the format of the C library's
/// `system`.
int system(const char* command);

/// Starts a shell command whose output can be read from the stream (mode "r"); null when it cannot be
/// started. The stream must be closed with pclose, which waits for the command to end and returns its status.
std::FILE* popen(const char* command, const char* mode);
int pclose(std::FILE*);

} // namespace brimsound
