#include "platform/desktop/bus/DarwinNotifyPost.h"

#include "platform/desktop/bus/Interfaces.h"
#include "platform/desktop/bus/OpenBus.h"

namespace brimsound::desktop {

bool darwinNotifyPost(const std::string& name)
{
    const auto bus = openSessionBus();
    if (!bus
        || sd_bus_emit_signal(
               bus.get(), notificationsPath, notificationsInterface, postedSignal, "s", name.c_str())
            < 0)
        return false;
    // Messages are handled in order: the reply to a later call shows that the bus has passed the signal on.
    return sd_bus_call_method(bus.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus",
               "org.freedesktop.DBus.Peer", "Ping", nullptr, nullptr, nullptr)
        >= 0;
}

} // namespace brimsound::desktop
