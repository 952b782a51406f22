#include "tests/support/sound/Engine.h"

#include "platform/AppSupport/CPDistributedMessagingCenter.h"
#include "platform/CoreFoundation/CFNotificationCenter.h"
#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "platform/desktop/bus/SessionBus.h"
#include "settings/tweak.h"
#include "tests/support/sound/Wait.h"

#include <csignal>
#include <stdexcept>

namespace brimsound::tests {

namespace {

PropertyList::Array arrayOf(const Gains& gains, std::size_t from)
{
    PropertyList::Array array;
    for (std::size_t i = from; i < gains.size(); ++i)
        array.emplace_back(gains[i]);
    return array;
}

bool isServed()
{
    return desktop::SessionBus::shared().hasOwner(messagingCenterName);
}

void post(const char* name)
{
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDarwinNotifyCenter(), name, nullptr, nullptr, true);
}

} // namespace

Gains preamp(double decibels)
{
    Gains gains {};
    gains[0] = decibels;
    return gains;
}

void storePreferences(const Gains& gains, PropertyList::Dictionary more)
{
    more.set(preampKey, gains[0]);
    more.set(peakingEqValuesKey, arrayOf(gains, 1));
    const auto data = dataWithPropertyList(more, NSPropertyListFormat::BinaryFormat_v1_0, 0);
    if (!data || !writeToFile(*data, preferencesPath))
        throw std::runtime_error("the preferences cannot be written");
}

Engine::Engine(const std::filesystem::path& errors)
{
    _process.emplace(std::vector<std::string> { "sh", "-c", "exec \"$1\" --print --root \"$2\" 2>\"$3\"",
                         "sh", MEDIASERVERD, desktop::deviceRoot(), errors },
        desktop::ChildProcess::Output::Piped);
    if (!eventually([&] { return isServed() || !_process->running(); }) || !_process->running())
        throw std::runtime_error("mediaserverd ended at its start");
}

nlohmann::json Engine::next(const std::string& key)
{
    while (const auto line = _process->readLine(std::chrono::seconds(30))) {
        const auto json = nlohmann::json::parse(*line);
        if (json.contains(key))
            return json.at(key);
    }
    return nullptr;
}

std::optional<int> Engine::stop()
{
    _process->signal(SIGTERM);
    const auto status = _process->exitStatus(std::chrono::seconds(10));
    eventually([] { return !isServed(); });
    return status;
}

void Engine::kill()
{
    _process->signal(SIGKILL);
    _process->exitStatus(std::chrono::seconds(10));
    eventually([] { return !isServed(); });
}

bool send(const Gains& gains)
{
    const auto center = CPDistributedMessagingCenter::centerNamed(messagingCenterName);
    std::optional<NSError> error;
    center->sendMessageAndReceiveReplyName(equalizerSendMessage, { { valsKey, arrayOf(gains, 0) } }, error);
    return !error;
}

void postSettingsChanged()
{
    post(settingsChangedNotification);
}

void postSettingsFinished()
{
    post(settingsFinishedNotification);
}

} // namespace brimsound::tests
