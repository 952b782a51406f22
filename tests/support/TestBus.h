#pragma once

#include "platform/desktop/bus/BusPointers.h"
#include "platform/desktop/bus/PrivateBus.h"

#include <optional>
#include <string>

namespace brimsound::tests {

/// A session bus of the test's own, which this process and its children use until it is stopped. A connection
/// of the process to another bus is replaced by one to this bus.
class TestBus {
public:
    TestBus();
    TestBus(const TestBus&) = delete;
    TestBus& operator=(const TestBus&) = delete;
    ~TestBus();

    /// Ends the bus as in a crash: this process's connection notices it at its next use.
    void stop();

    /// Another connection, as another process would have. Only the test handles its messages.
    desktop::BusConnection connectAnother();

    /// Posts a Darwin notification as another process would. The bus has passed it on when this returns.
    void postFromAnotherProcess(const std::string& name);

private:
    std::optional<desktop::PrivateBus> _bus;
};

} // namespace brimsound::tests
