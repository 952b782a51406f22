#include "platform/desktop/bus/OpenBus.h"

namespace brimsound::desktop {

BusConnection openSessionBus()
{
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + longestBusWait;
    sd_bus* opened = nullptr;
    if (sd_bus_open_user(&opened) < 0)
        return nullptr;
    BusConnection bus(opened);

    // sd-bus itself would wait for half a minute.
    while (sd_bus_is_ready(bus.get()) == 0) {
        const int handled = sd_bus_process(bus.get(), nullptr);
        if (handled > 0)
            continue;
        const auto left = std::chrono::duration_cast<std::chrono::microseconds>(deadline - Clock::now());
        if (handled < 0 || left.count() <= 0
            || sd_bus_wait(bus.get(), static_cast<std::uint64_t>(left.count())) < 0)
            return nullptr;
    }
    if (sd_bus_is_ready(bus.get()) < 0)
        return nullptr;
    sd_bus_set_method_call_timeout(bus.get(), longestBusWait.count());
    return bus;
}

} // namespace brimsound::desktop
