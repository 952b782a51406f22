// A session bus of a test's own.
#pragma once

#include "platform/desktop/bus/BusPointers.h"
#include "platform/desktop/bus/PrivateBus.h"

#include <optional>
#include <string>

namespace brimsound::tests {

/// A session bus that nobody else is on, which this process and its children find until it is stopped. A
/// connection that the process had to another bus is opened anew, to this one.
class TestBus {
public:
    TestBus();
    TestBus(const TestBus&) = delete;
    TestBus& operator=(const TestBus&) = delete;
    ~TestBus();

    /// Ends the bus as a crash would: this process's connection finds out when it is used next.
    void stop();

    /// A connection beside this process's own one, as another process would have it. It is served by the test
    /// alone.
    desktop::BusConnection connectAnother();

    /// Posts a Darwin notification as another process would; it is on its way to all when this returns.
    void postFromAnotherProcess(const std::string& name);

private:
    std::optional<desktop::PrivateBus> _bus;
};

} // namespace brimsound::tests
