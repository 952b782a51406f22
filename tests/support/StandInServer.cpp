#include "tests/support/StandInServer.h"

#include "platform/desktop/bus/Interfaces.h"
#include "platform/desktop/bus/OpenBus.h"

#include <stdexcept>

namespace brimsound::tests {

StandInServer::StandInServer(const std::string& centerName, Answer answer, WhenOwned whenOwned)
    : _bus(desktop::openSessionBus())
    , _answer(std::move(answer))
{
    const auto path = desktop::messagingCenterPath(centerName);
    const std::uint64_t flags = whenOwned == WhenOwned::Wait ? SD_BUS_NAME_QUEUE : 0;
    if (!_bus || sd_bus_add_object(_bus.get(), nullptr, path.c_str(), handle, this) < 0
        || sd_bus_request_name(_bus.get(), centerName.c_str(), flags) < 0)
        throw std::runtime_error("cannot serve " + centerName);
    _thread = std::jthread([this](const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            while (sd_bus_process(_bus.get(), nullptr) > 0) { }
            sd_bus_wait(_bus.get(), 5000);
        }
    });
}

int StandInServer::handle(sd_bus_message* message, void* self, sd_bus_error*)
{
    if (!sd_bus_message_is_method_call(
            message, desktop::messagingCenterInterface, desktop::sendMessageMethod))
        return 0;
    return static_cast<StandInServer*>(self)->_answer(message);
}

} // namespace brimsound::tests
