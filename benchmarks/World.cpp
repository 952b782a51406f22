#include "benchmarks/World.h"

#include "platform/desktop/Foundation/DeviceRoot.h"
#include "platform/desktop/bus/BusPointers.h"
#include "platform/desktop/bus/Interfaces.h"
#include "platform/desktop/bus/SessionBus.h"
#include "settings/store/presets.h"
#include "settings/tweak.h"

#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

namespace brimsound::bench {

namespace {

void check(int result, const char* what)
{
    if (result < 0)
        throw std::runtime_error(std::string(what) + ": " + std::strerror(-result));
}

} // namespace

World::World()
    : server(std::filesystem::read_symlink("/proc/self/exe").parent_path(), root.path(),
        desktop::MediaServer::Sound::LeftAlone)
{
}

std::filesystem::path World::preferencesFile() const
{
    return desktop::resolveDevicePath(preferencesPath);
}

PropertyList::Dictionary preferencesWithPresets(std::size_t count)
{
    auto presets = builtin_presets();
    for (std::size_t i = presets.size(); i < count; ++i) {
        PropertyList::Array gains;
        for (std::size_t band = 0; band < 10; ++band)
            gains.emplace_back(static_cast<float>((i * 7 + band * 3) % 49) / 2 - 12);
        presets.set("Preset " + std::to_string(i), std::move(gains));
    }
    return { { peakingEqValuesKey, PropertyList::Array(10, 0.0f) }, { preampKey, 0.0f },
        { presetsKey, std::move(presets) } };
}

void sendBare(const std::vector<double>& values)
{
    auto* bus = desktop::SessionBus::shared().connection();
    sd_bus_message* created = nullptr;
    check(sd_bus_message_new_method_call(bus, &created, "com.quorvix.brimsound", "/com/quorvix/brimsound",
              "com.quorvix.brimsound.MessagingCenter", "SendMessageAndReceiveReply"),
        "making a message");
    const desktop::BusMessage message(created);
    check(sd_bus_message_append(message.get(), "s", equalizerSendMessage), "appending");
    check(sd_bus_message_open_container(message.get(), 'a', "{sv}"), "appending");
    check(sd_bus_message_open_container(message.get(), 'e', "sv"), "appending");
    check(sd_bus_message_append(message.get(), "s", valsKey), "appending");
    check(sd_bus_message_open_container(message.get(), 'v', "ad"), "appending");
    check(sd_bus_message_append_array(message.get(), 'd', values.data(), values.size() * sizeof(double)),
        "appending");
    for (int container = 0; container < 3; ++container)
        check(sd_bus_message_close_container(message.get()), "appending");
    sd_bus_message* received = nullptr;
    check(sd_bus_call(bus, message.get(), 1000000, nullptr, &received), "calling");
    const desktop::BusMessage reply(received);
}

void announceBare()
{
    check(sd_bus_emit_signal(desktop::SessionBus::shared().connection(), desktop::notificationsPath,
              desktop::notificationsInterface, desktop::postedSignal, "s", settingsFinishedNotification),
        "announcing");
}

void writeBare(const std::filesystem::path& path, const std::string& bytes)
{
    const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    check(descriptor, "opening");
    check(static_cast<int>(write(descriptor, bytes.data(), bytes.size())), "writing");
    check(close(descriptor), "closing");
}

std::string bytesOf(const std::filesystem::path& path)
{
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    return bytes.str();
}

} // namespace brimsound::bench
