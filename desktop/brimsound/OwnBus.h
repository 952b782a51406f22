#pragma once

#include "platform/desktop/bus/PrivateBus.h"

#include <optional>

namespace brimsound::desktop {

/// The app's own session bus. It is started when there is no other, and started again when it has ended and
/// is needed. It ends with this object.
class OwnBus {
public:
    /// Throws std::runtime_error when there is no bus and none can be started.
    OwnBus();
    OwnBus(const OwnBus&) = delete;
    OwnBus& operator=(const OwnBus&) = delete;
    ~OwnBus();

private:
    bool startAgain();

    /// Nothing while another bus is used.
    std::optional<PrivateBus> _bus;
};

} // namespace brimsound::desktop
