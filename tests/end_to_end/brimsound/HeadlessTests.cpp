#include "platform/desktop/bus/SessionBus.h"
#include "tests/end_to_end/brimsound/Program.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/MediaServer.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <thread>

namespace brimsound::tests {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

namespace fs = std::filesystem;

constexpr auto preferences = "/var/mobile/Library/Preferences/com.quorvix.brimsound.plist";

Json flat()
{
    return std::vector<double>(11, 0.0);
}

/// Eleven zeros except for the given values.
Json valuesWith(std::initializer_list<std::pair<std::size_t, double>> some)
{
    std::vector<double> values(11, 0.0);
    for (const auto& [index, value] : some)
        values[index] = value;
    return values;
}

/// The command line of the process that owns the name on the bus.
std::string commandLineOf(const std::string& name)
{
    sd_bus_creds* credentials = nullptr;
    pid_t process = 0;
    if (sd_bus_get_name_creds(
            desktop::SessionBus::shared().connection(), name.c_str(), SD_BUS_CREDS_PID, &credentials)
        >= 0)
        sd_bus_creds_get_pid(credentials, &process);
    sd_bus_creds_unref(credentials);
    std::ostringstream text;
    text << std::ifstream("/proc/" + std::to_string(process) + "/cmdline").rdbuf();
    return text.str();
}

class AScript : public testing::Test {
protected:
    TemporaryRoot root;
    TestBus bus;
};

/// With a home folder of its own.
class AScriptWithoutARoot : public AScript {
protected:
    /// Runs a script, and returns whether that created the device's folders below the given folder.
    bool createsFoldersIn(const fs::path& folder) const
    {
        std::ofstream(script) << "wait 0\n";
        const auto run = runProgram({ "--headless", "--script", script });
        EXPECT_EQ(run.status, 0) << run.errors;
        return fs::is_directory(folder / "brimsound/var/mobile/Library/Preferences");
    }

