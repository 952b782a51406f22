#include "platform/AppSupport/CPDistributedMessagingCenter.h"

#include "platform/AppSupport/rocketbootstrap.h"
#include "platform/desktop/Foundation/Peer.h"
#include "platform/desktop/bus/BusValue.h"
#include "platform/desktop/bus/Interfaces.h"
#include "platform/desktop/bus/SessionBus.h"
#include "platform/desktop/effects/Effects.h"

#include <algorithm>
#include <chrono>

namespace brimsound {

namespace {

constexpr std::chrono::microseconds longestWait = std::chrono::seconds(1);

struct MessagingCenter : toolkit::Object {
    explicit MessagingCenter(const std::string& centerName)
        : name(centerName)
        , path(desktop::messagingCenterPath(centerName))
    {
    }

    std::string name;
    std::string path;
};

// Returns a negative errno on failure. `error` then holds the error that came as the reply, if one did.
int call(const MessagingCenter& center, const std::string& name, const PropertyList::Dictionary& userInfo,
    PropertyList::Dictionary& reply, sd_bus_error& error)
{
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + longestWait;
    auto* bus = desktop::SessionBus::shared().connection();
    // Connecting to the bus may already have used part of the time.
    const auto left = std::chrono::duration_cast<std::chrono::microseconds>(deadline - Clock::now()).count();
    if (!bus || left <= 0)
        return sd_bus_error_set(&error, SD_BUS_ERROR_NO_SERVER, "There is no session bus.");

    sd_bus_message* created = nullptr;
    int result = sd_bus_message_new_method_call(bus, &created, center.name.c_str(), center.path.c_str(),
        desktop::messagingCenterInterface, desktop::sendMessageMethod);
    const desktop::BusMessage message(created);
    if (result >= 0)
        result = sd_bus_message_set_auto_start(message.get(), false);
    if (result >= 0)
        result = sd_bus_message_append_basic(message.get(), SD_BUS_TYPE_STRING, name.c_str());
    if (result >= 0)
        result = desktop::appendDictionary(message.get(), userInfo);
    if (result < 0)
        return sd_bus_error_set_errno(&error, result);

    sd_bus_message* received = nullptr;
    result = sd_bus_call(bus, message.get(), static_cast<std::uint64_t>(left), &error, &received);
    const desktop::BusMessage answer(received);
    if (result < 0)
        return result;
    result = desktop::readDictionary(answer.get(), reply);
    return result < 0 ? sd_bus_error_set_errno(&error, result) : result;
}

NSError errorOf(const sd_bus_error& error)
{
    std::string description = error.message ? error.message : error.name;
    std::replace(description.begin(), description.end(), '\n', ' ');
    return { error.name, sd_bus_error_get_errno(&error), description };
}

} // namespace

CPDistributedMessagingCenter::CPDistributedMessagingCenter(Peer* peer)
    : NSObject(peer)
{
}

RetainPtr<CPDistributedMessagingCenter> CPDistributedMessagingCenter::centerNamed(const std::string& name)
{
    return adopt(new CPDistributedMessagingCenter(desktop::peer(new MessagingCenter(name))));
}

PropertyList::Dictionary CPDistributedMessagingCenter::sendMessageAndReceiveReplyName(
    const std::string& name, const PropertyList::Dictionary& userInfo, std::optional<NSError>& error)
{
    PropertyList::Dictionary reply;
    desktop::BusError failure;
    if (call(desktop::nativeOf<MessagingCenter>(*this), name, userInfo, reply, failure) < 0) {
        error = errorOf(failure);
        reply = {};
        desktop::effects().messageSent(name, userInfo, &*error);
    } else {
        desktop::effects().messageSent(name, userInfo, nullptr);
    }
    return reply;
}

void rocketbootstrap_distributedmessagingcenter_apply(CPDistributedMessagingCenter&) { }

} // namespace brimsound
