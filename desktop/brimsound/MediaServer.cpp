#include "desktop/brimsound/MediaServer.h"

#include "platform/desktop/bus/SessionBus.h"
#include "settings/tweak.h"

#include <chrono>
#include <stdexcept>
#include <thread>

namespace brimsound::desktop {

namespace {

constexpr std::chrono::seconds patience { 5 };
constexpr std::chrono::milliseconds pause { 5 };

bool isServed()
{
    return SessionBus::shared().hasOwner(messagingCenterName);
}

} // namespace

std::unique_ptr<ChildProcess> startMediaServerIfMissing(
    const std::filesystem::path& programFolder, const std::filesystem::path& root)
{
    if (isServed())
        return nullptr;
    auto server = std::make_unique<ChildProcess>(
        std::vector<std::string> { programFolder / "mediaserverd", "--root", root });
    const auto deadline = std::chrono::steady_clock::now() + patience;
    for (;;) {
        // Asked first: a server that ends because another pane's was faster leaves the name served.
        const bool running = server->running();
        if (isServed())
            return server;
        if (!running || std::chrono::steady_clock::now() > deadline)
            throw std::runtime_error("the media server did not start");
        std::this_thread::sleep_for(pause);
    }
}

} // namespace brimsound::desktop
