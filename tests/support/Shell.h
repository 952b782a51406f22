// What the shell has to say.
#pragma once

#include "platform/desktop/process/ChildProcess.h"

#include <string>

namespace brimsound::tests {

/// The first line that the shell command prints; empty when it prints none.
inline std::string firstLineOf(const std::string& command)
{
    desktop::ChildProcess shell({ "sh", "-c", command }, desktop::ChildProcess::Output::Piped);
    return shell.readLine(std::chrono::seconds(10)).value_or("");
}

} // namespace brimsound::tests
