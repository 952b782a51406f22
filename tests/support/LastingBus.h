// A session bus that goes away and comes back.
#pragma once

#include "platform/desktop/process/ChildProcess.h"
#include "tests/support/EnvironmentVariable.h"

#include <filesystem>
#include <optional>

namespace brimsound::tests {

/// A session bus at an address that stays the same, as the one of a user's session does. This process and its
/// children find it there whenever it runs.
class LastingBus {
public:
    /// Starts the bus.
    LastingBus();
    LastingBus(const LastingBus&) = delete;
    LastingBus& operator=(const LastingBus&) = delete;
    ~LastingBus();

    /// Comes back when the bus can be reached; throws std::runtime_error when it cannot be started.
    void start();
    /// Ends the bus as a crash would.
    void kill();

    desktop::ChildProcess& process() { return *_daemon; }
    /// The socket that the bus listens on.
    std::filesystem::path socket() const { return _folder / "bus"; }

private:
    std::filesystem::path _folder;
    EnvironmentVariable _address;
    std::optional<desktop::ChildProcess> _daemon;
};

} // namespace brimsound::tests
