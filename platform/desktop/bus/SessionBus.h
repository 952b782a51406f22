// This process's one connection to the session bus.
#pragma once

#include "platform/desktop/bus/BusPointers.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace brimsound::desktop {

/// A connection that is opened on first use, and opened anew on the next use after it was lost; what was
/// subscribed to is subscribed to again then. Main thread only. It is served by whoever runs the main loop:
/// `process` when `fd` is readable, and after any call that waited for a reply (such a call may have taken
/// other messages in; `onPending` is told).
class SessionBus {
public:
    static SessionBus& shared();

    /// The open connection, owned by this object; null when there is no session bus to be reached.
    sd_bus* connection();
    /// The descriptor to watch for input; -1 without a connection.
    int fd();

    /// Whether a process on the bus owns the name.
    bool hasOwner(const std::string& busName);

    /// Calls the handler with the name of every Darwin notification posted on the bus.
    void subscribeToNotifications(std::function<void(std::string_view name)> handler);

    /// Calls the handler whenever a name loses its last owner.
    void watchForLoss(const std::string& busName, std::function<void()> handler);

    /// Handles every message that has arrived, without waiting.
    void process();
    /// Handles every message that was posted by this process, or by another one before this call: makes a
    /// round trip to the bus, so that all of them have arrived, then processes.
    void drain();

    /// Set by the main loop: called when messages may be waiting that the descriptor no longer shows.
    std::function<void()> onPending;
    /// Set by the main loop: called when the descriptor changed, because the connection was opened or lost.
    std::function<void()> onReconnect;

private:
    SessionBus() = default;

    void open();
    void close();
    bool subscribe(sd_bus*);
    static int ownerChanged(sd_bus_message*, void* self, sd_bus_error*);
    static int notificationPosted(sd_bus_message*, void* self, sd_bus_error*);

    BusConnection _bus;
    std::vector<std::function<void(std::string_view)>> _handlers;
    std::map<std::string, std::function<void()>> _lossHandlers;
};

} // namespace brimsound::desktop
