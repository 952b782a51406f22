#include "platform/desktop/bus/ServiceStart.h"

#include "platform/desktop/bus/SessionBus.h"

#include <cstdint>

namespace brimsound::desktop {

ServiceStart::ServiceStart(const std::string& busName, std::function<void(bool)> done)
    : _done(std::move(done))
{
    if (!ask(busName))
        _done(false);
}

bool ServiceStart::ask(const std::string& busName)
{
    constexpr auto bus = "org.freedesktop.DBus";
    constexpr std::uint32_t noFlags = 0;
    constexpr std::uint64_t noTimeout = UINT64_MAX;
    auto* connection = SessionBus::shared().listener();
    sd_bus_message* created = nullptr;
    if (!connection
        || sd_bus_message_new_method_call(
               connection, &created, bus, "/org/freedesktop/DBus", bus, "StartServiceByName")
            < 0)
        return false;
    const BusMessage call(created);
    sd_bus_slot* slot = nullptr;
    if (sd_bus_message_append(created, "su", busName.c_str(), noFlags) < 0
        || sd_bus_call_async(connection, &slot, created, answered, this, noTimeout) < 0)
        return false;
    _call.reset(slot);
    return true;
}

int ServiceStart::answered(sd_bus_message* reply, void* self, sd_bus_error*)
{
    static_cast<ServiceStart*>(self)->_done(!sd_bus_message_is_method_error(reply, nullptr));
    return 0;
}

} // namespace brimsound::desktop
