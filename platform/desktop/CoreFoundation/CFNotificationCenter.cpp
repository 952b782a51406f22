#include "platform/CoreFoundation/CFNotificationCenter.h"

#include "platform/desktop/bus/Interfaces.h"
#include "platform/desktop/bus/SessionBus.h"
#include "platform/desktop/effects/Effects.h"

#include <algorithm>
#include <vector>

namespace brimsound {

class CFNotificationCenter {
public:
    void addObserver(void* object, CFNotificationCallback callback, const std::string& name)
    {
        if (_observers.empty())
            desktop::SessionBus::shared().subscribeToNotifications([this](auto posted) { deliver(posted); });
        _observers.push_back({ object, callback, name });
    }

private:
    struct Observer {
        void* object;
        CFNotificationCallback callback;
        std::string name;
    };

    void deliver(std::string_view name)
    {
        // A copy, since a callback may add observers.
        std::vector<Observer> called;
        std::copy_if(_observers.begin(), _observers.end(), std::back_inserter(called),
            [&](const Observer& observer) { return observer.name == name; });
        if (called.empty())
            return;
        desktop::effects().notificationDelivered(name);
        for (const auto& observer : called)
            observer.callback(this, observer.object, name, nullptr, nullptr);
    }

    std::vector<Observer> _observers;
};

namespace {

bool post(sd_bus* bus, const std::string& name)
{
    return bus
        && sd_bus_emit_signal(bus, desktop::notificationsPath, desktop::notificationsInterface,
               desktop::postedSignal, "s", name.c_str())
        >= 0;
}

} // namespace

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter()
{
    static CFNotificationCenter center;
    return &center;
}

void CFNotificationCenterAddObserver(CFNotificationCenterRef center, void* observer,
    CFNotificationCallback callback, const std::string& name, const void*, CFNotificationSuspensionBehavior)
{
    center->addObserver(observer, callback, name);
}

void CFNotificationCenterPostNotification(
    CFNotificationCenterRef, const std::string& name, const void*, const PropertyList::Dictionary*, bool)
{
    auto& bus = desktop::SessionBus::shared();
    auto* connection = bus.connection();
    // The first attempt can fail because the connection was lost; connection() then opens a new one.
    if (post(connection, name) || (connection && post(bus.connection(), name)))
        desktop::effects().notificationPosted(name);
}

} // namespace brimsound
