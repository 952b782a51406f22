#pragma once

#include "platform/desktop/bus/BusPointers.h"

#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace brimsound::desktop {

/// This process's two connections to the session bus: one to send and one to listen, so that a flood of
/// notifications does not delay the reply to a call. They are opened on first use, and again on the next use
/// after they were lost; subscriptions are then renewed. Main thread only. The main loop calls `process` when
/// one of the `descriptors` is readable and after `onPending`.
class SessionBus {
public:
    static SessionBus& shared();

    /// For calls and posts, which arrive in the order in which they were made. Owned by this object; null
    /// when the session bus cannot be reached. Waits for at most one second.
    sd_bus* connection();
    /// Receives subscribed signals and calls by other processes. Otherwise like `connection`.
    sd_bus* listener();
    /// The file descriptors to watch for input; -1 without a connection.
    std::array<int, 2> descriptors() const;

    /// Whether a process on the bus owns the name.
    bool hasOwner(const std::string& busName);

    /// Calls the handler with the name of each Darwin notification posted on the bus.
    void subscribeToNotifications(std::function<void(std::string_view name)> handler);

    /// Calls the handler when a name loses its last owner, and when the name has no owner after a
    /// reconnection.
    void watchForLoss(const std::string& busName, std::function<void()> handler);

    /// Handles messages that have arrived, without waiting. Returns after a few hundredths of a second even
    /// when messages are left, so that a flood does not block the main loop.
    void process();
    /// Handles all messages that this process has posted, and all that others posted before this call.
    void drain();

    /// Set by the main loop. Called when `process` left messages, for which the descriptors may not become
    /// readable again.
    std::function<void()> onPending;
    /// Set by the main loop. Called when the descriptors changed, because connections were opened or lost.
    std::function<void()> onReconnect;
    /// Set by an app that provides its own bus. Called when the bus cannot be reached; returns whether to try
    /// again.
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
