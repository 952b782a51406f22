// The equalizer's engine as other programs see it: takes the live gains, and rereads the preferences when
// told to.
#include "desktop/mediaserverd/Equalizer.h"
#include "desktop/mediaserverd/MessagingServer.h"
#include "platform/CoreFoundation/CFNotificationCenter.h"
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "platform/desktop/bus/SessionBus.h"
#include "platform/desktop/process/StandardStreams.h"
#include "settings/tweak.h"

#include <nlohmann/json.hpp>
#include <systemd/sd-event.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <getopt.h>
#include <memory>

using namespace brimsound;
using namespace brimsound::mediaserver;

namespace {

constexpr auto usage = R"(Usage: mediaserverd [--print] [--root DIR]

Answers the equalizer's live messages on the session bus, and rereads the
preferences when they changed.

  --print      print the gains, preamp first, as a line of JSON whenever they change
  --root DIR   the folder that holds the device's files
  --help       show this text
  --version    show the version
)";

constexpr int usageError = 2;

struct Options {
    bool print = false;
    /// Set when the program is done already, with this exit status.
    std::optional<int> exitStatus;
};

Options readOptions(int argumentCount, char** arguments)
{
    static constexpr option known[] = {
        { "help", no_argument, nullptr, 'h' },
        { "print", no_argument, nullptr, 'p' },
        { "root", required_argument, nullptr, 'r' },
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

// Numbers of single precision, so that they are printed no longer than that takes.
using Json
    = nlohmann::basic_json<std::map, std::vector, std::string, bool, std::int64_t, std::uint64_t, float>;

void print(const Gains& gains)
{
    std::puts(Json { { "vals", gains } }.dump().c_str());
    std::fflush(stdout);
}

void rereadPreferences(
    CFNotificationCenterRef, void* equalizer, std::string_view, const void*, const PropertyList::Dictionary*)
{
    static_cast<Equalizer*>(equalizer)->setGains(gainsInPreferences());
}

// The exit status, or a negative errno.
int serveUntilStopped(sd_bus* bus)
{
    sd_event* created = nullptr;
    int result = sd_event_new(&created);
    const std::unique_ptr<sd_event, decltype(&sd_event_unref)> event(created, sd_event_unref);
    for (const int signal : { SIGTERM, SIGINT }) {
        if (result >= 0)
            result = sd_event_add_signal(
                event.get(), nullptr, signal | SD_EVENT_SIGNAL_PROCMASK, nullptr, nullptr);
    }
    if (result >= 0)
        result = sd_bus_set_exit_on_disconnect(bus, true);
    if (result >= 0)
        result = sd_bus_attach_event(bus, event.get(), SD_EVENT_PRIORITY_NORMAL);
    if (result >= 0)
        result = sd_event_loop(event.get());
    sd_bus_detach_event(bus);
    return result;
}

int fail(const char* what)
{
    std::fprintf(stderr, "mediaserverd: %s\n", what);
    return EXIT_FAILURE;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    desktop::openMissingStandardStreams();
    const auto options = readOptions(argumentCount, arguments);
    if (options.exitStatus)
        return *options.exitStatus;

    Equalizer equalizer;
    if (options.print)
        equalizer.onChange = print;

    // Messages and notifications arrive on the same connection, and so in the order in which they were sent.
    auto* bus = desktop::SessionBus::shared().listener();
    if (!bus)
        return fail("there is no session bus");
    CFNotificationCenterAddObserver(CFNotificationCenterGetDarwinNotifyCenter(), &equalizer,
        rereadPreferences, settingsFinishedNotification, nullptr, 0);
    const int served = serveMessagingCenter(bus, equalizer);
    if (served == -EEXIST)
        return fail("another media server is running already");
    if (served < 0)
        return fail(std::strerror(-served));
    equalizer.setGains(gainsInPreferences());

    const int status = serveUntilStopped(bus);
    if (status < 0)
        return fail(std::strerror(-status));
    return status == EXIT_SUCCESS ? EXIT_SUCCESS : fail("the session bus went away");
}
