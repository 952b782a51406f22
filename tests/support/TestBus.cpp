#include "tests/support/TestBus.h"

#include "platform/desktop/bus/DarwinNotifyPost.h"
#include "platform/desktop/bus/SessionBus.h"

#include <stdexcept>

namespace brimsound::tests {

TestBus::TestBus()
{
    _bus.emplace();
    // Lets the connection notice that the bus of an earlier test has ended, and opens it to this one.
    desktop::SessionBus::shared().process();
    desktop::SessionBus::shared().connection();
}

TestBus::~TestBus()
{
    stop();
    desktop::SessionBus::shared().process();
}

void TestBus::stop()
{
    _bus.reset();
}

desktop::BusConnection TestBus::connectAnother()
{
    sd_bus* opened = nullptr;
    if (sd_bus_open_user(&opened) < 0)
        throw std::runtime_error("cannot connect to the bus");
    return desktop::BusConnection(opened);
}

void TestBus::postFromAnotherProcess(const std::string& name)
{
    if (!desktop::darwinNotifyPost(name))
        throw std::runtime_error("cannot post on the bus");
}

} // namespace brimsound::tests
