#include "tests/support/MediaServer.h"

#include "platform/desktop/Foundation/DeviceRoot.h"
#include "platform/desktop/bus/SessionBus.h"
#include "settings/tweak.h"

#include <stdexcept>
#include <thread>

namespace brimsound::tests {

MediaServer::MediaServer()
    : _process({ MEDIASERVERD, "--print", "--silent", "--root", desktop::deviceRoot() },
        desktop::ChildProcess::Output::Piped)
{
    while (!desktop::SessionBus::shared().hasOwner(messagingCenterName)) {
        if (!_process.running())
            throw std::runtime_error("mediaserverd ended at its start");
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

} // namespace brimsound::tests
