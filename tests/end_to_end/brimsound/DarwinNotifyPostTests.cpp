#include "platform/desktop/bus/Interfaces.h"
#include "platform/desktop/bus/OpenBus.h"
#include "settings/tweak.h"
#include "tests/end_to_end/brimsound/Aftermath.h"
#include "tests/support/ProcessUse.h"
#include "tests/support/Screen.h"
#include "tests/support/StandInServer.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <iostream>
#include <memory>
#include <thread>

namespace brimsound::tests {
namespace {

using namespace std::chrono_literals;
constexpr int floodSize = 100'000;
/// How much the memory use may grow, however many signals arrive.
constexpr std::size_t slack = 8 << 20;

/// Sends signals from its own thread, as fast as the bus accepts them.
class Flood {
public:
    using Send = std::function<int(sd_bus*)>;

    explicit Flood(Send send)
        : _bus(desktop::openSessionBus())
        , _thread([this, send] {
            for (int i = 0; i < floodSize && send(_bus.get()) >= 0; ++i) {
                if (sd_bus_flush(_bus.get()) >= 0)
                    ++sent;
            }
        })
    {
    }

    std::atomic<int> sent = 0;

private:
    desktop::BusConnection _bus;
    std::jthread _thread;
};

int post(sd_bus* bus, const char* name)
{
    return sd_bus_emit_signal(
        bus, desktop::notificationsPath, desktop::notificationsInterface, desktop::postedSignal, "s", name);
}

/// The pane in a window, and another client of its session bus.
class AnotherBusClient : public testing::Test {
protected:
    /// Uses a media server that gives this answer, or without one the pane's own media server.
    explicit AnotherBusClient(const StandInServer::Answer& answer = nullptr)
        : server(answer ? std::make_unique<StandInServer>(messagingCenterName, answer) : nullptr)
        , pane(root.path(), {}, RunningProgram::Errors::Dropped)
        , process(pane.process().processIdentifier())
    {
        pane.say("wait 0.2");
        pane.state();
    }

    /// All names that the pane's process has on the bus.
    std::vector<std::string> namesOfPane()
    {
        std::vector<std::string> names;
        char** all = nullptr;
        sd_bus_list_names(client.get(), &all, nullptr);
        for (char** name = all; name && *name; ++name) {
            sd_bus_creds* creds = nullptr;
            pid_t owner = 0;
            if (sd_bus_get_name_creds(client.get(), *name, SD_BUS_CREDS_PID, &creds) >= 0)
                sd_bus_creds_get_pid(creds, &owner);
            sd_bus_creds_unref(creds);
            if (owner == process)
                names.emplace_back(*name);
            free(*name);
        }
        free(all);
        return names;
    }

    const Screen screen;
    TemporaryRoot root;
    TestBus bus;
    const std::unique_ptr<StandInServer> server;
    RunningProgram pane;
    const pid_t process;
    desktop::BusConnection client = desktop::openSessionBus();
};

/// The media server ignores the flood, so that only the pane's own time is measured.
class AFloodOfDarwinNotifications : public AnotherBusClient {
protected:
    void SetUp() override
    {
        if (isSanitized())
            GTEST_SKIP() << "AddressSanitizer does not return freed memory";
    }

