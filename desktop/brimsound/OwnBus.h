// The session bus that the app brings along.
#pragma once

#include "platform/desktop/bus/PrivateBus.h"

#include <optional>

namespace brimsound::desktop {

/// Starts a session bus where there is none, and starts it again when it ended and is looked for. It ends
/// with this object.
class OwnBus {
public:
    /// Throws std::runtime_error when there is no bus and none can be started.
    OwnBus();
    OwnBus(const OwnBus&) = delete;
    OwnBus& operator=(const OwnBus&) = delete;
    ~OwnBus();

private:
    bool startAgain();

    /// Nothing while somebody else's is used.
    std::optional<PrivateBus> _bus;
};

} // namespace brimsound::desktop