    const fs::path script = root.path() / "script";
    const fs::path home = root.path() / "home";
    const EnvironmentVariable homeFolder { "HOME", home.c_str() };
};

TEST_F(AScriptWithoutARoot, UsesTheUsersDataFolder)
{
    const auto data = root.path() / "data";
    const EnvironmentVariable folder("XDG_DATA_HOME", data.c_str());
    EXPECT_TRUE(createsFoldersIn(data));
    EXPECT_FALSE(fs::exists(home / ".local"));
}

TEST_F(AScriptWithoutARoot, UsesTheDefaultDataFolderWhenNoneOrARelativeOneIsSet)
{
    for (const auto* value : { static_cast<const char*>(nullptr), "", "relative-data" }) {
        fs::remove_all(home);
        const EnvironmentVariable folder("XDG_DATA_HOME", value);
        EXPECT_TRUE(createsFoldersIn(home / ".local/share")) << (value ? value : "none");
    }
    EXPECT_FALSE(fs::exists("relative-data"));
}

using AProgramWithoutABus = AScript;
using TwoPanes = AScript;
using AMediaServer = AScript;

TEST_F(AScript, DragsASliderAndPrintsWhatFollows)
{
    const auto run = playScript(root, "touch 3\ndrag 3 4.5\nlift 3\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    ASSERT_THAT(run.effects(), ElementsAre("message", "message", "write", "notify", "delivered"));
    EXPECT_EQ(run.trace[0],
        (Json { { "effect", "message" }, { "name", "equalizer_send" }, { "vals", flat() },
            { "error", nullptr } }));
    EXPECT_EQ(run.trace[1].at("vals"), valuesWith({ { 0, -4.5 }, { 3, 4.5 } }));
    EXPECT_EQ(run.trace[2], (Json { { "effect", "write" }, { "path", preferences } }));
    EXPECT_EQ(run.trace[3],
        (Json { { "effect", "notify" }, { "name", "com.quorvix.brimsound.settingsfinishnotify" } }));
    EXPECT_EQ(run.trace[4].at("name"), "com.quorvix.brimsound.settingsfinishnotify");
}

TEST_F(AScript, LeavesAFileThatAnotherReaderUnderstands)
{
    playScript(root, "touch 3\ndrag 3 4.5\nlift 3\n");
    const auto file = root.path().string() + preferences;
    const std::string check = R"(
import plistlib, sys
data = open(sys.argv[1], 'rb').read()
assert data.startswith(b'bplist00')
prefs = plistlib.loads(data)
assert list(prefs) == ['PEAKING_EQ_VALUES', 'PRESETS', 'PREAMP'], list(prefs)
assert prefs['PEAKING_EQ_VALUES'] == [0, 0, 4.5, 0, 0, 0, 0, 0, 0, 0]
assert prefs['PREAMP'] == -4.5
assert len(prefs['PRESETS']) == 16
assert all(len(gains) == 10 for gains in prefs['PRESETS'].values())
# The file contains the marker of a four-byte real, and none of an eight-byte one.
assert data.count(b'\x22') >= 20 and prefs['PRESETS']['Full treble'][9] == 10.451612472534180
)";
    desktop::ChildProcess python({ "python3", "-c", check, file });
    EXPECT_EQ(python.exitStatus(std::chrono::seconds(20)), 0);
}

TEST_F(AScript, OverwritesTheFileInPlace)
{
    root.write(preferences, "<plist><dict/></plist>");
    const auto file = root.path().string() + preferences;
    std::filesystem::create_hard_link(file, file + ".link");
    playScript(root, "touch 3\nlift 3\n");
    EXPECT_THAT(root.read(preferences), StartsWith("bplist00"));
    EXPECT_EQ(root.read(std::string(preferences) + ".link"), root.read(preferences));
}

TEST_F(AScript, IgnoresItsOwnNotificationsAndReactsToOthers)
{
    const auto run = playScript(
        root, "touch 3\nlift 3\nstate\npost com.quorvix.brimsound.settingsfinishnotify\nwait 0.1\nstate\n");
    ASSERT_THAT(run.effects(),
        ElementsAre("message", "write", "notify", "state", "delivered", "delivered", "log", "state"));
    EXPECT_EQ(run.trace[3].at("notificationsToSkip"), 1);
    EXPECT_EQ(run.trace[6].at("text"), "Brimsound: got notification in settings");
    EXPECT_EQ(run.trace[7].at("notificationsToSkip"), 0);
}

TEST_F(AScript, ShowsTheStateOfThePane)
{
    const auto run = playScript(root, "touch 3\ndrag 3 12\nstate\n");
    const auto& state = run.trace.back();
    EXPECT_EQ(state.at("sliders"), valuesWith({ { 0, -12.0 }, { 3, 12.0 } }));
    EXPECT_EQ(state.at("labels"),
        (Json { "-12.0", "60", "170", "12.0", "600", "1K", "3K", "6K", "12K", "14K", "16K" }));
    EXPECT_EQ(state.at("colors")[0], (Json { 0.0, 0.0, 0.0, 1.0 }));
    EXPECT_EQ(state.at("colors")[3], (Json { 1.0, 1.0, 0.0, 1.0 }));
    EXPECT_EQ(state.at("colors")[4], (Json { 0.0, 1.0, 0.0, 1.0 }));
    // The bar is at the center of the thumb of a band at +12 dB: 14 points before the slider's end.
    EXPECT_EQ(state.at("blackBar"), (Json { 35 + 280 - 14.0, 54.0, 1.0, 420.0 }));
    EXPECT_EQ(state.at("panel"), "hidden");
    EXPECT_EQ(state.at("switches"),
        (Json { { "ENABLED", true }, { "ENABLED_CC", true }, { "AUTO_PREAMP", true },
            { "FILTER_DISABLED", false }, { "CHECKING_DISABLED", false } }));
    EXPECT_EQ(state.at("autoPreamp"), true);
}

TEST_F(AScript, ShowsThatThePreampIsNotAutomatic)
{
    root.write(preferences, "<plist><dict><key>AUTO_PREAMP</key><false/></dict></plist>");
    const auto run = playScript(root, "state\n");
    EXPECT_EQ(run.trace.at(0).at("autoPreamp"), false);
    EXPECT_EQ(run.trace.at(0).at("switches").at("AUTO_PREAMP"), false);
}

TEST_F(AScript, DragsAndLiftsOutsideAndCancels)
{
    const auto run
        = playScript(root, "touch 1\ndrag 1 3 outside\nlift 1 outside\ntouch 0\ndrag 0 2\ncancel 0\nstate\n");
    EXPECT_THAT(run.effects(),
        ElementsAre("message", "message", "write", "notify", "message", "message", "write", "notify", "state",
            "delivered", "delivered"));
    EXPECT_EQ(run.all("state")[0].at("sliders"), valuesWith({ { 0, 2.0 }, { 1, 3.0 } }));
}

TEST_F(AScript, ReachesEverySliderWithAFinger)
{
    for (std::size_t i = 0; i <= 10; ++i) {
        const auto number = std::to_string(i);
        const auto run = playScript(
            root, "touch " + number + "\ndrag " + number + " -7.25\nlift " + number + "\nstate\n");
        ASSERT_EQ(run.status, 0) << run.errors;
        EXPECT_EQ(run.all("state")[0].at("sliders")[i], -7.25) << i;
    }
}

TEST_F(AScript, MovesThePixelsOfARealFinger)
{
    // The third band's strip on the first screen. The table begins at 44.
    const auto start = playScript(root, "resize 320 1000\nstate\n");
    ASSERT_EQ(start.status, 0);
    const auto run = playScript(root,
        "resize 320 1000\n"
        "touch 3\nlift 3\n" // where the script itself puts its finger is the middle of the slider
        "finger down 175 541\nwait 0.2\nfinger move 270 541\nfinger up\nstate\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.effects(),
        ElementsAre("message", "write", "notify", "delivered", "message", "message", "write", "notify",
            "state", "delivered"));
    const double moved = run.all("state")[0].at("sliders")[3];
    EXPECT_NEAR(moved, 95.0 / 252 * 24, 1e-4);
}

TEST_F(AScript, ScrollsWithAFingerThatStartsOnASlider)
{
    const auto run = playScript(
        root, "finger down 175 480\nfinger move 175 440\nfinger move 175 300\nfinger up\nwait 1\nstate\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.effects(), ElementsAre("state"));
    EXPECT_EQ(run.trace.back().at("sliders"), flat());
}

TEST_F(AScript, ReleasesThePaneAndOpensItAgain)
{
    const auto run = playScript(root,
        "touch 3\ndrag 3 4.5\nlift 3\nclose\nstate\nwait 0.1\nopen\nstate\ntouch 3\ndrag 3 5\nlift 3\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    const auto states = run.all("state");
    EXPECT_EQ(states[0].at("sliders"), Json::array());
    EXPECT_EQ(states[0].at("notificationsToSkip"), 1);
    EXPECT_EQ(states[1].at("sliders"), valuesWith({ { 0, -4.5 }, { 3, 4.5 } }));
    EXPECT_EQ(states[1].at("notificationsToSkip"), 0);
    EXPECT_EQ(run.all("delivered").size(), 2u);
}

TEST_F(AScript, ClosingAPaneEndsItsTouch)
{
    const auto run = playScript(root, "touch 3\nclose\nopen\nstate\n");
    EXPECT_THAT(run.effects(), ElementsAre("message", "write", "notify", "state", "delivered"));
}

TEST_F(AScript, ThatEndsWithAFingerDownSavesNothing)
{
    const auto run = playScript(root, "touch 3\ndrag 3 1\n");
    EXPECT_THAT(run.effects(), ElementsAre("message", "message"));
    EXPECT_EQ(root.read(preferences), "");
}

TEST_F(AScript, WritesPictures)
{
    const auto picture = root.path() / "pane.png";
    const auto run = playScript(root, "resize 400 300\nsnapshot \"" + picture.string() + "\" 1\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_TRUE(std::filesystem::exists(picture));

    const auto second
        = runProgram({ "--headless", "--root", root.path(), "--snapshot", root.path() / "b.png" });
    EXPECT_EQ(second.status, 0) << second.errors;
    EXPECT_TRUE(std::filesystem::exists(root.path() / "b.png"));
}

TEST_F(AScript, StopsAtABadLineWithItsNumberAndTheReason)
{
    const std::vector<std::pair<std::string, std::string>> badLines {
        { "dance", "there is no command \"dance\"" },
        { "touch", "it is touch N" },
        { "touch 11", "\"11\" is not a number from 0 to 10" },
        { "touch three", "\"three\" is not a number from 0 to 10" },
        { "drag 3 4.5", "slider 3 is not touched" },
        { "lift 3", "slider 3 is not touched" },
        { "cancel 3", "slider 3 is not touched" },
        { "finger up", "no finger is down" },
        { "finger wave 3 4", "it is finger down X Y, finger move X Y, finger up or finger cancel" },
        { "finger down 3", "it is finger down X Y, finger move X Y, finger up or finger cancel" },
        { "wait -1", "\"-1\" is not a time" },
        { "resize 0 100", "\"0\" is not a length in points" },
        { "open", "the pane is open already" },
        { "post", "it is post NAME" },
        { "snapshot /no/such/folder/x.png", "the picture \"/no/such/folder/x.png\" cannot be written" },
        { "touch \"3", "a quoted text is not closed" },
    };
    for (const auto& [line, reason] : badLines) {
        const auto run = playScript(root, "# a comment\n\nstate\n" + line + "\nstate\n");
        EXPECT_EQ(run.status, 2) << line;
        EXPECT_THAT(run.errors, HasSubstr("brimsound: line 4: " + reason + "\n"));
        EXPECT_THAT(run.all("state"), SizeIs(1)) << line;
    }
}

TEST_F(AScript, StopsAtACommandThatCannotBeExecuted)
{
    EXPECT_EQ(playScript(root, "touch 3\ntouch 4\n").status, 2);
    EXPECT_EQ(playScript(root, "touch 3\ndrag 4 1\n").status, 2);
    EXPECT_EQ(playScript(root, "touch 3\nlift 3\nlift 3\n").status, 2);
    EXPECT_EQ(playScript(root, "touch 3\ndrag 3 1 sideways\n").status, 2);
    EXPECT_EQ(playScript(root, "close\nclose\n").status, 2);
    EXPECT_EQ(playScript(root, "close\ntouch 3\n").status, 2);
    EXPECT_EQ(playScript(root, "touch 3\nlift 3\nfinger move 3 3\n").status, 2);
    EXPECT_EQ(playScript(root, "state now\n").status, 2);
    EXPECT_EQ(playScript(root, "resize 10001 100\n").status, 2);
    EXPECT_EQ(playScript(root, "snapshot /dev/null 9\n").status, 2);
    EXPECT_EQ(playScript(root, "snapshot /dev/null 0\n").status, 2);
    EXPECT_THAT(playScript(root, "resize 60 300\ntouch 3\n").errors, HasSubstr("slider 3 is covered\n"));
}

TEST_F(AScript, ReportsInOneLineThatAPictureIsTooLarge)
{
    const auto run = playScript(root, "resize 10000 10000\nsnapshot huge.png 8\n");
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.errors, HasSubstr("brimsound: line 2: the picture \"huge.png\" cannot be written\n"));
    EXPECT_THAT(run.errors, testing::Not(HasSubstr("QPainter")));
}

TEST_F(AScript, WorksWithAnInvalidPreferencesFile)
{
    for (const auto* contents : { "", "bplist00", "garbage \x01\x02\xff", "<plist><array/></plist>" }) {
        root.write(preferences, contents);
        const auto run = playScript(root, "state\ntouch 3\ndrag 3 4.5\nlift 3\nstate\n");
        EXPECT_EQ(run.status, 0) << run.errors;
        EXPECT_EQ(run.all("state")[0].at("sliders"), flat()) << contents;
        EXPECT_EQ(run.all("state")[1].at("sliders"), valuesWith({ { 0, -4.5 }, { 3, 4.5 } })) << contents;
        EXPECT_THAT(root.read(preferences), StartsWith("bplist00")) << contents;
    }
}

TEST_F(AScript, IsReadFromStandardInputToo)
{
    RunningProgram program(root.path(), { "--headless" });
    EXPECT_EQ(program.state().at("sliders"), flat());
    // Both lines arrive at once and are executed before the end of the input.
    desktop::ChildProcess shell(
        { "/bin/sh", "-c",
            "cd '" + root.path().string()
                + "' && (printf 'touch 3\\nstate\\n'; until [ -e seen ]; do sleep 0.02; done) | " BRIMSOUND
                  " --headless --script - --root ." },
        desktop::ChildProcess::Output::Piped);
    EXPECT_THAT(shell.readLine(std::chrono::seconds(20)).value_or(""), HasSubstr("message"));
    EXPECT_THAT(shell.readLine(std::chrono::seconds(20)).value_or(""), HasSubstr("state"));
    root.write("/seen", "");
    EXPECT_EQ(shell.exitStatus(std::chrono::seconds(20)), 0);
}

TEST_F(AScript, IsEmptyWithoutStandardInput)
{
    const std::string program = BRIMSOUND " --headless --root " + root.path().string();
    desktop::ChildProcess shell({ "/bin/sh", "-c", program + " --script - <&-" });
    EXPECT_EQ(shell.exitStatus(std::chrono::seconds(20)), 0);
}

TEST_F(AScript, RunsWithoutStandardOutput)
{
    root.write("/script", "touch 3\nlift 3\n");
    const std::string program = BRIMSOUND " --headless --root " + root.path().string();
    desktop::ChildProcess shell(
        { "/bin/sh", "-c", program + " --script " + root.path().string() + "/script >&- 2>&-" });
    EXPECT_EQ(shell.exitStatus(std::chrono::seconds(20)), 0);
    EXPECT_THAT(root.read(preferences), StartsWith("bplist00"));
}

TEST_F(AScript, StopsAtALineThatIsTooLong)
{
    const auto run = runProgram({ "--headless", "--root", root.path(), "--script", "/dev/zero" });
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.errors, HasSubstr("brimsound: line 1: the line is too long\n"));
    EXPECT_EQ(playScript(root, "state\n\n#" + std::string(70'000, 'x') + "\n").status, 2);
    EXPECT_EQ(playScript(root, "state\n\n#" + std::string(60'000, 'x') + "\n").status, 0);
}

TEST_F(AScript, StopsWhenItsTraceCannotBeWritten)
{
    root.write("/script", "touch 3\nlift 3\ntouch 4\nlift 4\n");
    const auto folder = root.path().string();
    desktop::ChildProcess shell(
        { "/bin/sh", "-c",
            BRIMSOUND " --headless --root " + folder + " --script " + folder + "/script 2>&1 >/dev/full" },
        desktop::ChildProcess::Output::Piped);
    std::vector<std::string> told;
    while (const auto line = shell.readLine(std::chrono::seconds(20))) {
        if (line->starts_with("brimsound: "))
            told.push_back(*line);
    }
    EXPECT_EQ(shell.exitStatus(std::chrono::seconds(20)), 1);
    EXPECT_THAT(told, ElementsAre("brimsound: the trace cannot be written: No space left on device"));
    // No line after the one whose trace failed was executed.
    EXPECT_EQ(root.read(preferences), "");
}

TEST_F(AScript, CannotBeReadWhenThereIsNone)
{
    const auto run = runProgram({ "--headless", "--root", root.path(), "--script", "/no/such/script" });
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, HasSubstr("brimsound: the script \"/no/such/script\" cannot be read\n"));
}

TEST_F(AScript, ReportsABadCommandLineInOneLine)
{
    const std::vector<std::vector<std::string>> badLines { { "--nonsense" }, { "--scale", "0" },
        { "--scale", "big" }, { "--scale", "8.1" }, { "--scale", "nan" }, { "--root", "" }, { "--script" },
        { "--headless" } };
    for (const auto& arguments : badLines) {
        const auto run = runProgram(arguments);
        EXPECT_EQ(run.status, 2) << arguments[0];
        EXPECT_THAT(run.errors, HasSubstr("brimsound: ")) << arguments[0];
        EXPECT_THAT(run.trace, IsEmpty()) << arguments[0];
    }
}

TEST_F(AScript, ReportsARootThatCannotBeCreatedInOneLine)
{
    const auto run = runProgram({ "--headless", "--root", "/proc/nowhere", "--script", "/dev/null" });
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, AllOf(StartsWith("brimsound: "), HasSubstr("/proc/nowhere")));
}

TEST_F(AProgramWithoutABus, StartsOneOfItsOwn)
{
    const EnvironmentVariable noBus("DBUS_SESSION_BUS_ADDRESS", nullptr);
    const EnvironmentVariable noFolder("XDG_RUNTIME_DIR", nullptr);
    const auto run = playScript(root, "touch 3\nlift 3\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.effects(), ElementsAre("message", "write", "notify", "delivered"));
    EXPECT_EQ(run.trace[0].at("error"), nullptr);
}

TEST_F(TwoPanes, ShowEachOthersEdits)
{
    RunningProgram first(root.path(), { "--headless" });
    // Both use the first one's media server.
    ASSERT_FALSE(first.state().is_null());
    RunningProgram second(root.path(), { "--headless" });
    ASSERT_FALSE(second.state().is_null());

    first.say("touch 5");
    first.say("drag 5 6");
    first.say("lift 5");
    first.say("wait 0.1");
    EXPECT_EQ(first.next("delivered").at("effect"), "delivered");
    const auto expected = valuesWith({ { 0, -6.0 }, { 5, 6.0 } });
    EXPECT_EQ(first.state().at("sliders"), expected);

    second.say("wait 0.1");
    EXPECT_EQ(second.next().at("effect"), "delivered");
    EXPECT_EQ(second.next().at("text"), "Brimsound: got notification in settings");
    EXPECT_EQ(second.state().at("sliders"), expected);

    // The first pane did not reload what it had written itself.
    first.say("wait 0.1");
    first.say("state");
    EXPECT_EQ(first.next().at("effect"), "state");
}

TEST_F(AMediaServer, ThatRunsAlreadyFollowsThePane)
{
    MediaServer server;
    const auto run = playScript(root, "touch 3\ndrag 3 4.5\nlift 3\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(Json::parse(server.nextLine().value_or("null")),
        (Json { { "vals", valuesWith({ { 0, -4.5 }, { 3, 4.5 } }) } }));
    EXPECT_TRUE(server.process().running());
}

TEST_F(AMediaServer, ThatEndsAndIsRestartedIsUsedAgain)
{
    std::optional<MediaServer> server(std::in_place);
    RunningProgram pane(root.path(), { "--headless" });
    pane.say("touch 3");
    EXPECT_EQ(pane.next().at("error"), nullptr);

    server.reset();
    pane.say("drag 3 1");
    const auto failed = pane.next();
    EXPECT_EQ(failed.at("effect"), "message");
    EXPECT_TRUE(failed.at("error").is_string());
    const auto text = pane.next().at("text").get<std::string>();
    EXPECT_THAT(text, StartsWith("Brimsound: ERROR SENDING TO MEDIA SERVER Error Domain="));
    EXPECT_THAT(text, HasSubstr(failed.at("error").get<std::string>()));

    server.emplace();
    pane.say("drag 3 2");
    const auto sent = pane.next();
    EXPECT_EQ(sent.at("error"), nullptr);
    EXPECT_EQ(Json::parse(server->nextLine().value_or("null")).at("vals"), sent.at("vals"));
    pane.say("lift 3");
    EXPECT_EQ(pane.next().at("effect"), "write");
    EXPECT_EQ(pane.next().at("effect"), "notify");
}

TEST_F(AMediaServer, IsStartedByThePaneAndEndsWithIt)
{
    {
        RunningProgram pane(root.path(), { "--headless" });
        ASSERT_FALSE(pane.state().is_null());
        EXPECT_TRUE(desktop::SessionBus::shared().hasOwner("com.quorvix.brimsound"));
        EXPECT_THAT(commandLineOf("com.quorvix.brimsound"),
            AllOf(HasSubstr("mediaserverd"), HasSubstr(root.path().string())));
    }
    // The kernel signals the server when the pane's process has ended.
    for (int i = 0; i < 1000 && desktop::SessionBus::shared().hasOwner("com.quorvix.brimsound"); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    EXPECT_FALSE(desktop::SessionBus::shared().hasOwner("com.quorvix.brimsound"));
}

} // namespace
} // namespace brimsound::tests
