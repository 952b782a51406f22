// A session bus of this program's own.
#pragma once

#include "platform/desktop/process/ChildProcess.h"

#include <optional>
#include <string>

namespace brimsound::desktop {

/// Runs a session bus and makes it the one that this process, and the programs it starts, find. It ends with
/// this object or this process; then the environment is as it was before. Does not touch a connection that is
/// open already.
class PrivateBus {
public:
    /// Throws std::runtime_error when the bus cannot be started.
    PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus();

    bool running() { return _daemon.running(); }
    const std::string& address() const { return _address; }

private:
    ChildProcess _daemon;
    std::string _address;
    std::optional<std::string> _addressBefore;
};

} // namespace brimsound::desktop
