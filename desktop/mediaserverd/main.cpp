// The equalizer's engine: receives the live gains, reads the preferences again when notified, and applies
// both.
#include "desktop/engine/SoundEngine.h"
#include "desktop/mediaserverd/Equalizer.h"
#include "desktop/mediaserverd/MessagingServer.h"
#include "desktop/mediaserverd/Output.h"
#include "desktop/mediaserverd/Preferences.h"
#include "platform/CoreFoundation/CFNotificationCenter.h"
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "platform/desktop/bus/SessionBus.h"
#include "platform/desktop/process/StandardStreams.h"
#include "settings/tweak.h"

#include <systemd/sd-event.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <getopt.h>
#include <memory>
#include <stdexcept>

using namespace brimsound;
using namespace brimsound::mediaserver;

namespace {

constexpr auto usage = R"(Usage: mediaserverd [--print] [--root DIR] [--silent]

Equalizes the sound that programs play through PipeWire. Answers the equalizer's
live messages on the session bus, and reads changed preferences again.

  --print      print a line of JSON whenever one of these changes: "vals", the
               gains in dB, preamp first; "connected", whether PipeWire
               is available; "output", the output device; "layout", the
               channels; "rate", in Hz; "headroom", the preamp plus the highest
               gain in dB: above 0, full-scale sound may be limited; "limited",
               the number of blocks limited so far
  --root DIR   the folder with the device's files
  --silent     do not change the sound
  --help       show this text
  --version    show the version
)";

constexpr int usageError = 2;
/// The service is not started again after this status.
constexpr int nameTaken = 3;

struct Options {
    bool print = false;
    bool silent = false;
    /// Set when the program should end now, with this exit status.
    std::optional<int> exitStatus;
};

Options readOptions(int argumentCount, char** arguments)
{
    static constexpr option known[] = {
        { "help", no_argument, nullptr, 'h' },
        { "print", no_argument, nullptr, 'p' },
        { "root", required_argument, nullptr, 'r' },
        { "silent", no_argument, nullptr, 's' },
        { "version", no_argument, nullptr, 'v' },
        {},
    };
    Options options;
    for (int letter = 0; (letter = getopt_long(argumentCount, arguments, "", known, nullptr)) != -1;) {
        switch (letter) {
        case 'p':
            options.print = true;
            break;
        case 'r':
            desktop::setDeviceRoot(optarg);
            break;
        case 's':
            options.silent = true;
            break;
        case 'h':
            std::fputs(usage, stdout);
            return { .exitStatus = EXIT_SUCCESS };
        case 'v':
            std::puts("mediaserverd " BRIMSOUND_VERSION);
            return { .exitStatus = EXIT_SUCCESS };
        default:
            return { .exitStatus = usageError };
        }
    }
    if (optind < argumentCount) {
        std::fprintf(stderr, "%s: unexpected argument '%s'\n", arguments[0], arguments[optind]);
        options.exitStatus = usageError;
    }
    return options;
}

/// The objects of the program. They outlive the connection to the bus.
struct Server {
    Equalizer equalizer;
    bool filterDisabled = false;
    bool checkingDisabled = false;
    std::unique_ptr<engine::SoundEngine> sound;
};

engine::Settings settingsOf(const Server& server)
{
    engine::Settings settings;
    settings.limits = !server.checkingDisabled;
    if (server.filterDisabled)
        return settings;
    const auto& gains = server.equalizer.gains();
    settings.preamp = gains[0];
    std::copy(gains.begin() + 1, gains.end(), settings.sliders.begin());
    return settings;
}

void updateSound(const Server& server)
{
    if (server.sound)
        server.sound->set(settingsOf(server));
}

void rereadGains(
    CFNotificationCenterRef, void* server, std::string_view, const void*, const PropertyList::Dictionary*)
{
    // While another process writes the file, the settings stay unchanged.
    if (const auto preferences = readPreferences())
        static_cast<Server*>(server)->equalizer.setGains(preferences->gains);
}

void rereadFlags(
    CFNotificationCenterRef, void* observer, std::string_view, const void*, const PropertyList::Dictionary*)
{
    auto& server = *static_cast<Server*>(observer);
    if (const auto preferences = readPreferences()) {
        server.filterDisabled = preferences->filterDisabled;
        server.checkingDisabled = preferences->checkingDisabled;
        updateSound(server);
    }
}

using Event = std::unique_ptr<sd_event, decltype(&sd_event_unref)>;

// An event loop that ends on SIGTERM and SIGINT. The signals are blocked, also for threads made later. Null
// on failure.
Event makeEventLoop()
{
    sd_event* created = nullptr;
    if (sd_event_new(&created) < 0)
        return { nullptr, sd_event_unref };
    Event event(created, sd_event_unref);
    for (const int signal : { SIGTERM, SIGINT }) {
        if (sd_event_add_signal(created, nullptr, signal | SD_EVENT_SIGNAL_PROCMASK, nullptr, nullptr) < 0)
            return { nullptr, sd_event_unref };
    }
    return event;
}

// The exit status, or a negative errno.
int serveUntilStopped(sd_bus* bus, sd_event* event)
{
    int result = sd_bus_set_exit_on_disconnect(bus, true);
    if (result >= 0)
        result = sd_bus_attach_event(bus, event, SD_EVENT_PRIORITY_NORMAL);
    if (result >= 0)
        result = sd_event_loop(event);
    sd_bus_detach_event(bus);
    return result;
}

int fail(const char* what, int status = EXIT_FAILURE)
{
    std::fprintf(stderr, "mediaserverd: %s\n", what);
    return status;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    desktop::openMissingStandardStreams();
    const auto options = readOptions(argumentCount, arguments);
    if (options.exitStatus)
        return *options.exitStatus;

    const auto event = makeEventLoop();
    if (!event)
        return fail("there is no event loop");

    Server server;
    server.equalizer.onChange = [&](const Gains& gains) {
        if (options.print)
            print(gains);
        updateSound(server);
    };

    // Messages and notifications arrive on the same connection, and so in the order in which they were sent.
    auto* bus = desktop::SessionBus::shared().listener();
    if (!bus)
        return fail("there is no session bus");
    auto* notifications = CFNotificationCenterGetDarwinNotifyCenter();
    CFNotificationCenterAddObserver(
        notifications, &server, rereadGains, settingsFinishedNotification, nullptr, 0);
    CFNotificationCenterAddObserver(
        notifications, &server, rereadFlags, settingsChangedNotification, nullptr, 0);
    const int served = serveMessagingCenter(bus, server.equalizer);
    if (served == -EEXIST)
        return fail("another media server is running already", nameTaken);
    if (served < 0)
        return fail(std::strerror(-served));

    // The gains are set before any sound is processed.
    const auto preferences = readPreferences().value_or(Preferences {});
    server.filterDisabled = preferences.filterDisabled;
    server.checkingDisabled = preferences.checkingDisabled;
    server.equalizer.setGains(preferences.gains);
    if (!options.silent && preferences.enabled) {
        try {
            server.sound = std::make_unique<engine::SoundEngine>(
                event.get(), settingsOf(server), reports(options.print));
        } catch (const std::runtime_error& error) {
            std::fprintf(stderr, "mediaserverd: %s\n", error.what());
        }
    }

    const int status = serveUntilStopped(bus, event.get());
    server.sound.reset();
    if (status < 0)
        return fail(std::strerror(-status));
    return status == EXIT_SUCCESS ? EXIT_SUCCESS : fail("the connection to the session bus was lost");
}
