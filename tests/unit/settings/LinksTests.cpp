#include "include/Configuration.h"
#include "include/twitter.h"
#include "platform/System/sysctl.h"
#include "platform/UIKit/UIDevice.h"
#include "settings/diagnosticText.h"
#include "settings/get_model.h"
#include "settings/run_cmd.h"
#include "settings/tweak.h"
#include "tests/unit/settings/Pane.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace brimsound::tests {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::SizeIs;

class Link : public testing::Test {
protected:
    Link() { platform.takeTrace(); }

    /// Taps the row with that action.
    void press(const char* selector)
    {
        const auto row = make<PSSpecifier>("Row", *controller, PropertyList::Dictionary());
        const Argument argument = static_cast<NSObject*>(row.get());
        controller->methodForSelector(selector)->invoke(*controller, { &argument, 1 });
    }

    static std::string output(const char* command)
    {
        const auto bytes = run_cmd(command);
        return bytes ? std::string(reinterpret_cast<const char*>(bytes->data()), bytes->size()) : "(null)";
    }

    TestPlatform platform;
    RetainPtr<BrimsoundSettingsListController> controller = openController();
};

using TheIssueReport = Link;
using ACommand = Link;
using TheWebsite = Link;
using TheProfile = Link;

TEST_F(TheIssueReport, IsAMailToTheSupportAddressWithBothAttachments)
{
    platform.writePreferencesFile(std::string("bplist00 or whatever lies there"));
    press("reportIssue:");
    const auto mail = platform.composedMail();
    ASSERT_TRUE(mail);
    EXPECT_EQ(mail->subject, "Brimsound 1.5.5");
    EXPECT_THAT(mail->to, ElementsAre(supportAddress));
    ASSERT_THAT(mail->attachments, SizeIs(2));
    EXPECT_EQ(mail->attachments[0].fileName, "Cydia_data.txt");
    EXPECT_EQ(mail->attachments[0].mimeType, "text/plain");
    EXPECT_EQ(mail->attachments[1].fileName, "prefs.plist");
    EXPECT_EQ(mail->attachments[1].mimeType, "text/plain");
    EXPECT_EQ(mail->attachments[1].bytes, "bplist00 or whatever lies there");
    EXPECT_THAT(platform.takeTrace(), ElementsAre("shell /usr/bin/env dpkg-query --show"));
}

TEST_F(TheIssueReport, ContainsDeviceVersionLanguageAndPackages)
{
    platform.carryOutCommands();
    platform.setPreferredLanguages({ "fr_CA", "en" });
    press("reportIssue:");
    EXPECT_EQ(platform.composedMail()->attachments[0].bytes,
        get_model() + " (BRS 1.5.5) fr-CA\n" + output("/usr/bin/env dpkg-query --show"));
}

TEST_F(TheIssueReport, LeavesTheLanguageOutWhenThereIsNone)
{
    platform.setPreferredLanguages({});
    press("reportIssue:");
    EXPECT_EQ(platform.composedMail()->attachments[0].bytes, get_model() + " (BRS 1.5.5) \n");
}

std::string textOf(const NSData& data)
{
    return { reinterpret_cast<const char*>(data.data()), data.size() };
}

TEST_F(TheIssueReport, TakesAsManyBytesOfDeviceAndLanguageAsTheyHaveUtf16Units)
{
    // Characters of one, two, three and four bytes in UTF-8; the last has two UTF-16 units.
    EXPECT_EQ(textOf(diagnosticText("a\xC3\xBC\xE2\x82\xAC\xF0\x9F\x8E\xB8"
                                    "bcdef",
                  { "x\xC3\xBC-yz" }, {})),
        std::string("a\xC3\xBC\xE2\x82\xAC\xF0\x9F\x8E\xB8") + " (BRS 1.5.5) x\xC3\xBC-y\n");
    EXPECT_EQ(textOf(diagnosticText("\xC3\xBC", { "\xC3\xBC" }, {})), "\xC3 (BRS 1.5.5) \xC3\n");
    EXPECT_EQ(textOf(diagnosticText("plain", { "en", "fr" }, {})), "plain (BRS 1.5.5) en\n");
}

TEST_F(TheIssueReport, SlidesInAndOut)
{
    press("reportIssue:");
    platform.passTime(0.05);
    EXPECT_TRUE(platform.isSheetMoving());
    platform.passTime(1);
    platform.cancelMail();
    platform.passTime(0.05);
    EXPECT_TRUE(platform.isSheetMoving());
    platform.passTime(1);
}

TEST_F(TheIssueReport, IsSentWithoutPackagesWhenTheCommandCannotBeStarted)
{
    platform.setPreferredLanguages({ "en" });
    // Run it once without a fault: sanitizer builds open descriptors when they see something for the first
    // time.
    press("reportIssue:");
    platform.cancelMail();
    platform.takeTrace();
    platform.failToStartCommands();
    press("reportIssue:");
    platform.startCommandsAgain();
    EXPECT_THAT(platform.composedMail()->attachments[0].bytes, EndsWith(" (BRS 1.5.5) en\n"));
    EXPECT_THAT(platform.takeTrace(),
        ElementsAre("shell /usr/bin/env dpkg-query --show", "log Brimsound: Failed to run command\n"));
}

