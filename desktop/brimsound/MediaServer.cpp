#include "desktop/brimsound/MediaServer.h"

#include "platform/desktop/bus/SessionBus.h"
#include "settings/tweak.h"

#include <cstdio>
#include <stdexcept>
#include <thread>

namespace brimsound::desktop {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds patience { 5 };
constexpr std::chrono::milliseconds pause { 5 };
/// A server that ends sooner than this after its start, so many times in a row, is not started again.
constexpr std::chrono::seconds quickEnd { 1 };
constexpr int mostQuickEnds = 5;

bool isServed()
{
    return SessionBus::shared().hasOwner(messagingCenterName);
}

} // namespace

MediaServer::MediaServer(std::filesystem::path programFolder, std::filesystem::path root)
    : _programFolder(std::move(programFolder))
    , _root(std::move(root))
{
    if (isServed())
        return;
    start();
    SessionBus::shared().watchForLoss(messagingCenterName, [this] { startAgain(); });
}

void MediaServer::start()
{
    _process = std::make_unique<ChildProcess>(
        std::vector<std::string> { _programFolder / "mediaserverd", "--root", _root });
    _started = Clock::now();
    for (;;) {
        // Asked first: a server that ends because another pane's was faster leaves the name served.
        const bool running = _process->running();
        if (isServed())
            return;
        if (!running || Clock::now() > _started + patience)
            throw std::runtime_error("the media server did not start");
        std::this_thread::sleep_for(pause);
    }
}

void MediaServer::startAgain()
{
    // Its name is gone a moment before the process is.
    if (!_process->exitStatus(patience))
        return;
    _quickEnds = Clock::now() < _started + quickEnd ? _quickEnds + 1 : 0;
    try {
        if (_quickEnds > mostQuickEnds)
            throw std::runtime_error("the media server keeps ending");
        start();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "brimsound: %s\n", error.what());
    }
}

} // namespace brimsound::desktop
