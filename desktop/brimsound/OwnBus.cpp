#include "desktop/brimsound/OwnBus.h"

#include "platform/desktop/bus/SessionBus.h"

#include <cstdio>
#include <stdexcept>

namespace brimsound::desktop {

OwnBus::OwnBus()
{
    if (SessionBus::shared().connection())
        return;
    _bus.emplace();
    SessionBus::shared().onUnreachable = [this] { return startAgain(); };
}

OwnBus::~OwnBus()
{
    SessionBus::shared().onUnreachable = nullptr;
}

bool OwnBus::startAgain()
{
    if (_bus && _bus->running())
        return false;
    // The old bus has to be destroyed first: each sets the environment variable that names the bus.
    _bus.reset();
    try {
        _bus.emplace();
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "brimsound: %s\n", error.what());
    }
    return _bus.has_value();
}

} // namespace brimsound::desktop
