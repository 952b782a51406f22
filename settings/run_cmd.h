// Running a command for its output.
#pragma once

#include "platform/Foundation/NSData.h"

#include <optional>

namespace brimsound {

/// Everything that a shell command writes to its standard output, its exit status ignored. Waits for it to
/// end. Of a read of up to 1,023 bytes that holds a NUL only what comes before counts. Nothing, and one log
/// line, when the command cannot be started.
std::optional<NSData> run_cmd(const char* command);

} // namespace brimsound
