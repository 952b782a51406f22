#pragma once

#include "platform/desktop/bus/BusPointers.h"

#include <functional>
#include <string>
#include <thread>

namespace brimsound::tests {

/// A server of a messaging center with the test's own answers. It owns the center's name on the session bus
/// through its own connection, and answers messages on its own thread until it is destroyed.
class StandInServer {
public:
    /// Handles one message like an sd-bus handler: sends a reply, or returns a negative errno.
    using Answer = std::function<int(sd_bus_message*)>;
    /// What to do when another process owns the name: fail, or wait until it is free.
    enum class WhenOwned { Fail, Wait };

    /// Throws std::runtime_error when it cannot own the name.
    StandInServer(const std::string& centerName, Answer, WhenOwned = WhenOwned::Fail);

private:
    static int handle(sd_bus_message*, void* self, sd_bus_error*);

    desktop::BusConnection _bus;
    Answer _answer;
    std::jthread _thread;
};

} // namespace brimsound::tests
