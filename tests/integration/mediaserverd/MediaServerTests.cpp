#include "platform/AppSupport/CPDistributedMessagingCenter.h"
#include "platform/CoreFoundation/CFNotificationCenter.h"
#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/desktop/bus/Interfaces.h"
#include "platform/desktop/bus/SessionBus.h"
#include "settings/tweak.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/MediaServer.h"
#include "tests/support/TemporaryRoot.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>

#include <cmath>
#include <csignal>
#include <limits>

namespace brimsound {

using testing::HasSubstr;

namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;

class AMediaServer : public testing::Test {
protected:
    void store(const PropertyList& preferences)
    {
        const auto data = dataWithPropertyList(preferences, NSPropertyListFormat::BinaryFormat_v1_0, 0);
        ASSERT_TRUE(data && writeToFile(*data, preferencesPath));
    }

    void send(const PropertyList& vals) { send(equalizerSendMessage, { { valsKey, vals } }); }

    void send(const std::string& name, const Dictionary& userInfo)
    {
        error.reset();
        reply = center->sendMessageAndReceiveReplyName(name, userInfo, error);
    }

    void postSettingsFinished()
    {
        CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
            settingsFinishedNotification, nullptr, nullptr, true);
    }

    tests::TemporaryRoot root;
    tests::TestBus bus;
    RetainPtr<CPDistributedMessagingCenter> center
        = CPDistributedMessagingCenter::centerNamed(messagingCenterName);
    Dictionary reply;
    std::optional<NSError> error;
};

Array gains(std::initializer_list<double> values)
{
    Array array;
    for (const double value : values)
        array.emplace_back(value);
    return array;
}

const auto someGains = gains({ 5.8064516f, 1.5, 2, 3, 4, 5, 6, 7, 8, 9, -12 });
constexpr auto someGainsPrinted = R"({"vals":[5.806452,1.5,2.0,3.0,4.0,5.0,6.0,7.0,8.0,9.0,-12.0]})";
constexpr auto zerosPrinted = R"({"vals":[0.0,0.0,0.0,0.0,0.0,0.0,0.0,0.0,0.0,0.0,0.0]})";

// Standard output and standard error of a run, followed by its exit status.
std::string outcomeOf(const std::string& options)
{
    desktop::ChildProcess run(
        { "sh", "-c", std::string(MEDIASERVERD) + " " + options + " 2>&1; echo exit $?" },
        desktop::ChildProcess::Output::Piped);
    std::string outcome;
    while (const auto line = run.readLine(std::chrono::seconds(10)))
        outcome += *line + "\n";
    return outcome;
}

} // namespace

TEST_F(AMediaServer, AnswersLiveGainsAndPrintsThem)
{
    tests::MediaServer server;
    send(someGains);
    EXPECT_EQ(error, std::nullopt);
    EXPECT_TRUE(reply.empty());
    EXPECT_EQ(server.nextLine(), someGainsPrinted);
}

TEST_F(AMediaServer, PrintsNothingWhileTheGainsStayTheSame)
{
    tests::MediaServer server;
    send(Array(11, PropertyList(0.0)));
    EXPECT_EQ(error, std::nullopt);
    send(someGains);
    send(someGains);
    send(Array(11, PropertyList(0)));
    EXPECT_EQ(server.nextLine(), someGainsPrinted);
    EXPECT_EQ(server.nextLine(), zerosPrinted);
}

TEST_F(AMediaServer, RefusesGainsThatAreNotElevenFiniteNumbers)
{
    tests::MediaServer server;
    const auto with = [](const PropertyList& value) {
        auto array = someGains;
        array[4] = value;
        return array;
    };
    const PropertyList refused[] = { Array(10, PropertyList(1.0)), Array(12, PropertyList(1.0)), Array {},
        "loud", 1.0, Dictionary { { "0", 1.0 } }, with(std::nan("")),
        with(std::numeric_limits<double>::infinity()), with(1e300), with("1.0"), with(true), with(Array {}) };
    for (const auto& vals : refused) {
        send(vals);
        ASSERT_TRUE(error);
        EXPECT_EQ(error->domain, "org.freedesktop.DBus.Error.InvalidArgs");
        EXPECT_THAT(error->localizedDescription, HasSubstr("eleven finite numbers"));
    }
    send(equalizerSendMessage, {});
    EXPECT_TRUE(error);

    send(someGains);
    EXPECT_EQ(server.nextLine(), someGainsPrinted) << "a rejected message changed the gains";
}

TEST_F(AMediaServer, RefusesOtherMessages)
{
    const tests::MediaServer server;
    send("equalizer_reset", { { valsKey, someGains } });
    ASSERT_TRUE(error);
    EXPECT_THAT(error->localizedDescription, HasSubstr("equalizer_reset"));
}

TEST_F(AMediaServer, RefusesCallsOfTheWrongType)
{
    tests::MediaServer server;
    auto* connection = desktop::SessionBus::shared().connection();
    const auto path = desktop::messagingCenterPath(messagingCenterName);
    EXPECT_LT(
        sd_bus_call_method(connection, messagingCenterName, path.c_str(), desktop::messagingCenterInterface,
            desktop::sendMessageMethod, nullptr, nullptr, "s", equalizerSendMessage),
        0);
    send(someGains);
    EXPECT_EQ(error, std::nullopt);
}

TEST_F(AMediaServer, AcceptsGainsOfAnyNumberType)
{
    tests::MediaServer server;
    auto vals = someGains;
    vals[2] = 2;
    vals[3] = 3;
    send(vals);
    EXPECT_EQ(error, std::nullopt);
    EXPECT_EQ(server.nextLine(), someGainsPrinted);
}

