#pragma once

#include "platform/Foundation/NSData.h"

#include <optional>

namespace brimsound {

/// Runs a shell command, waits for it to end, and returns what it wrote to its standard output. Ignores its
/// exit status. The output is read in pieces of up to 1,023 bytes; a piece that contains a NUL counts only up
/// to it. Returns nothing and writes one log line when the command cannot be started.
std::optional<NSData> run_cmd(const char* command);

} // namespace brimsound
