#include "platform/AppSupport/CPDistributedMessagingCenter.h"

#include "platform/AppSupport/rocketbootstrap.h"
#include "platform/desktop/bus/BusValue.h"
#include "platform/desktop/bus/SessionBus.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/RecordingEffects.h"
#include "tests/support/StandInServer.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>

#include <atomic>
#include <cerrno>
#include <chrono>

namespace brimsound {

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr auto centerName = "test.messaging.center";

class Server : public tests::StandInServer {
public:
    explicit Server(Answer answer)
        : StandInServer(centerName, std::move(answer))
    {
    }
};

class AMessagingCenter : public testing::Test {
protected:
    PropertyList::Dictionary send(const PropertyList::Dictionary& userInfo = {})
    {
        return center->sendMessageAndReceiveReplyName("greet", userInfo, error);
    }

    tests::TestBus bus;
    tests::RecordingEffects effects;
    RetainPtr<CPDistributedMessagingCenter> center = CPDistributedMessagingCenter::centerNamed(centerName);
    std::optional<NSError> error;
};

} // namespace

TEST_F(AMessagingCenter, SendsTheMessageAndReturnsTheReply)
{
    const Server server([](sd_bus_message* message) {
        EXPECT_STREQ(sd_bus_message_get_signature(message, 1), "sa{sv}");
        const char* name = nullptr;
        PropertyList::Dictionary userInfo;
        sd_bus_message_read(message, "s", &name);
        desktop::readDictionary(message, userInfo);
        EXPECT_STREQ(name, "greet");
        EXPECT_EQ(userInfo, (PropertyList::Dictionary { { "vals", PropertyList::Array { 1.5f, -2.0f } } }));
        return sd_bus_reply_method_return(message, "a{sv}", 1, "answer", "s", "hello");
    });

    EXPECT_EQ(send({ { "vals", PropertyList::Array { 1.5f, -2.0f } } }),
        (PropertyList::Dictionary { { "answer", "hello" } }));
    EXPECT_EQ(error, std::nullopt);
    EXPECT_THAT(effects.trace(), ElementsAre("message greet"));
}

TEST_F(AMessagingCenter, LeavesTheErrorAsItWasWhenAReplyComes)
{
    const Server server(
        [](sd_bus_message* message) { return sd_bus_reply_method_return(message, "a{sv}", 0); });
    const NSError before { "domain", 1, "from before" };
    error = before;
    send();
    EXPECT_EQ(error, before);
}

TEST_F(AMessagingCenter, ReportsTheReasonWhenThereIsNoServer)
{
    EXPECT_TRUE(send({ { "answer", 1 } }).empty());
    ASSERT_TRUE(error);
    EXPECT_EQ(error->domain, "org.freedesktop.DBus.Error.NameHasNoOwner");
    EXPECT_THAT(error->localizedDescription, HasSubstr(centerName));
    EXPECT_THAT(effects.trace(), ElementsAre("message greet failed"));
    EXPECT_EQ(effects.messages().at(0).error, error);
    EXPECT_EQ(effects.messages().at(0).userInfo, (PropertyList::Dictionary { { "answer", 1 } }));
}

TEST_F(AMessagingCenter, ReturnsTheServersErrorInOneLine)
{
    const Server server([](sd_bus_message* message) {
        return sd_bus_reply_method_errorf(message, "test.Error.Refused", "not\nnow");
    });
    EXPECT_TRUE(send().empty());
    EXPECT_EQ(error, (NSError { "test.Error.Refused", EIO, "not now" }));
}

TEST(AnError, IsDescribedByDomainCodeAndText)
{
    EXPECT_EQ(descriptionOf({ "test.Error.Refused", -5, "not now" }),
        "Error Domain=test.Error.Refused Code=-5 \"not now\"");
}

TEST_F(AMessagingCenter, WaitsForAReplyOneSecondAtMost)
{
    const auto silent = bus.connectAnother();
    ASSERT_GE(sd_bus_request_name(silent.get(), centerName, 0), 0);

    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(send().empty());
    const auto waited = std::chrono::steady_clock::now() - start;
    EXPECT_GE(waited, std::chrono::milliseconds(900));
    EXPECT_LT(waited, std::chrono::milliseconds(3000));
    ASSERT_TRUE(error);
    EXPECT_FALSE(error->domain.empty());
    EXPECT_FALSE(error->localizedDescription.empty());
}

TEST_F(AMessagingCenter, RejectsAReplyOfTheWrongType)
{
    const Server server(
        [](sd_bus_message* message) { return sd_bus_reply_method_return(message, "s", "hello"); });
    EXPECT_TRUE(send().empty());
    EXPECT_TRUE(error);
}

TEST_F(AMessagingCenter, CannotSendNull)
{
    std::atomic<int> received = 0;
    const Server server([&](sd_bus_message* message) {
        ++received;
        return sd_bus_reply_method_return(message, "a{sv}", 0);
    });
    EXPECT_TRUE(send({ { "nothing", {} } }).empty());
    EXPECT_TRUE(error);
    EXPECT_EQ(received, 0);
}

TEST_F(AMessagingCenter, FailsWithoutABusAndRecoversWhenAppliedToTheNextOne)
{
    rocketbootstrap_distributedmessagingcenter_apply(*center);
    bus.stop();
    EXPECT_TRUE(send().empty());
    EXPECT_TRUE(error);
    {
        const tests::EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
        error.reset();
        EXPECT_TRUE(send().empty());
        ASSERT_TRUE(error);
        EXPECT_EQ(error->localizedDescription, "There is no session bus.");
    }

    tests::TestBus next;
    const Server server(
        [](sd_bus_message* message) { return sd_bus_reply_method_return(message, "a{sv}", 0); });
    rocketbootstrap_distributedmessagingcenter_apply(*center);
    error.reset();
    send();
    EXPECT_EQ(error, std::nullopt);
    EXPECT_THAT(
        effects.trace(), ElementsAre("message greet failed", "message greet failed", "message greet"));
}

TEST_F(AMessagingCenter, WithAnInvalidNameFailsToSend)
{
    center = CPDistributedMessagingCenter::centerNamed("no name!");
    EXPECT_TRUE(send().empty());
    EXPECT_TRUE(error);
}

} // namespace brimsound