TEST_F(AMediaServer, ReadsThePreferencesAtItsStart)
{
    store(Dictionary {
        { preampKey, 5.8064516f }, { peakingEqValuesKey, gains({ 1.5, 2, 3, 4, 5, 6, 7, 8, 9, -12 }) } });
    tests::MediaServer server;
    EXPECT_EQ(server.nextLine(), someGainsPrinted);
}

TEST_F(AMediaServer, RereadsThePreferencesWhenTheyChanged)
{
    tests::MediaServer server;
    store(Dictionary {
        { preampKey, 5.8064516f }, { peakingEqValuesKey, gains({ 1.5, 2, 3, 4, 5, 6, 7, 8, 9, -12 }) } });
    postSettingsFinished();
    EXPECT_EQ(server.nextLine(), someGainsPrinted);

    std::filesystem::remove(root.path() / "var/mobile/Library/Preferences/com.quorvix.brimsound.plist");
    postSettingsFinished();
    EXPECT_EQ(server.nextLine(), zerosPrinted);
}

TEST_F(AMediaServer, TreatsInvalidGainsInThePreferencesAsZero)
{
    tests::MediaServer server;
    store(Dictionary { { preampKey, "3.5" },
        { peakingEqValuesKey, Array { 1, "2.5 dB", true, std::nan(""), Dictionary {}, 1e300, 7.0 } } });
    postSettingsFinished();
    EXPECT_EQ(server.nextLine(), R"({"vals":[3.5,1.0,2.5,1.0,0.0,0.0,0.0,7.0,0.0,0.0,0.0]})");

    store(Dictionary { { peakingEqValuesKey, "none" } });
    postSettingsFinished();
    EXPECT_EQ(server.nextLine(), zerosPrinted);

    store(Dictionary { { peakingEqValuesKey, Array(15, PropertyList(1.0)) } });
    postSettingsFinished();
    EXPECT_EQ(server.nextLine(), R"({"vals":[0.0,1.0,1.0,1.0,1.0,1.0,1.0,1.0,1.0,1.0,1.0]})");
}

TEST_F(AMediaServer, KeepsTheGainsWhileTheFileIsDamagedOrUnreadable)
{
    tests::MediaServer server;
    send(someGains);
    EXPECT_EQ(server.nextLine(), someGainsPrinted);

    root.write(preferencesPath, "");
    postSettingsFinished();
    root.write(preferencesPath, "bplist00 and then nothing");
    postSettingsFinished();
    store(Array { 1 });
    postSettingsFinished();
    // The reply arrives after the notifications were handled. A missing file is not a damaged one.
    send(someGains);
    const auto file = root.path() / "var/mobile/Library/Preferences/com.quorvix.brimsound.plist";
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    postSettingsFinished();
    send(someGains);
    std::filesystem::remove(file);
    store(Dictionary { { preampKey, 1.5 } });
    postSettingsFinished();
    EXPECT_EQ(server.nextLine(), R"({"vals":[1.5,0.0,0.0,0.0,0.0,0.0,0.0,0.0,0.0,0.0,0.0]})");
}

TEST_F(AMediaServer, LimitsGainsToTwelveDecibels)
{
    tests::MediaServer server;
    send(gains({ -12.5, 13, 1e9, -1e9, 12, -12, 0, 0, 0, 0, 0 }));
    EXPECT_EQ(error, std::nullopt);
    EXPECT_EQ(server.nextLine(), R"({"vals":[-12.0,12.0,12.0,-12.0,12.0,-12.0,0.0,0.0,0.0,0.0,0.0]})");

    store(Dictionary { { preampKey, 40 }, { peakingEqValuesKey, gains({ 1, 2, -100 }) } });
    postSettingsFinished();
    EXPECT_EQ(server.nextLine(), R"({"vals":[12.0,1.0,2.0,-12.0,0.0,0.0,0.0,0.0,0.0,0.0,0.0]})");
}

TEST_F(AMediaServer, EndsCleanlyOnSigterm)
{
    for (const int signal : { SIGTERM, SIGINT }) {
        tests::MediaServer server;
        send(someGains);
        server.process().signal(signal);
        EXPECT_EQ(server.process().exitStatus(std::chrono::seconds(10)), 0);
    }
}

TEST_F(AMediaServer, EndsWithAnErrorWhenTheBusEnds)
{
    tests::MediaServer server;
    bus.stop();
    EXPECT_EQ(server.process().exitStatus(std::chrono::seconds(10)), 1);
}

TEST_F(AMediaServer, IsTheOnlyOneOnItsBus)
{
    const tests::MediaServer server;
    EXPECT_EQ(outcomeOf("--silent"), "mediaserverd: another media server is running already\nexit 3\n");
}

TEST(StartingAMediaServer, NeedsABus)
{
    const tests::EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
    EXPECT_EQ(outcomeOf("--silent"), "mediaserverd: there is no session bus\nexit 1\n");
}

TEST(StartingAMediaServer, RejectsUnknownOptions)
{
    EXPECT_THAT(outcomeOf("--loud"), testing::MatchesRegex("[^\n]*--loud[^\n]*\nexit 2\n"));
    EXPECT_THAT(outcomeOf("--root"), testing::MatchesRegex("[^\n]*--root[^\n]*\nexit 2\n"));
    EXPECT_THAT(outcomeOf("louder"), testing::MatchesRegex("[^\n]*louder[^\n]*\nexit 2\n"));
}

TEST(StartingAMediaServer, ShowsItsVersionAndItsOptions)
{
    EXPECT_EQ(outcomeOf("--version"), "mediaserverd 1.5.5\nexit 0\n");
    EXPECT_THAT(outcomeOf("--help"), HasSubstr("--print"));
    EXPECT_THAT(outcomeOf("--help"), testing::EndsWith("exit 0\n"));
}

} // namespace brimsound
