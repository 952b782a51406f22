#pragma once

#include "platform/desktop/process/ChildProcess.h"

#include <optional>
#include <string>

namespace brimsound::tests {

/// Runs a real mediaserverd on the current session bus and device root, with --print and --silent, so that
/// the sound of the machine is not changed. It ends with this object.
class MediaServer {
public:
    /// Returns when the server can receive messages. Throws std::runtime_error when it ends before that.
    MediaServer();

    /// The next line that it prints, {"vals":[…]}; nothing when none comes within five seconds.
    std::optional<std::string> nextLine() { return _process.readLine(std::chrono::seconds(5)); }

    desktop::ChildProcess& process() { return _process; }

private:
    desktop::ChildProcess _process;
};

} // namespace brimsound::tests
