#include "desktop/mediaserverd/MessagingServer.h"

#include "platform/desktop/bus/BusPointers.h"
#include "platform/desktop/bus/BusValue.h"
#include "platform/desktop/bus/Interfaces.h"
#include "settings/tweak.h"

#include <string_view>

namespace brimsound::mediaserver {

namespace {

int replyToMessage(sd_bus_message* message, void* equalizer, sd_bus_error* error)
{
    const char* name = nullptr;
    PropertyList::Dictionary userInfo;
    int result = sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &name);
    if (result >= 0)
        result = desktop::readDictionary(message, userInfo);
    if (result < 0)
        return result;

    if (name != std::string_view(equalizerSendMessage))
        return sd_bus_error_setf(error, SD_BUS_ERROR_INVALID_ARGS, "There is no message \"%s\".", name);
    const auto gains = gainsOfMessage(userInfo);
    if (!gains)
        return sd_bus_error_set(error, SD_BUS_ERROR_INVALID_ARGS, "\"vals\" must be eleven finite numbers.");

    static_cast<Equalizer*>(equalizer)->setGains(*gains);
    return sd_bus_reply_method_return(message, "a{sv}", 0);
}

const sd_bus_vtable methods[] = {
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD(desktop::sendMessageMethod, "sa{sv}", "a{sv}", replyToMessage, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_VTABLE_END,
};

} // namespace

int serveMessagingCenter(sd_bus* bus, Equalizer& equalizer)
{
    const auto path = desktop::messagingCenterPath(messagingCenterName);
    const int added = sd_bus_add_object_vtable(
        bus, nullptr, path.c_str(), desktop::messagingCenterInterface, methods, &equalizer);
    // The name is requested last: clients send as soon as the name exists.
    return added < 0 ? added : sd_bus_request_name(bus, messagingCenterName, 0);
}

} // namespace brimsound::mediaserver
