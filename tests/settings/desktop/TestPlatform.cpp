#include "tests/settings/TestPlatform.h"

#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/desktop/bus/SessionBus.h"
#include "settings/tweak.h"
#include "tests/support/MediaServer.h"
#include "tests/support/RecordingEffects.h"
#include "tests/support/TemporaryRoot.h"
#include "tests/support/TestBus.h"

#include <optional>

namespace brimsound::tests {

struct TestPlatform::Device {
    TemporaryRoot root;
    TestBus bus;
    std::optional<MediaServer> server;
    RecordingEffects effects;
};

TestPlatform::TestPlatform()
    : _device(std::make_unique<Device>())
{
    startMediaServer();
}

TestPlatform::~TestPlatform() = default;

std::vector<std::string> TestPlatform::takeTrace()
{
    return _device->effects.takeTrace();
}

std::vector<PropertyList::Dictionary> TestPlatform::messages() const
{
    std::vector<PropertyList::Dictionary> sent;
    for (const auto& message : _device->effects.messages())
        sent.push_back(message.userInfo);
    return sent;
}

void TestPlatform::deliverNotifications()
{
    desktop::SessionBus::shared().drain();
}

void TestPlatform::postFromAnotherProcess(const std::string& name)
{
    _device->bus.postFromAnotherProcess(name);
}

void TestPlatform::stopMediaServer()
{
    _device->server.reset();
}

void TestPlatform::startMediaServer()
{
    _device->server.emplace();
}

void TestPlatform::writePreferencesFile(const std::string& bytes)
{
    _device->root.write(preferencesPath, bytes);
}

void TestPlatform::writePreferencesFile(const PropertyList& value)
{
    const auto data = dataWithPropertyList(value, NSPropertyListFormat::XMLFormat_v1_0, 0);
    writePreferencesFile(std::string(reinterpret_cast<const char*>(data->data()), data->size()));
}

std::string TestPlatform::preferencesFile() const
{
    return _device->root.read(preferencesPath);
}

} // namespace brimsound::tests
