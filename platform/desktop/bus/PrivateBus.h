#pragma once

#include "platform/desktop/process/ChildProcess.h"

#include <optional>
#include <string>

namespace brimsound::desktop {

/// Runs a session bus for this process and the programs that it starts. The bus ends with this object or this
/// process, whichever is first; the destructor restores the environment. Connections that are already open
/// are not affected.
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