TEST_F(TheIssueReport, IsSentWithoutMissingPreferences)
{
    press("reportIssue:");
    EXPECT_THAT(platform.composedMail()->attachments, SizeIs(1));
    EXPECT_EQ(platform.preferencesFile(), "");
}

TEST_F(TheIssueReport, IsDismissedWhetherSentOrCanceled)
{
    press("reportIssue:");
    platform.takeTrace();
    platform.cancelMail();
    EXPECT_FALSE(platform.composedMail());
    EXPECT_THAT(platform.takeTrace(), IsEmpty());

    press("reportIssue:");
    platform.takeTrace();
    platform.sendMail();
    EXPECT_FALSE(platform.composedMail());
    EXPECT_THAT(platform.takeTrace(), ElementsAre("mail Brimsound 1.5.5"));
}

TEST_F(ACommand, ReturnsAllItsOutputWhateverItsStatus)
{
    platform.carryOutCommands();
    EXPECT_EQ(output("printf 'one\\ntwo'; exit 3"), "one\ntwo");
    EXPECT_EQ(output("true"), "");
    EXPECT_EQ(output("no-such-command-anywhere 2>/dev/null"), "");
}

TEST_F(ACommand, ReturnsLinesLongerThanItsBuffer)
{
    platform.carryOutCommands();
    for (const std::size_t length : { 1022u, 1023u, 1024u, 2046u, 5000u }) {
        const auto command = "printf '%0" + std::to_string(length) + "d\\nend' 0";
        EXPECT_EQ(output(command.c_str()), std::string(length, '0') + "\nend") << length;
    }
}

TEST_F(ACommand, ReturnsMegabytes)
{
    platform.carryOutCommands();
    EXPECT_EQ(output("yes brimsound | head -c 4000000").size(), 4000000u);
}

TEST_F(ACommand, DropsTheRestOfAReadAfterANul)
{
    platform.carryOutCommands();
    EXPECT_EQ(output("printf 'ab\\000cd\\nef\\n'"), "abef\n");
}

TEST_F(ACommand, ThatCannotBeStartedReturnsNothingAndALogLine)
{
    // Run it once without a fault: sanitizer builds open descriptors when they see something for the first
    // time.
    run_cmd("true");
    platform.takeTrace();
    platform.failToStartCommands();
    const auto bytes = run_cmd("true");
    platform.startCommandsAgain();
    EXPECT_FALSE(bytes);
    EXPECT_THAT(platform.takeTrace(), ElementsAre("shell true", "log Brimsound: Failed to run command\n"));
}

TEST_F(TheIssueReport, DescribesTheDeviceByMachineAndSystem)
{
    const auto model = get_model();
    const auto end = " on iOS " + UIDevice::currentDevice().systemVersion();
    ASSERT_GT(model.size(), end.size());
    EXPECT_EQ(model.substr(model.size() - end.size()), end);
    EXPECT_EQ(model.find('\0'), std::string::npos);

    std::array<char, 256> machine {};
    auto size = machine.size();
    ASSERT_EQ(brimsound::sysctlbyname("hw.machine", machine.data(), &size, nullptr, 0), 0);
    EXPECT_EQ(model, machine.data() + end);
}

TEST_F(TheWebsite, IsOpenedWithoutAskingFirst)
{
    platform.haveProgramsFor({});
    press("visitWebsite:");
    EXPECT_THAT(platform.takeTrace(), ElementsAre(std::string("url ") + websiteURL));
}

TEST_F(TheProfile, HasItsAddressesInOrder)
{
    const std::string web = BRIMSOUND_PROFILE_HOST "/BrimsoundHQ";
    EXPECT_THAT(TWITTER_URL_SCHEMES,
        ElementsAre(std::string("twitterrific:///profile?screen_name=BrimsoundHQ"),
            std::string("tweetbot:///user_profile/BrimsoundHQ"),
            std::string("twitter://user?screen_name=BrimsoundHQ"), "https://" + web, "http://" + web));
}

TEST_F(TheProfile, IsOpenedAtTheFirstAddressThatCanBeOpened)
{
    std::vector<std::string> schemes { "twitterrific", "tweetbot", "twitter", "https", "http" };
    for (const auto* url : TWITTER_URL_SCHEMES) {
        platform.haveProgramsFor(schemes);
        press("visitTwitter:");
        EXPECT_THAT(platform.takeTrace(), ElementsAre(std::string("url ") + url));
        schemes.erase(schemes.begin());
    }
    platform.haveProgramsFor({});
    press("visitTwitter:");
    EXPECT_THAT(platform.takeTrace(), IsEmpty());
}

} // namespace
} // namespace brimsound::tests
