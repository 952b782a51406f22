#include "platform/desktop/bus/SessionBus.h"

#include "platform/desktop/bus/Interfaces.h"
#include "platform/desktop/bus/OpenBus.h"

#include <cerrno>
#include <chrono>

namespace brimsound::desktop {

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto busName = "org.freedesktop.DBus";
constexpr auto busPath = "/org/freedesktop/DBus";
constexpr auto peerInterface = "org.freedesktop.DBus.Peer";

/// How long messages are handled before control returns to the main loop.
constexpr std::chrono::milliseconds longestTurn { 10 };
/// How long to wait, in microseconds, for the replies that end a drain. A flood of messages delays them.
constexpr std::uint64_t longestDrain = 60'000'000;

int noteAnswer(sd_bus_message*, void* answered, sd_bus_error*)
{
    *static_cast<bool*>(answered) = true;
    return 0;
}

} // namespace

SessionBus& SessionBus::shared()
{
    static SessionBus bus;
    return bus;
}

sd_bus* SessionBus::connection()
{
    reopen();
    return _speaker.get();
}

sd_bus* SessionBus::listener()
{
    reopen();
    return _listener.get();
}

std::array<int, 2> SessionBus::descriptors() const
{
    if (!_listener)
        return { -1, -1 };
    return { sd_bus_get_fd(_speaker.get()), sd_bus_get_fd(_listener.get()) };
}

bool SessionBus::isOpen() const
{
    return _listener && sd_bus_is_open(_speaker.get()) > 0 && sd_bus_is_open(_listener.get()) > 0;
}

void SessionBus::reopen()
{
    if (isOpen())
        return;
    if (_listener)
        close();
    if (!open() && onUnreachable && onUnreachable())
        open();
}

bool SessionBus::open()
{
    auto speaker = openSessionBus();
    auto listener = speaker ? openSessionBus() : nullptr;
    if (!listener || !subscribe(listener.get()))
        return false;
    _speaker = std::move(speaker);
    _listener = std::move(listener);
    askForOwners(_listener.get());
    if (onReconnect)
        onReconnect();
    return true;
}

bool SessionBus::subscribe(sd_bus* bus)
{
    return sd_bus_match_signal(bus, nullptr, nullptr, notificationsPath, notificationsInterface, postedSignal,
               notificationPosted, this)
        >= 0
        && sd_bus_match_signal(
               bus, nullptr, busName, busPath, busName, "NameOwnerChanged", ownerChanged, this)
        >= 0;
}

void SessionBus::askForOwners(sd_bus* bus)
{
    for (auto& [name, handler] : _lossHandlers) {
        sd_bus_call_method_async(
            bus, nullptr, busName, busPath, busName, "NameHasOwner", ownerTold, &handler, "s", name.c_str());
    }
}

void SessionBus::close()
{
    _speaker.reset();
    _listener.reset();
    if (onReconnect)
        onReconnect();
}

bool SessionBus::hasOwner(const std::string& name)
{
    return connection() && sd_bus_get_name_creds(_speaker.get(), name.c_str(), 0, nullptr) >= 0;
}

void SessionBus::subscribeToNotifications(std::function<void(std::string_view)> handler)
{
    _handlers.push_back(std::move(handler));
    listener();
}

void SessionBus::watchForLoss(const std::string& name, std::function<void()> handler)
{
    _lossHandlers[name] = std::move(handler);
    listener();
}

int SessionBus::ownerChanged(sd_bus_message* message, void* self, sd_bus_error*)
{
    const char* name = nullptr;
    const char* before = nullptr;
    const char* after = nullptr;
    if (sd_bus_message_read(message, "sss", &name, &before, &after) <= 0 || *after)
        return 0;
    const auto& handlers = static_cast<SessionBus*>(self)->_lossHandlers;
    if (const auto found = handlers.find(name); found != handlers.end())
        found->second();
    return 0;
}

int SessionBus::ownerTold(sd_bus_message* message, void* handler, sd_bus_error*)
{
    int owned = 0;
    if (sd_bus_message_read(message, "b", &owned) > 0 && !owned)
        (*static_cast<std::function<void()>*>(handler))();
    return 0;
}

int SessionBus::notificationPosted(sd_bus_message* message, void* self, sd_bus_error*)
{
    const char* name = nullptr;
    if (sd_bus_message_has_signature(message, "s") && sd_bus_message_read(message, "s", &name) > 0) {
        for (const auto& handler : static_cast<SessionBus*>(self)->_handlers)
            handler(name);
    }
    return 0;
}

/// Returns false when no message is left.
bool SessionBus::processOne()
{
    for (auto* connection : { &_speaker, &_listener }) {
        auto* bus = connection->get();
        if (!bus)
            return false;
        const int handled = sd_bus_process(bus, nullptr);
        // Busy: a handler called this function. The outer call handles the remaining messages.
        if (handled == -EBUSY)
            continue;
        // A handler may have replaced the connection.
        if ((handled < 0 || sd_bus_is_open(bus) <= 0) && connection->get() == bus) {
            close();
            return false;
        }
        if (handled > 0)
            return true;
    }
    return false;
}

void SessionBus::process()
{
    const auto end = Clock::now() + longestTurn;
    while (processOne()) {
        if (Clock::now() < end)
            continue;
        if (onPending)
            onPending();
        return;
    }
}

void SessionBus::drain()
{
    // A handler called this function: the outer call handles the remaining messages.
    if (!listener() || sd_bus_get_current_message(_listener.get()))
        return;
    // Messages are delivered in order. The bus's reply to the sending connection shows that it has passed on
    // everything sent before. Its reply to the listening connection shows that all of that has been handled
    // here.
    sd_bus_message* created = nullptr;
    sd_bus_slot* pending = nullptr;
    bool answered = false;
    auto* bus = _listener.get();
    if (sd_bus_call_method(_speaker.get(), busName, busPath, peerInterface, "Ping", nullptr, nullptr, nullptr)
            < 0
        || sd_bus_message_new_method_call(bus, &created, busName, busPath, peerInterface, "Ping") < 0) {
        process();
        return;
    }
    const BusMessage ping(created);
    if (sd_bus_call_async(bus, &pending, ping.get(), noteAnswer, &answered, longestDrain) < 0)
        return;
    const BusSlot slot(pending);
    while (!answered && bus == _listener.get()) {
        if (!processOne() && _listener && sd_bus_wait(bus, longestDrain) < 0)
            return;
    }
}

} // namespace brimsound::desktop
