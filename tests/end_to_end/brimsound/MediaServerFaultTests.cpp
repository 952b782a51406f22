#include "settings/tweak.h"
#include "tests/end_to_end/brimsound/Aftermath.h"
#include "tests/support/ProcessUse.h"
#include "tests/support/StandInServer.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>

#include <atomic>
#include <csignal>
#include <optional>
#include <thread>

namespace brimsound::tests {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;

constexpr auto errorLine = "Brimsound: ERROR SENDING TO MEDIA SERVER Error Domain=";

/// A pane whose third slider is dragged, with a media server run by the test.
class APaneWhoseMediaServer : public testing::Test {
protected:
    APaneWhoseMediaServer()
        : server(std::in_place)
        , pane(root.path(), { "--headless" })
    {
        pane.say("touch 3");
        EXPECT_EQ(pane.next("message").at("error"), nullptr);
    }

    Json drag(double gain)
    {
        pane.say("drag 3 " + std::to_string(gain));
        return pane.next();
    }

    /// Releases the slider and waits for the file.
    void lift()
    {
        pane.say("lift 3");
        EXPECT_EQ(pane.next("write").at("effect"), "write");
    }

    /// Expects a failed message and one line in the log with the reason.
    void expectLogged(const Json& message)
    {
        ASSERT_EQ(message.at("effect"), "message");
        ASSERT_TRUE(message.at("error").is_string()) << message;
        const auto text = pane.next().at("text").get<std::string>();
        EXPECT_THAT(text, testing::StartsWith(errorLine));
        EXPECT_THAT(text, testing::EndsWith("\"" + message.at("error").get<std::string>() + "\""));
    }

