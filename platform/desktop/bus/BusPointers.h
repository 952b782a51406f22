// Owners of sd-bus's reference-counted objects.
#pragma once

#include <systemd/sd-bus.h>

#include <memory>

namespace brimsound::desktop {

/// Closes a connection without flushing it: waiting for a bus that does not read could take forever.
struct BusUnref {
    void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
    void operator()(sd_bus_slot* slot) const { sd_bus_slot_unref(slot); }
};

using BusConnection = std::unique_ptr<sd_bus, BusUnref>;
using BusMessage = std::unique_ptr<sd_bus_message, BusUnref>;
/// A pending call or match. Destroying it cancels the call or match.
using BusSlot = std::unique_ptr<sd_bus_slot, BusUnref>;

/// The error of a call; empty when there was none.
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
