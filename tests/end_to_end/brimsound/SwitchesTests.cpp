#include "platform/desktop/bus/SessionBus.h"
#include "tests/end_to_end/brimsound/Program.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <sstream>
#include <thread>

namespace brimsound::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr auto center = "com.quorvix.brimsound";

class AScriptOfSwitches : public testing::Test {
protected:
    TemporaryRoot root;
    TestBus bus;
};

using AScriptOfLinks = AScriptOfSwitches;
using ALiveScript = AScriptOfSwitches;

std::string decoded(const std::string& base64)
{
    desktop::ChildProcess tool(
        { "/bin/sh", "-c", "printf %s '" + base64 + "' | base64 -d" }, desktop::ChildProcess::Output::Piped);
    std::string text;
    while (const auto line = tool.readLine(std::chrono::seconds(10)))
        text += *line + "\n";
    return text;
}

/// The process of the media server; 0 when there is none.
pid_t serverProcess()
{
    sd_bus_creds* creds = nullptr;
    pid_t pid = 0;
    if (sd_bus_get_name_creds(desktop::SessionBus::shared().connection(), center, SD_BUS_CREDS_PID, &creds)
        >= 0)
        sd_bus_creds_get_pid(creds, &pid);
    sd_bus_creds_unref(creds);
    return pid;
}

