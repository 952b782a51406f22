// A running media server.
#pragma once

#include "platform/desktop/process/ChildProcess.h"

#include <optional>
#include <string>

namespace brimsound::tests {

/// A real mediaserverd on the session bus and the device root of the moment, with --print and --silent:
/// the sound of whoever runs the tests is left alone. It ends with this object.
class MediaServer {
public:
    /// Comes back when the server can be sent to; throws std::runtime_error when it ended before that.
    MediaServer();

    /// The next line that it prints, {"vals":[…]}; nothing when none comes within five seconds.
    std::optional<std::string> nextLine() { return _process.readLine(std::chrono::seconds(5)); }

    desktop::ChildProcess& process() { return _process; }

private:
    desktop::ChildProcess _process;
};

} // namespace brimsound::tests
