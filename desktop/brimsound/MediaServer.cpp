#include "desktop/brimsound/MediaServer.h"

#include "platform/desktop/bus/SessionBus.h"
#include "settings/tweak.h"
#include "toolkit/time/Clock.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <thread>

namespace brimsound::desktop {

namespace {

using namespace std::chrono_literals;

/// How long the app waits for a server to answer: when the app starts, and while the pane is in use.
constexpr auto firstPatience = 5s;
constexpr auto laterPatience = 500ms;
/// How long the app waits for an enabled service. After log-in or a respring, the service takes a moment.
constexpr auto servicePatience = 5s;
/// How long to wait for a server process to end after it has lost its name. It loses the name just before.
constexpr auto endPatience = 100ms;
constexpr auto pollInterval = 5ms;
/// When servers repeatedly end sooner than this after their start, the next start is delayed, so that they do
/// not keep the machine busy.
constexpr auto quickEnd = 1s;
constexpr int mostQuickEnds = 5;
/// The delay before the first check for a missing server, in seconds. Each further delay is twice as long.
constexpr double firstPause = 1;
constexpr double longestPause = 8;

bool isServed()
{
    return SessionBus::shared().hasOwner(messagingCenterName);
}

} // namespace

MediaServer::MediaServer(std::filesystem::path program, std::filesystem::path root, Sound sound)
    : _program(std::move(program))
    , _root(std::move(root))
    , _sound(sound)
{
    if (!isServed() && !serviceStarts())
        start(firstPatience);
    SessionBus::shared().watchForLoss(messagingCenterName, [this] { serverLost(); });
}

MediaServer::~MediaServer()
{
    SessionBus::shared().watchForLoss(messagingCenterName, [] {});
    cancelNext();
}

/// Asks for the service and waits. Returns whether a server is on the bus.
bool MediaServer::serviceStarts() const
{
    if (_sound == Sound::LeftAlone)
        return false;
    std::optional<bool> answer;
    const ServiceStart request(messagingCenterName, [&](bool served) { answer = served; });
    const auto deadline = std::chrono::steady_clock::now() + servicePatience;
    while (!answer && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(pollInterval);
        SessionBus::shared().process();
    }
    return answer.value_or(false);
}

void MediaServer::start(std::chrono::milliseconds patience)
{
    std::vector<std::string> command { _program, "--root", _root };
    if (_sound == Sound::LeftAlone)
        command.emplace_back("--silent");
    _process = std::make_unique<ChildProcess>(std::move(command));
    _started = std::chrono::steady_clock::now();
    for (;;) {
        // Checked first: if this server ends because another pane started one faster, the name is still
        // served.
        const bool running = _process->running();
        if (isServed())
            return;
        if (!running || std::chrono::steady_clock::now() > _started + patience)
            throw std::runtime_error("the media server did not start");
        std::this_thread::sleep_for(pollInterval);
    }
}

void MediaServer::serverLost()
{
    const bool endedQuickly = std::chrono::steady_clock::now() < _started + quickEnd;
    _quickEnds = endedQuickly ? _quickEnds + 1 : 0;
    if (!endedQuickly)
        _pause = firstPause;
    if (_quickEnds > mostQuickEnds)
        lookAgain();
    else
        startIfMissing();
}

void MediaServer::startIfMissing()
{
    // Without a bus no server can work. The loss is reported when the bus is back.
    if (!SessionBus::shared().connection() || isServed())
        return;
    if (_process && !_process->exitStatus(endPatience)) {
        lookAgain();
        return;
    }
    if (_sound == Sound::LeftAlone) {
        startOwn();
        return;
    }
    const std::chrono::duration<double> patience = servicePatience;
    callNext(patience.count(), [this] {
        _serviceStart.reset();
        startOwn();
    });
    _serviceStart.emplace(messagingCenterName, [this](bool served) {
        cancelNext();
        if (served)
            _started = std::chrono::steady_clock::now();
        else
            startOwn();
    });
}

void MediaServer::startOwn()
{
    try {
        start(laterPatience);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "brimsound: %s\n", error.what());
        lookAgain();
    }
}

void MediaServer::lookAgain()
{
    callNext(_pause, [this] { startIfMissing(); });
    _pause = std::min(2 * _pause, longestPause);
}

/// Calls the action after that many seconds, instead of the one that was to be called next.
void MediaServer::callNext(double delay, std::function<void()> action)
{
    cancelNext();
    _next = toolkit::Clock::shared().after(delay, [this, action = std::move(action)] {
        _next.reset();
        action();
    });
}

void MediaServer::cancelNext()
{
    if (_next)
        toolkit::Clock::shared().cancel(*_next);
    _next.reset();
}

} // namespace brimsound::desktop