TEST_F(AScriptOfSwitches, NotifiesTheEngineOrOffersARespring)
{
    const auto run = playScript(root, "switch FILTER_DISABLED on\nswitch ENABLED off\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    ASSERT_THAT(run.effects(), ElementsAre("write", "notify", "write", "alert"));
    EXPECT_EQ(run.trace[1].at("name"), "LMAO_BRIMSOUND_SETTINGS_CHANGED");
    EXPECT_EQ(run.trace[3],
        (Json { { "effect", "alert" },
            { "message", "In order to disable the equalizer, you will need to respring." },
            { "buttons", { "Not now", "Respring" } } }));
}

TEST_F(AScriptOfSwitches, FlipsEachSwitchAndKeepsIt)
{
    for (const auto* key : { "FILTER_DISABLED", "CHECKING_DISABLED" })
        EXPECT_THAT(playScript(root, "switch " + std::string(key) + " on\n").effects(),
            ElementsAre("write", "notify"));
    EXPECT_THAT(playScript(root, "switch AUTO_PREAMP off\n").effects(), ElementsAre("write", "notify"));
    for (const auto* key : { "ENABLED", "ENABLED_CC" })
        EXPECT_THAT(playScript(root, "switch " + std::string(key) + " off\n").effects(),
            ElementsAre("write", "alert"));
    const auto run = playScript(root, "state\nswitch ENABLED off\ntouch 3\ndrag 3 6\nlift 3\nstate\n");
    EXPECT_EQ(run.all("state")[0].at("switches"),
        (Json { { "ENABLED", false }, { "ENABLED_CC", false }, { "AUTO_PREAMP", false },
            { "FILTER_DISABLED", true }, { "CHECKING_DISABLED", true } }));
    // The switch was off already, so nothing was changed, and the preamp stayed the same.
    EXPECT_THAT(run.all("alert"), IsEmpty());
    EXPECT_EQ(run.all("state")[1].at("sliders")[0], 0.0);
}

TEST_F(AScriptOfSwitches, ShowsValuesOfOtherTypesAsTheyConvert)
{
    root.write("/var/mobile/Library/Preferences/com.quorvix.brimsound.plist",
        "<plist><dict><key>ENABLED</key><string>perhaps</string><key>ENABLED_CC</key><real>0.5</real>"
        "<key>AUTO_PREAMP</key><array/><key>FILTER_DISABLED</key><string>YES</string>"
        "<key>CHECKING_DISABLED</key><integer>0</integer></dict></plist>");
    const auto run = playScript(root, "state\nswitch ENABLED on\n");
    EXPECT_EQ(run.all("state")[0].at("switches"),
        (Json { { "ENABLED", false }, { "ENABLED_CC", true }, { "AUTO_PREAMP", false },
            { "FILTER_DISABLED", true }, { "CHECKING_DISABLED", false } }));
    // It was shown as off, so it could be switched on.
    EXPECT_THAT(run.all("alert"), SizeIs(1));
}

TEST_F(AScriptOfSwitches, RunsTheCommandsOfARespringInOrderAndNoneForNotNow)
{
    const auto run = playScript(root,
        "switch ENABLED off\nalert \"Not now\"\nswitch ENABLED on\nalert \"Respring\"\npress respring:\n"
        "press \"Activator\"\nwait 1\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    ASSERT_THAT(run.effects(), ElementsAre("write", "alert", "write", "alert", "shell", "shell"));
    EXPECT_EQ(run.trace[4].at("command"), "killall mediaserverd");
    EXPECT_EQ(run.trace[5].at("command"), "killall backboardd");
}

TEST_F(AScriptOfSwitches, CannotReachWhatAnAlertCovers)
{
    for (const auto* line : { "touch 3", "switch ENABLED_CC off", "press \"Presets\"" }) {
        const TemporaryRoot fresh;
        const auto run = playScript(fresh, std::string("switch ENABLED off\n") + line + "\n");
        EXPECT_EQ(run.status, 2) << line;
        EXPECT_THAT(run.errors, HasSubstr("line 2: ")) << line;
        EXPECT_THAT(run.errors, HasSubstr("covered")) << line;
    }
}

TEST_F(AScriptOfSwitches, StopsAtANameThatDoesNotExist)
{
    const std::vector<std::pair<std::string, std::string>> badLines {
        { "switch NOISE on", "there is no switch \"NOISE\"" },
        { "switch ENABLED maybe", "it is switch KEY on or switch KEY off" },
        { "press \"Self-destruct\"", "there is no button \"Self-destruct\"" },
        { "press \"Auto Preamp\"", "there is no button \"Auto Preamp\"" },
        { "alert \"Respring\"", "no alert is shown" },
        { "mail send", "no mail is being composed" },
        { "mail away", "it is mail send or mail cancel" },
    };
    for (const auto& [line, reason] : badLines) {
        const auto run = playScript(root, line + "\n");
        EXPECT_EQ(run.status, 2) << line;
        EXPECT_THAT(run.errors, HasSubstr("brimsound: line 1: " + reason + "\n"));
    }
    const auto run = playScript(root, "switch ENABLED off\nalert \"Maybe\"\n");
    EXPECT_THAT(run.errors, HasSubstr("line 2: the alert has no button \"Maybe\""));
}

TEST_F(AScriptOfSwitches, ClosesThePaneWithItsAlertsUnanswered)
{
    const auto run
        = playScript(root, "switch ENABLED off\nclose\nopen\nswitch ENABLED on\nalert \"Not now\"\nwait 1\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.effects(), ElementsAre("write", "alert", "write", "alert"));
}

TEST_F(AScriptOfLinks, ComposesAndSendsTheReport)
{
    const auto run = playScript(root,
        "switch FILTER_DISABLED on\npress \"Report an Issue\"\nmail cancel\nwait 1\npress reportIssue:\nmail "
        "send\nwait 1\n"
        "touch 3\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    ASSERT_THAT(run.effects(), ElementsAre("write", "notify", "shell", "shell", "mail", "message"));
    const auto mail = run.all("mail")[0];
    EXPECT_EQ(mail.at("subject"), "Brimsound 1.5.5");
    EXPECT_THAT(mail.at("to"), SizeIs(1));
    ASSERT_THAT(mail.at("attachments"), SizeIs(2));
    EXPECT_EQ(mail.at("attachments")[0].at("name"), "Cydia_data.txt");
    EXPECT_EQ(mail.at("attachments")[0].at("type"), "text/plain");
    EXPECT_EQ(mail.at("attachments")[1].at("name"), "prefs.plist");
    EXPECT_EQ(mail.at("attachments")[1].at("type"), "text/plain");
}

TEST_F(AScriptOfLinks, OpensTheWebsite)
{
    const auto run = playScript(root, "press \"Visit Website\"\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.effects(), ElementsAre("url"));
}

TEST_F(ALiveScript, ReportsThisMachinesPackagesToTheUsersMailProgram)
{
    // A mail program that accepts every mail, and a home folder to install it in.
    const auto home = root.path() / "home";
    const auto programs = home / ".local/share/applications";
    std::filesystem::create_directories(programs);
    std::filesystem::create_directories(home / ".config");
    std::ofstream(programs / "reader.desktop")
        << "[Desktop Entry]\nType=Application\nName=Reader\nExec=cp %f "
        << (root.path() / "draft.eml").string() << "\nMimeType=message/rfc822;\n";
    std::ofstream(home / ".config/mimeapps.list")
        << "[Default Applications]\nmessage/rfc822=reader.desktop\n";
    const EnvironmentVariable homeFolder("HOME", home.c_str());
    const EnvironmentVariable data("XDG_DATA_HOME", nullptr);
    const EnvironmentVariable config("XDG_CONFIG_HOME", nullptr);
    const EnvironmentVariable cache("XDG_CACHE_HOME", nullptr);
    const EnvironmentVariable dirs("XDG_DATA_DIRS", (root.path() / "none").c_str());
    const EnvironmentVariable language("LC_ALL", "C");

    std::ofstream(root.path() / "script") << "press reportIssue:\nmail send\nwait 1\n";
    const auto run
        = runProgram({ "--headless", "--live", "--root", root.path(), "--script", root.path() / "script" });
    EXPECT_EQ(run.status, 0) << run.errors;
    ASSERT_THAT(run.effects(), ElementsAre("shell", "mail"));
    const auto text = decoded(run.trace[1].at("attachments")[0].at("base64"));
    desktop::ChildProcess query({ "dpkg-query", "--show" }, desktop::ChildProcess::Output::Piped);
    std::string packages;
    while (const auto line = query.readLine(std::chrono::seconds(20)))
        packages += *line + "\n";
    const auto lineEnd = text.find('\n');
    EXPECT_THAT(text.substr(0, lineEnd), HasSubstr(" on iOS "));
    EXPECT_THAT(text.substr(0, lineEnd), HasSubstr(" (BRS 1.5.5) "));
    EXPECT_EQ(text.substr(lineEnd + 1), packages);
}

TEST_F(ALiveScript, StartsItsMediaServerAgainWhenItWasKilled)
{
    // The test must not kill other processes: the command is only recorded.
    const auto bin = root.path() / "bin";
    std::filesystem::create_directory(bin);
    std::ofstream(bin / "killall") << "#!/bin/sh\necho \"$@\" >> \"" << (root.path() / "killed").string()
                                   << "\"\n";
    std::filesystem::permissions(bin / "killall", std::filesystem::perms::owner_all);
    const EnvironmentVariable path("PATH", (bin.string() + ":/usr/bin:/bin").c_str());

    RunningProgram pane(root.path(), { "--headless", "--live" });
    pane.say("switch ENABLED off");
    pane.say("alert \"Respring\"");
    EXPECT_EQ(pane.next("shell").at("command"), "killall mediaserverd");
    EXPECT_EQ(pane.next("shell").at("command"), "killall backboardd");
    pane.state();
    std::ostringstream killed;
    killed << std::ifstream(root.path() / "killed").rdbuf();
    EXPECT_EQ(killed.str(), "mediaserverd\nbackboardd\n");

    const auto server = serverProcess();
    ASSERT_GT(server, 0);
    kill(server, SIGKILL);
    while (serverProcess() == server)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    pane.say("wait 0.1");
    pane.say("touch 3");
    EXPECT_EQ(pane.next("message").at("error"), nullptr);
    EXPECT_NE(serverProcess(), server);
}

} // namespace
} // namespace brimsound::tests
