#pragma once

#include "platform/desktop/process/ChildProcess.h"
#include "tests/support/EnvironmentVariable.h"

#include <filesystem>
#include <optional>

namespace brimsound::tests {

/// A session bus that can be stopped and started again at the same address, like that of a user's session.
/// This process and its children find it there whenever it runs.
class LastingBus {
public:
    /// Starts the bus.
    LastingBus();
    LastingBus(const LastingBus&) = delete;
    LastingBus& operator=(const LastingBus&) = delete;
    ~LastingBus();

    /// Returns when the bus can be reached. Throws std::runtime_error when it cannot be started.
    void start();
    /// Kills the bus, as in a crash.
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
