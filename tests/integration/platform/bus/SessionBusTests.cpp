#include "platform/desktop/bus/SessionBus.h"

#include "platform/desktop/bus/Interfaces.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>

#include <poll.h>
#include <thread>

namespace brimsound::desktop {

using testing::Each;
using testing::ElementsAre;
using testing::Ge;
using testing::IsEmpty;
using tests::TestBus;

namespace {

class ASessionBus : public testing::Test {
protected:
    // Handlers cannot be removed, so every test uses its own notification names.
    std::vector<std::string>& listen()
    {
        auto heard = std::make_shared<std::vector<std::string>>();
        bus.subscribeToNotifications([heard](std::string_view name) { heard->emplace_back(name); });
        return *heard;
    }

    void TearDown() override
    {
        bus.onReconnect = nullptr;
        bus.onPending = nullptr;
        bus.onUnreachable = nullptr;
    }

    SessionBus& bus = SessionBus::shared();
};

} // namespace

TEST_F(ASessionBus, IsNullWhenNoneCanBeReached)
{
    const tests::EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
    EXPECT_EQ(bus.connection(), nullptr);
    EXPECT_EQ(bus.listener(), nullptr);
    EXPECT_THAT(bus.descriptors(), ElementsAre(-1, -1));
    EXPECT_FALSE(bus.hasOwner("org.freedesktop.DBus"));
    bus.process();
    bus.drain();
}

TEST_F(ASessionBus, HasOneConnectionToSendAndOneToReceive)
{
    const TestBus testBus;
    auto* speaker = bus.connection();
    auto* listener = bus.listener();
    ASSERT_NE(speaker, nullptr);
    ASSERT_NE(listener, nullptr);
    EXPECT_NE(speaker, listener);
    EXPECT_EQ(bus.connection(), speaker);
    EXPECT_EQ(bus.listener(), listener);
    EXPECT_THAT(bus.descriptors(), Each(Ge(0)));
}

TEST_F(ASessionBus, FindsOutWhetherANameIsOwned)
{
    TestBus testBus;
    EXPECT_FALSE(bus.hasOwner("test.Name"));
    const auto owner = testBus.connectAnother();
    ASSERT_GE(sd_bus_request_name(owner.get(), "test.Name", 0), 0);
    EXPECT_TRUE(bus.hasOwner("test.Name"));
}

TEST_F(ASessionBus, ShowsAtItsDescriptorThatAPostArrived)
{
    TestBus testBus;
    const auto& heard = listen();
    testBus.postFromAnotherProcess("hello");

    pollfd input { bus.descriptors()[1], POLLIN, 0 };
    ASSERT_EQ(poll(&input, 1, 5000), 1);
    EXPECT_THAT(heard, IsEmpty());
    bus.process();
    EXPECT_THAT(heard, ElementsAre("hello"));
}

TEST_F(ASessionBus, HasEveryEarlierPostAfterDraining)
{
    TestBus testBus;
    const auto& heard = listen();
    testBus.postFromAnotherProcess("one");
    testBus.postFromAnotherProcess("two");
    bus.drain();
    EXPECT_THAT(heard, ElementsAre("one", "two"));
}

TEST_F(ASessionBus, KeepsItsConnectionWhenAHandlerAsksForMore)
{
    TestBus testBus;
    const auto& heard = listen();
    bus.subscribeToNotifications([](std::string_view name) {
        if (name == "first")
            SessionBus::shared().drain();
    });
    const auto* connection = bus.connection();
    testBus.postFromAnotherProcess("first");
    testBus.postFromAnotherProcess("second");
    bus.drain();
    EXPECT_THAT(heard, ElementsAre("first", "second"));
    EXPECT_EQ(bus.connection(), connection);
}

TEST_F(ASessionBus, IgnoresOtherSignals)
{
    TestBus testBus;
    const auto& heard = listen();
    const auto other = testBus.connectAnother();
    const auto emit = [&](const char* path, const char* interface, const char* member, const char* types,
                          auto... values) {
        EXPECT_GE(sd_bus_emit_signal(other.get(), path, interface, member, types, values...), 0);
    };
    emit(notificationsPath, notificationsInterface, postedSignal, "i", 5);
    emit(notificationsPath, notificationsInterface, postedSignal, "ss", "two", "names");
    emit(notificationsPath, notificationsInterface, postedSignal, "");
    emit(notificationsPath, notificationsInterface, "Other", "s", "member");
    emit(notificationsPath, "other.Interface", postedSignal, "s", "interface");
    emit("/other", notificationsInterface, postedSignal, "s", "path");
    emit(notificationsPath, notificationsInterface, postedSignal, "s", "right");
    sd_bus_flush(other.get());
    bus.drain();
    EXPECT_THAT(heard, ElementsAre("right"));
}

TEST_F(ASessionBus, ReceivesNotificationsOnTheNextBusWhenOneWasLost)
{
    const auto& heard = listen();
    std::vector<int> descriptors;
    {
        const TestBus first;
        ASSERT_NE(bus.connection(), nullptr);
        bus.onReconnect = [&] { descriptors.push_back(bus.descriptors()[1]); };
    }
    EXPECT_THAT(descriptors, ElementsAre(-1));

    TestBus second;
    ASSERT_NE(bus.connection(), nullptr);
    EXPECT_THAT(descriptors, ElementsAre(-1, bus.descriptors()[1]));
    second.postFromAnotherProcess("again");
    bus.drain();
    EXPECT_THAT(heard, ElementsAre("again"));
}

TEST(APrivateBus, RestoresTheEnvironmentAtItsEnd)
{
    const tests::EnvironmentVariable before("DBUS_SESSION_BUS_ADDRESS", "unix:path=/before");
    {
        const PrivateBus bus;
        EXPECT_EQ(std::getenv("DBUS_SESSION_BUS_ADDRESS"), bus.address());
    }
    EXPECT_STREQ(std::getenv("DBUS_SESSION_BUS_ADDRESS"), "unix:path=/before");
}

TEST(APrivateBus, IsReportedWhenItCannotBeStarted)
{
    const tests::EnvironmentVariable path("PATH", "/nowhere");
    EXPECT_THAT([] { const PrivateBus bus; },
        testing::ThrowsMessage<std::runtime_error>(testing::HasSubstr("dbus-daemon")));
}

} // namespace brimsound::desktop
