#include "platform/desktop/bus/SessionBus.h"

#include "platform/desktop/bus/Interfaces.h"

#include <cerrno>

namespace brimsound::desktop {

SessionBus& SessionBus::shared()
{
    static SessionBus bus;
    return bus;
}

sd_bus* SessionBus::connection()
{
    if (_bus && sd_bus_is_open(_bus.get()) <= 0)
        close();
    if (!_bus)
        open();
    return _bus.get();
}

int SessionBus::fd()
{
    return _bus ? sd_bus_get_fd(_bus.get()) : -1;
}

void SessionBus::open()
{
    sd_bus* opened = nullptr;
    if (sd_bus_open_user(&opened) < 0)
        return;
    BusConnection bus(opened);
    if (!subscribe(bus.get()))
        return;
    _bus = std::move(bus);
    if (onReconnect)
        onReconnect();
}

bool SessionBus::subscribe(sd_bus* bus)
{
    // Waits for the bus to answer, so a connection that is kept is known to work.
    return sd_bus_match_signal(bus, nullptr, nullptr, notificationsPath, notificationsInterface, postedSignal,
               notificationPosted, this)
        >= 0
        && sd_bus_match_signal(bus, nullptr, "org.freedesktop.DBus", "/org/freedesktop/DBus",
               "org.freedesktop.DBus", "NameOwnerChanged", ownerChanged, this)
        >= 0;
}

void SessionBus::close()
{
    _bus.reset();
    if (onReconnect)
        onReconnect();
}

bool SessionBus::hasOwner(const std::string& busName)
{
    return connection() && sd_bus_get_name_creds(_bus.get(), busName.c_str(), 0, nullptr) >= 0;
}

void SessionBus::subscribeToNotifications(std::function<void(std::string_view)> handler)
{
    _handlers.push_back(std::move(handler));
    connection();
}

void SessionBus::watchForLoss(const std::string& busName, std::function<void()> handler)
{
    _lossHandlers[busName] = std::move(handler);
    connection();
}

int SessionBus::ownerChanged(sd_bus_message* message, void* self, sd_bus_error*)
{
    const char* name = nullptr;
    const char* before = nullptr;
    const char* after = nullptr;
    if (sd_bus_message_read(message, "sss", &name, &before, &after) <= 0 || *after)
        return 0;
    const auto& handlers = static_cast<SessionBus*>(self)->_lossHandlers;
    if (const auto found = handlers.find(name); found != handlers.end())
        found->second();
    return 0;
}

int SessionBus::notificationPosted(sd_bus_message* message, void* self, sd_bus_error*)
{
    const char* name = nullptr;
    if (sd_bus_message_has_signature(message, "s") && sd_bus_message_read(message, "s", &name) > 0) {
        for (const auto& handler : static_cast<SessionBus*>(self)->_handlers)
            handler(name);
    }
    return 0;
}

void SessionBus::process()
{
    while (_bus) {
        const int handled = sd_bus_process(_bus.get(), nullptr);
        // Busy: this was called by a handler, and the call that is under way goes on afterwards.
        if (handled == 0 || handled == -EBUSY)
            return;
        if (handled < 0 || sd_bus_is_open(_bus.get()) <= 0)
            close();
    }
}

void SessionBus::drain()
{
    if (connection()) {
        sd_bus_call_method(_bus.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus",
            "org.freedesktop.DBus.Peer", "Ping", nullptr, nullptr, nullptr);
    }
    process();
}

} // namespace brimsound::desktop
