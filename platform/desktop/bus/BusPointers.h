// Owners of sd-bus's counted objects.
#pragma once

#include <systemd/sd-bus.h>

#include <memory>

namespace brimsound::desktop {

struct BusUnref {
    void operator()(sd_bus* bus) const { sd_bus_flush_close_unref(bus); }
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
};

using BusConnection = std::unique_ptr<sd_bus, BusUnref>;
using BusMessage = std::unique_ptr<sd_bus_message, BusUnref>;

/// An error that a call may have set.
struct BusError : sd_bus_error {
    BusError()
        : sd_bus_error { nullptr, nullptr, 0 }
    {
    }
    BusError(const BusError&) = delete;
    BusError& operator=(const BusError&) = delete;
    ~BusError() { sd_bus_error_free(this); }
};

} // namespace brimsound::desktop
