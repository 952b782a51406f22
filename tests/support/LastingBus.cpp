#include "tests/support/LastingBus.h"

#include "platform/desktop/bus/SessionBus.h"

#include <csignal>
#include <cstdlib>
#include <stdexcept>

namespace brimsound::tests {

namespace {

std::filesystem::path newFolder()
{
    auto pattern = (std::filesystem::temp_directory_path() / "brimsound-bus-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("no folder for a bus");
    return pattern;
}

} // namespace

LastingBus::LastingBus()
    : _folder(newFolder())
    , _address("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + socket().string()).c_str())
{
    // Lets the connection notice that the bus of an earlier test has ended.
    desktop::SessionBus::shared().process();
    start();
}

LastingBus::~LastingBus()
{
    kill();
    desktop::SessionBus::shared().process();
    std::filesystem::remove_all(_folder);
}

void LastingBus::start()
{
    _daemon.emplace(std::vector<std::string> { "dbus-daemon", "--session", "--nofork", "--nopidfile",
                        "--print-address=1", "--address=unix:path=" + socket().string() },
        desktop::ChildProcess::Output::Piped);
    if (!_daemon->readLine(std::chrono::seconds(10)))
        throw std::runtime_error("dbus-daemon printed no address");
}

void LastingBus::kill()
{
    if (_daemon)
        _daemon->signal(SIGKILL);
    _daemon.reset();
    // A socket left by a crash would prevent the next start.
    std::filesystem::remove(socket());
}

} // namespace brimsound::tests