    AFloodOfDarwinNotifications()
        : AnotherBusClient([](auto* message) { return sd_bus_reply_method_return(message, "a{sv}", 0); })
    {
    }
};

TEST_F(AFloodOfDarwinNotifications, ThatThePaneDoesNotObserveIsIgnored)
{
    const auto before = residentBytes(process);
    const auto descriptors = openDescriptors(process);
    const Flood flood([](sd_bus* sender) { return post(sender, "com.quorvix.brimsound.other"); });
    while (flood.sent < floodSize) {
        ASSERT_FALSE(pane.state().is_null());
        std::this_thread::sleep_for(100ms);
    }
    pane.say("wait 0");
    pane.say("touch 3");
    EXPECT_EQ(pane.next().at("effect"), "message");
    EXPECT_LT(residentBytes(process), before + slack);
    EXPECT_EQ(openDescriptors(process), descriptors);
}

TEST_F(AFloodOfDarwinNotifications, ThatThePaneObservesDoesNotDelayADrag)
{
    root.write(preferencesPath, "<plist><dict><key>PREAMP</key><real>-5</real></dict></plist>");
    int delivered = 0;
    const auto until = [&](const std::string& effect) {
        Json line;
        do {
            line = pane.next();
            delivered += !line.is_null() && line.at("effect") == "delivered" ? 1 : 0;
        } while (!line.is_null() && line.at("effect") != effect);
        return line;
    };
    pane.say("touch 3");
    until("message");
    const auto before = residentBytes(process);
    const auto descriptors = openDescriptors(process);
    auto most = before;
    double slowest = 0;
    int drags = 0;
    // The number of notifications delivered before a drag. Unlike a time, it does not depend on the load.
    int longestWait = 0;
    {
        const Flood flood([](sd_bus* sender) { return post(sender, settingsFinishedNotification); });
        while (flood.sent < floodSize) {
            pane.say("drag 3 4");
            Json message;
            const int deliveredBefore = delivered;
            slowest = std::max(slowest, secondsOf([&] { message = until("message"); }));
            longestWait = std::max(longestWait, delivered - deliveredBefore);
            ASSERT_FALSE(message.is_null());
            EXPECT_EQ(message.at("error"), nullptr);
            ++drags;
            most = std::max(most, residentBytes(process));
        }
    }
    std::cout << drags << " drags during the flood, the slowest after " << slowest << " s and " << longestWait
              << " notifications\n";
    // If notifications were handled first, a drag would wait for all of them.
    EXPECT_LT(longestWait, floodSize / 3);
    pane.say("lift 3");
    EXPECT_FALSE(until("write").is_null());
    // None is lost, and the pane's own one is the last.
    pane.say("wait 0");
    pane.say("state");
    EXPECT_FALSE(until("state").is_null());
    EXPECT_EQ(delivered, floodSize + 1);
    EXPECT_LT(most, before + slack);
    EXPECT_LT(residentBytes(process), before + slack);
    EXPECT_EQ(openDescriptors(process), descriptors);
}

TEST_F(AnotherBusClient, SendingOtherSignalsIsIgnored)
{
    auto receivers = namesOfPane();
    receivers.emplace_back("");
    // As a broadcast, and to each of the pane's names.
    const auto emit = [&](const char* path, const char* interface, const char* member, const char* types,
                          auto... values) {
        for (const auto& receiver : receivers) {
            sd_bus_message* created = nullptr;
            sd_bus_message_new_signal(client.get(), &created, path, interface, member);
            const desktop::BusMessage signal(created);
            if (!receiver.empty())
                sd_bus_message_set_destination(created, receiver.c_str());
            EXPECT_GE(sd_bus_message_append(created, types, values...), 0);
            EXPECT_GE(sd_bus_send(client.get(), created, nullptr), 0);
        }
    };
    const auto* name = settingsFinishedNotification;
    emit(desktop::notificationsPath, desktop::notificationsInterface, desktop::postedSignal, "u", 5);
    emit(desktop::notificationsPath, desktop::notificationsInterface, desktop::postedSignal, "");
    emit(
        desktop::notificationsPath, desktop::notificationsInterface, desktop::postedSignal, "ss", name, name);
    emit(desktop::notificationsPath, desktop::notificationsInterface, desktop::postedSignal, "v", "s", name);
    emit(desktop::notificationsPath, desktop::notificationsInterface, desktop::postedSignal, "as", 1, name);
    emit(desktop::notificationsPath, desktop::notificationsInterface, desktop::postedSignal, "s", "");
    emit(desktop::notificationsPath, desktop::notificationsInterface, "Cancelled", "s", name);
    emit(desktop::notificationsPath, "com.quorvix.other", desktop::postedSignal, "s", name);
    emit("/com/quorvix/other", desktop::notificationsInterface, desktop::postedSignal, "s", name);
    emit("/org/freedesktop/DBus", "org.freedesktop.DBus", "NameOwnerChanged", "sss", messagingCenterName,
        ":1.1", "");
    sd_bus_flush(client.get());
    const auto serverBefore = serverProcess();
    // Only the engine observes this notification.
    ASSERT_GE(post(client.get(), settingsChangedNotification), 0);
    sd_bus_flush(client.get());
    std::this_thread::sleep_for(200ms);
    pane.say("wait 0");
    pane.say("state");
    EXPECT_EQ(pane.next().at("effect"), "state");
    EXPECT_EQ(serverProcess(), serverBefore);

    ASSERT_GE(post(client.get(), name), 0);
    sd_bus_flush(client.get());
    EXPECT_EQ(pane.next().at("effect"), "delivered");
}

TEST_F(AnotherBusClient, CallingThePaneGetsAnError)
{
    const auto names = namesOfPane();
    // One connection to send, one to receive; Qt may have its own.
    ASSERT_GE(names.size(), 2u);
    const std::vector<std::string> paths { "/", "/com/quorvix/brimsound", "/org/freedesktop/DBus" };
    const std::vector<std::string> interfaces { desktop::messagingCenterInterface,
        desktop::notificationsInterface, "org.freedesktop.DBus.Properties",
        "org.freedesktop.DBus.Introspectable", "org.freedesktop.DBus.ObjectManager", "com.quorvix.other" };
    for (const auto& name : names) {
        for (const auto& path : paths) {
            for (const auto& interface : interfaces) {
                desktop::BusError error;
                EXPECT_LT(sd_bus_call_method(client.get(), name.c_str(), path.c_str(), interface.c_str(),
                              desktop::sendMessageMethod, &error, nullptr, "sa{sv}", equalizerSendMessage, 0),
                    0);
                EXPECT_THAT(error.name, testing::StartsWith("org.freedesktop.DBus.Error.Unknown"));
            }
        }
    }
    pane.say("state");
    EXPECT_EQ(pane.next().at("effect"), "state");
}

TEST_F(AnotherBusClient, CannotTakeTheMediaServersNameAndCanOnlyQueueForIt)
{
    const auto serverBefore = serverProcess();
    ASSERT_GT(serverBefore, 0);
    EXPECT_EQ(sd_bus_request_name(client.get(), messagingCenterName, SD_BUS_NAME_REPLACE_EXISTING), -EEXIST);
    EXPECT_EQ(sd_bus_request_name(
                  client.get(), messagingCenterName, SD_BUS_NAME_REPLACE_EXISTING | SD_BUS_NAME_QUEUE),
        0);
    EXPECT_EQ(serverProcess(), serverBefore);
    pane.say("touch 3");
    EXPECT_EQ(pane.next().at("error"), nullptr);
}

} // namespace
} // namespace brimsound::tests
