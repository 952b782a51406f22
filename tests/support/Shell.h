#pragma once

#include "platform/desktop/process/ChildProcess.h"

#include <string>

namespace brimsound::tests {

/// The first line of the shell command's output; empty when there is none.
inline std::string firstLineOf(const std::string& command)
{
    desktop::ChildProcess shell({ "sh", "-c", command }, desktop::ChildProcess::Output::Piped);
    return shell.readLine(std::chrono::seconds(10)).value_or("");
}

} // namespace brimsound::tests
