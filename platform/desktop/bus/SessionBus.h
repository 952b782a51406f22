// This process on the session bus.
#pragma once

#include "platform/desktop/bus/BusPointers.h"

#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace brimsound::desktop {

/// Two connections, one to speak and one to listen, so that no flood of notifications keeps the answer to a
/// call back. They are opened on first use, and opened anew on the next use after they were lost; what was
/// subscribed to is subscribed to again then. Main thread only. They are served by whoever runs the main
/// loop: `process` when one of the `descriptors` is readable, and whenever `onPending` is told.
class SessionBus {
public:
    static SessionBus& shared();

    /// For calls and posts, which arrive in the order in which they were made. Owned by this object; null
    /// when there is no session bus to be reached. One that does not answer is waited for a second.
    sd_bus* connection();
    /// What is subscribed to arrives here, and the calls that others make. As `connection` otherwise.
    sd_bus* listener();
    /// What to watch for input; -1 without a connection.
    std::array<int, 2> descriptors() const;

    /// Whether a process on the bus owns the name.
    bool hasOwner(const std::string& busName);

    /// Calls the handler with the name of every Darwin notification posted on the bus.
    void subscribeToNotifications(std::function<void(std::string_view name)> handler);

    /// Calls the handler whenever a name loses its last owner, and when nobody owns it on a bus that was
    /// reached anew.
    void watchForLoss(const std::string& busName, std::function<void()> handler);

    /// Handles messages that have arrived, without waiting. After some hundredths of a second it leaves the
    /// rest for later, so that no flood of messages holds the main loop up.
    void process();
    /// Handles every message that was posted by this process, or by another one before this call.
    void drain();

    /// Set by the main loop: called when `process` left messages that the descriptors may no longer show.
    std::function<void()> onPending;
    /// Set by the main loop: called when the descriptors changed, because the connections were opened or
    /// lost.
    std::function<void()> onReconnect;
    /// Set by an app that brings its own bus: called when there is none to be reached; whether to try again.
    std::function<bool()> onUnreachable;

private:
    SessionBus() = default;

    bool isOpen() const;
    void reopen();
    bool open();
    void close();
    bool subscribe(sd_bus*);
    void askForOwners(sd_bus*);
    bool processOne();
    static int ownerChanged(sd_bus_message*, void* self, sd_bus_error*);
    static int ownerTold(sd_bus_message*, void* handler, sd_bus_error*);
    static int notificationPosted(sd_bus_message*, void* self, sd_bus_error*);

    BusConnection _speaker;
    BusConnection _listener;
    std::vector<std::function<void(std::string_view)>> _handlers;
    std::map<std::string, std::function<void()>> _lossHandlers;
};

} // namespace brimsound::desktop
