// A server of a messaging center that answers as a test wants.
#pragma once

#include "platform/desktop/bus/BusPointers.h"

#include <functional>
#include <string>
#include <thread>

namespace brimsound::tests {

/// Owns a center's name on the session bus, over a connection of its own, and answers its messages on a
/// thread of its own until it goes.
class StandInServer {
public:
    /// Handles one message, as an sd-bus handler does: a reply was sent, or a negative errno.
    using Answer = std::function<int(sd_bus_message*)>;
    /// What happens when another process owns the name: this one fails, or waits until it is free.
    enum class WhenOwned { Fail, Wait };

    /// Throws std::runtime_error when the name cannot be had.
    StandInServer(const std::string& centerName, Answer, WhenOwned = WhenOwned::Fail);

private:
    static int handle(sd_bus_message*, void* self, sd_bus_error*);

    desktop::BusConnection _bus;
    Answer _answer;
    std::jthread _thread;
};

} // namespace brimsound::tests
