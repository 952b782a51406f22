#include "platform/desktop/bus/PrivateBus.h"

#include <cstdlib>
#include <stdexcept>

namespace brimsound::desktop {

namespace {

constexpr auto addressVariable = "DBUS_SESSION_BUS_ADDRESS";

}

PrivateBus::PrivateBus()
    : _daemon({ "dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1" },
        ChildProcess::Output::Piped)
{
    const auto address = _daemon.readLine(std::chrono::seconds(10));
    if (!address)
        throw std::runtime_error("cannot start a session bus: dbus-daemon printed no address");
    _address = *address;
    if (const char* before = std::getenv(addressVariable))
        _addressBefore = before;
    setenv(addressVariable, _address.c_str(), 1);
}

PrivateBus::~PrivateBus()
{
    if (_addressBefore)
        setenv(addressVariable, _addressBefore->c_str(), 1);
    else
        unsetenv(addressVariable);
}

} // namespace brimsound::desktop
