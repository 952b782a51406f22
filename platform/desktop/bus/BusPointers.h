// Owners of sd-bus's counted objects.
#pragma once

#include <systemd/sd-bus.h>

#include <memory>

namespace brimsound::desktop {

/// A connection is closed as it is: to wait until a bus has taken what was not sent yet could take for ever.
struct BusUnref {
    void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
    void operator()(sd_bus_slot* slot) const { sd_bus_slot_unref(slot); }
};

using BusConnection = std::unique_ptr<sd_bus, BusUnref>;
using BusMessage = std::unique_ptr<sd_bus_message, BusUnref>;
/// A call that waits for its answer; it is forgotten with this.
using BusSlot = std::unique_ptr<sd_bus_slot, BusUnref>;

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