    TemporaryRoot root;
    TestBus bus;
    std::optional<MediaServer> server;
    RunningProgram pane;
};

TEST_F(APaneWhoseMediaServer, IsAbsentLogsEachSendAndSavesNonetheless)
{
    server.reset();
    for (const double gain : { 1.0, 2.0, 3.0 }) {
        const auto message = drag(gain);
        EXPECT_THAT(message.at("error").get<std::string>(), HasSubstr("does not exist"));
        expectLogged(message);
    }
    lift();
    EXPECT_EQ(pane.next().at("effect"), "notify");
    EXPECT_EQ(storedGains().at(3), 3);

    server.emplace();
    EXPECT_TRUE(comesToPlay(*server, storedGains()));
    EXPECT_TRUE(releaseArrives(pane, *server, 4));
}

TEST_F(APaneWhoseMediaServer, IsKilledDuringACallFailsAtOnce)
{
    server->process().signal(SIGSTOP);
    pane.say("drag 3 2");
    std::this_thread::sleep_for(200ms);
    Json message;
    EXPECT_LT(secondsOf([&] {
        server->process().signal(SIGKILL);
        message = pane.next();
    }),
        0.7);
    expectLogged(message);
    lift();

    server.emplace();
    EXPECT_TRUE(releaseArrives(pane, *server, 4));
}

TEST_F(APaneWhoseMediaServer, HangsBlocksEachSendForOneSecond)
{
    server->process().signal(SIGSTOP);
    for (const double gain : { 1.0, 2.0 }) {
        Json message;
        EXPECT_THAT(secondsOf([&] { message = drag(gain); }), oneSecond());
        expectLogged(message);
    }
    EXPECT_LT(secondsOf([&] { lift(); }), 0.9);
    EXPECT_EQ(storedGains().at(3), 2);

    // The messages sent meanwhile are handled first. The notification, which makes it read the file, comes
    // last.
    server->process().signal(SIGCONT);
    EXPECT_TRUE(comesToPlay(*server, storedGains()));
    EXPECT_TRUE(releaseArrives(pane, *server, 4));
}

TEST_F(APaneWhoseMediaServer, RejectsTheGainsLogsItsError)
{
    server.reset();
    {
        const StandInServer refusing(messagingCenterName, [](sd_bus_message* message) {
            return sd_bus_reply_method_errorf(message, "test.Error.Refused", "no\nmusic \xe2\x99\xab %s", "");
        });
        const auto message = drag(2);
        EXPECT_EQ(message.at("error"), "no music \xe2\x99\xab ");
        expectLogged(message);
        lift();
    }
    server.emplace();
    EXPECT_TRUE(releaseArrives(pane, *server, 4));
}

TEST_F(APaneWhoseMediaServer, SendsInvalidRepliesKeepsWorking)
{
    server.reset();
    const std::vector<StandInServer::Answer> nonsense {
        [](auto* message) { return sd_bus_reply_method_return(message, ""); },
        [](auto* message) { return sd_bus_reply_method_return(message, "s", "fine"); },
        [](auto* message) { return sd_bus_reply_method_return(message, "a{is}", 1, 5, "five"); },
        [](auto* message) { return sd_bus_reply_method_return(message, "(a{sv})", 0); },
        [](auto* message) { return sd_bus_reply_method_return(message, "av", 1, "v", "v", "i", 5); },
        [](auto* message) { return sd_bus_reply_method_errorf(message, "test.Error.Mute", "%s", ""); },
    };
    for (const auto& answer : nonsense) {
        const StandInServer answering(messagingCenterName, answer);
        expectLogged(drag(2));
    }
    {
        // A reply of the right type is accepted whatever it contains.
        const StandInServer answering(messagingCenterName, [](auto* message) {
            return sd_bus_reply_method_return(message, "a{sv}", 2, "vals", "s", "none", "vals", "ai", 1, 5);
        });
        EXPECT_EQ(drag(3).at("error"), nullptr);
    }
    lift();
    server.emplace();
    EXPECT_TRUE(releaseArrives(pane, *server, 4));
}

/// Replies with {"numbers": 16-bit numbers of that many bytes}.
int replyWithNumbers(sd_bus_message* message, std::size_t bytes)
{
    sd_bus_message* created = nullptr;
    sd_bus_message_new_method_return(message, &created);
    const desktop::BusMessage reply(created);
    const std::vector<std::byte> numbers(bytes);
    sd_bus_message_open_container(created, 'a', "{sv}");
    sd_bus_message_open_container(created, 'e', "sv");
    sd_bus_message_append(created, "s", "numbers");
    sd_bus_message_open_container(created, 'v', "an");
    sd_bus_message_append_array(created, 'n', numbers.data(), numbers.size());
    for (int container = 0; container < 3; ++container)
        sd_bus_message_close_container(created);
    return sd_bus_send(nullptr, created, nullptr);
}

TEST_F(APaneWhoseMediaServer, SendsAHugeReplyDoesNotKeepIt)
{
    constexpr std::size_t answerSize = 48 << 20;
    if (isSanitized())
        GTEST_SKIP() << "AddressSanitizer does not return freed memory";
    server.reset();
    const auto process = pane.process().processIdentifier();
    const auto before = residentBytes(process);
    {
        const StandInServer huge(
            messagingCenterName, [](auto* message) { return replyWithNumbers(message, answerSize); });
        for (const double gain : { 1.0, 2.0, 3.0 }) {
            Json message;
            EXPECT_LT(secondsOf([&] { message = drag(gain); }), 1.9);
            expectLogged(message);
        }
        // A reply that came too late is received and dropped here.
        pane.say("wait 0");
        lift();
    }
    server.emplace();
    EXPECT_TRUE(releaseArrives(pane, *server, 4));
    EXPECT_LT(residentBytes(process), before + answerSize / 2);
}

TEST_F(APaneWhoseMediaServer, IsReplacedByASilentOneIsUsedAgainWhenThatEnds)
{
    {
        std::atomic<int> heard = 0;
        const StandInServer mute(
            messagingCenterName,
            [&](auto*) {
                ++heard;
                return 1;
            },
            StandInServer::WhenOwned::Wait);
        EXPECT_EQ(drag(1).at("error"), nullptr);
        EXPECT_EQ(heard, 0);
        server.reset();
        Json message;
        EXPECT_THAT(secondsOf([&] { message = drag(2); }), oneSecond());
        expectLogged(message);
        EXPECT_EQ(heard, 1);
        // The name is taken, so the pane starts no server of its own.
        pane.say("wait 0");
        pane.state();
        EXPECT_EQ(serverProcess(), getpid());
    }
    pane.say("wait 0");
    EXPECT_EQ(drag(3).at("error"), nullptr);
    lift();
    EXPECT_EQ(storedGains().at(3), 3);
    EXPECT_GT(serverProcess(), 0);
}

TEST_F(APaneWhoseMediaServer, EndsForGoodStartsItsOwn)
{
    server.reset();
    pane.say("wait 0");
    EXPECT_EQ(drag(1).at("error"), nullptr);
    EXPECT_GT(serverProcess(), 0);
}

TEST(APaneWithAMediaServerOfItsOwn, HasItStartedAgainHoweverOftenItIsKilled)
{
    const TemporaryRoot root;
    const TestBus bus;
    RunningProgram pane(root.path(), { "--headless" });
    pane.say("touch 3");
    for (int kills = 0; kills < 12; ++kills) {
        ASSERT_EQ(pane.next("message").at("error"), nullptr) << kills;
        const auto server = serverProcess();
        ASSERT_GT(server, 0) << kills;
        kill(server, SIGKILL);
        ASSERT_TRUE(eventually([&] { return serverProcess() != server; }));
        // After several quick ends the next start is delayed, by up to eight seconds.
        pane.say("wait 9");
        pane.say("drag 3 " + std::to_string(kills));
    }
    EXPECT_EQ(pane.next("message").at("error"), nullptr);
    pane.say("lift 3");
    EXPECT_FALSE(pane.next("write").is_null());
    EXPECT_EQ(storedGains().at(3), 11);
}

TEST(APaneWithoutAMediaServerOfItsOwn, StartsOneWhenThePaneThatHadItLeaves)
{
    const TemporaryRoot root;
    const TestBus bus;
    std::optional<RunningProgram> first(
        std::in_place, root.path(), std::vector<std::string> { "--headless" });
    ASSERT_FALSE(first->state().is_null());
    RunningProgram second(root.path(), { "--headless" });
    ASSERT_FALSE(second.state().is_null());
    const auto server = serverProcess();
    first.reset();
    ASSERT_TRUE(eventually([&] { return serverProcess() != server; }));

    second.say("wait 0");
    second.say("touch 3");
    EXPECT_EQ(second.next("message").at("error"), nullptr);
}

} // namespace
} // namespace brimsound::tests
