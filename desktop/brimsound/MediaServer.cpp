#include "desktop/brimsound/MediaServer.h"

#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/bus/SessionBus.h"
#include "settings/tweak.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>
#include <thread>

namespace brimsound::desktop {

namespace {

using namespace std::chrono_literals;

/// How long the app waits for a server to answer: at its own start, and while the pane is in use.
constexpr auto firstPatience = 5s;
constexpr auto laterPatience = 500ms;
/// How long for one to end whose name is gone, which happens a moment before.
constexpr auto endPatience = 100ms;
constexpr auto pollInterval = 5ms;
/// When servers end sooner than this after their start, more often than this in a row, there is a pause
/// before the next start, so that they do not keep the machine busy.
constexpr auto quickEnd = 1s;
constexpr int mostQuickEnds = 5;
/// The pause before a server that is missing is looked for again, in seconds; each doubles the next one.
constexpr double firstPause = 1;
constexpr double longestPause = 8;

bool isServed()
{
    return SessionBus::shared().hasOwner(messagingCenterName);
}

} // namespace

MediaServer::MediaServer(std::filesystem::path programFolder, std::filesystem::path root, Sound sound)
    : _programFolder(std::move(programFolder))
    , _root(std::move(root))
    , _sound(sound)
{
    if (!isServed())
        start(firstPatience);
    SessionBus::shared().watchForLoss(messagingCenterName, [this] { serverLost(); });
}

MediaServer::~MediaServer()
{
    SessionBus::shared().watchForLoss(messagingCenterName, [] {});
    if (_nextLook)
        Clock::shared().cancel(*_nextLook);
}

void MediaServer::start(std::chrono::milliseconds patience)
{
    std::vector<std::string> command { _programFolder / "mediaserverd", "--root", _root };
    if (_sound == Sound::LeftAlone)
        command.emplace_back("--silent");
    _process = std::make_unique<ChildProcess>(std::move(command));
    _started = std::chrono::steady_clock::now();
    for (;;) {
        // Asked first: a server that ends because another pane's was faster leaves the name served.
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
    // Without a bus none can serve; the loss is told once there is one.
    if (!SessionBus::shared().connection() || isServed())
        return;
    if (_process && !_process->exitStatus(endPatience)) {
        lookAgain();
        return;
    }
    try {
        start(laterPatience);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "brimsound: %s\n", error.what());
        lookAgain();
    }
}

void MediaServer::lookAgain()
{
    if (_nextLook)
        Clock::shared().cancel(*_nextLook);
    _nextLook = Clock::shared().after(_pause, [this] {
        _nextLook.reset();
        startIfMissing();
    });
    _pause = std::min(2 * _pause, longestPause);
}

} // namespace brimsound::desktop
