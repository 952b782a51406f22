#include "tests/end_to_end/brimsound/Program.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimsound::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr auto preferencesPath = "/var/mobile/Library/Preferences/com.quorvix.brimsound.plist";

/// The last state line.
Json lastState(const Run& run)
{
    return run.all("state").back();
}

class AScriptOfPresets : public testing::Test {
protected:
    TemporaryRoot root;
    TestBus bus;
};

/// The gains of Rock in dB: whole numbers of steps; 31 steps make 12 dB.
std::vector<float> rock()
{
    std::vector<float> gains;
    for (const int steps : { 12, 7, -10, -14, -7, 6, 14, 17, 17, 17 })
        gains.push_back(static_cast<float>(steps * (12.0 / 31.0)));
    return gains;
}

TEST_F(AScriptOfPresets, PlaysAChosenPresetBandByBandAndThenRecordsIt)
{
    const auto run = playScript(root, "press \"Presets\"\nrow \"Rock\"\nwait 1\nstate\n");
    EXPECT_EQ(run.status, 0) << run.errors;

    std::vector<std::string> expected { "log", "log" };
    for (int band = 0; band < 10; ++band)
        expected.insert(expected.end(), { "message", "write", "notify" });
    expected.insert(expected.end(), { "write", "notify" });
    // The first ten are those of the bands, which the pane ignores.
    expected.insert(expected.end(), 11, "delivered");
    expected.insert(expected.end(), { "log", "state" });
    EXPECT_EQ(run.effects(), expected);
    EXPECT_EQ(run.all("log").back().at("text"), "Brimsound: got notification in settings");

    const auto messages = run.all("message");
    float highest = 0;
    for (std::size_t band = 0; band < 10; ++band) {
        const auto values = messages[band].at("vals").get<std::vector<float>>();
        highest = std::max(highest, rock()[band]);
        EXPECT_EQ(values[0], -highest) << "the preamp follows the bands set so far";
        for (std::size_t i = 0; i < 10; ++i)
            EXPECT_EQ(values[i + 1], i <= band ? rock()[i] : 0);
    }
    EXPECT_EQ(lastState(run).at("panel"), "hidden");
    EXPECT_EQ(lastState(run).at("selected"), "Rock");
    EXPECT_EQ(lastState(run).at("notificationsToSkip"), 0);
    EXPECT_THAT(root.read(preferencesPath), HasSubstr("SELECTED_PRESET"));
}

TEST_F(AScriptOfPresets, LeavesThePreampAloneUnlessItIsAutomatic)
{
    const auto run = playScript(
        root, "switch AUTO_PREAMP off\ntouch 0\ndrag 0 -3\nlift 0\npress \"Presets\"\nrow \"Rock\"\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    const auto messages = run.all("message");
    ASSERT_THAT(messages, SizeIs(12));
    for (std::size_t i = 2; i < messages.size(); ++i)
        EXPECT_EQ(messages[i].at("vals")[0], -3);
}

TEST_F(AScriptOfPresets, SavesTheSlidersUnderTheNameThatIsTyped)
{
    const auto run = playScript(root,
        "touch 3\ndrag 3 6\nlift 3\npress \"Presets\"\nsaverow\nstate\ntype \"My \"\ntype \"own\"\nreturn\n"
        "state\npress showPresets:\nstate\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    const auto states = run.all("state");
    ASSERT_THAT(states, SizeIs(3));
    EXPECT_EQ(states[0].at("panel"), "naming");
    EXPECT_EQ(states[1].at("panel"), "hidden");
    EXPECT_EQ(states[2].at("panel"), "list");
    EXPECT_THAT(states[2].at("rows"), SizeIs(17));
    EXPECT_EQ(states[2].at("rows").back(), "My own");
    EXPECT_EQ(states[2].at("selected"), "My own");
}

TEST_F(AScriptOfPresets, AcceptsAnEmojiAsAName)
{
    const auto run = playScript(
        root, "press \"Presets\"\nsaverow\ntype \"\xF0\x9F\x8E\xB8\"\nreturn\npress \"Presets\"\nstate\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(lastState(run).at("rows").back(), "\xF0\x9F\x8E\xB8");
}

TEST_F(AScriptOfPresets, DeletesARowThatIsSwiped)
{
    const auto run = playScript(
        root, "press \"Presets\"\nswipe \"Full treble\"\nwait 1\nstate\nswipe \"Flat\"\nwait 1\nstate\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    const auto states = run.all("state");
    EXPECT_THAT(states[0].at("rows"), SizeIs(15));
    EXPECT_EQ(states[0].at("rows").back(), "Techno");
    EXPECT_EQ(states[1].at("rows")[0], "Full bass");
    EXPECT_EQ(states[1].at("panel"), "list");
    EXPECT_THAT(run.all("message"), IsEmpty());
    EXPECT_THAT(run.all("write"), SizeIs(2));
}

TEST_F(AScriptOfPresets, ShowsTheBuiltInOnesAgainAfterAllAreDeleted)
{
    auto script = std::string("press \"Presets\"\n");
    for (const auto* name :
        { "Flat", "Full bass", "Full bass/treble", "Classical", "Club", "Dance", "Earbuds", "Large Hall",
            "Live", "Party", "Pop", "Reggae", "Rock", "Soft", "Techno", "Full treble" })
        script += "swipe \"" + std::string(name) + "\"\nwait 1\n";
    const auto run = playScript(root, script + "state\npress \"Cancel\"\npress \"Presets\"\nstate\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    const auto states = run.all("state");
    EXPECT_THAT(states[0].at("rows"), IsEmpty());
    EXPECT_THAT(states[1].at("rows"), SizeIs(16));
}

TEST_F(AScriptOfPresets, ClosesByTheCancelBarAndByTheDimmedArea)
{
    const auto run = playScript(
        root, "press \"Presets\"\nstate\npress \"Cancel\"\nstate\npress \"Presets\"\nstate\ndim\nstate\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    std::vector<std::string> panels;
    for (const auto& state : run.all("state"))
        panels.push_back(state.at("panel"));
    EXPECT_THAT(panels, ElementsAre("list", "hidden", "list", "hidden"));
    EXPECT_THAT(run.all("write"), IsEmpty());
}

TEST_F(AScriptOfPresets, ClosesWhenAFingerComesDownOnTheDimmedArea)
{
    const auto run = playScript(root, "press \"Presets\"\nfinger down 20 300\nstate\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(lastState(run).at("panel"), "hidden") << "before the finger is lifted";
}

TEST_F(AScriptOfPresets, SavesUnderANameThatIsConfirmedWithAPointer)
{
    const auto run = playScript(root, "press \"Presets\"\nsaverow\ntype \"Mine\"\npress \"Done\"\nstate\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(lastState(run).at("panel"), "hidden");
    EXPECT_EQ(lastState(run).at("selected"), "Mine");

    // The same with a finger, which needs the position of the key: at the field's right end.
    const auto pointed = playScript(
        root, "press \"Presets\"\nsaverow\nwait 1\ntype \"Yours\"\nfinger down 237 66\nfinger up\nstate\n");
    EXPECT_EQ(pointed.status, 0) << pointed.errors;
    EXPECT_EQ(lastState(pointed).at("selected"), "Yours");
}

TEST_F(AScriptOfPresets, FollowsTheWindow)
{
    // In a widened window, the dimmed area next to the panel closes it.
    const auto run
        = playScript(root, "press \"Presets\"\nresize 900 600\nfinger down 600 300\nfinger up\nstate\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(lastState(run).at("panel"), "hidden");
    EXPECT_THAT(run.all("write"), IsEmpty());

    const auto narrowed = playScript(
        root, "resize 900 600\npress \"Presets\"\nresize 320 568\nstate\npress \"Cancel\"\nstate\n");
    EXPECT_EQ(narrowed.status, 0) << narrowed.errors;
    EXPECT_EQ(lastState(narrowed).at("panel"), "hidden");
}

TEST_F(AScriptOfPresets, LeavesNoObserverOfAClosedPane)
{
    const auto run = playScript(root,
        "press \"Presets\"\ndim\nwait 1\nclose\npost com.quorvix.brimsound.settingsfinishnotify\nwait 1\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    for (const auto& line : run.all("log"))
        EXPECT_NE(line.at("text"), "Brimsound: got notification in settings");
    EXPECT_THAT(run.all("delivered"), SizeIs(1));
}

TEST_F(AScriptOfPresets, OpensANewPaneWithoutThePreviousPanel)
{
    const auto run = playScript(
        root, "press \"Presets\"\nclose\nopen\nstate\ntouch 1\ndrag 1 3\nlift 1\npress \"Presets\"\nstate\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.all("state")[0].at("panel"), "hidden");
    EXPECT_EQ(run.all("state")[1].at("panel"), "list");
}

TEST_F(AScriptOfPresets, WorksInAWindowTooShortForTheSliders)
{
    const auto run
        = playScript(root, "close\nresize 280 240\nopen\npress \"Presets\"\nrow \"Rock\"\nstate\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(lastState(run).at("selected"), "Rock");
}

TEST_F(AScriptOfPresets, WorksAgainWhenTheSlidersAreOutOfView)
{
    // The switch is on already, so this only scrolls the pane to it.
    const auto run = playScript(root,
        "close\nresize 568 320\nopen\npress \"Presets\"\npress \"Cancel\"\nswitch ENABLED on\n"
        "press \"Presets\"\nstate\nrow \"Rock\"\nstate\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.all("state")[0].at("panel"), "list");
    EXPECT_EQ(lastState(run).at("selected"), "Rock");
}

class AnImpossiblePresetCommand : public AScriptOfPresets,
                                  public testing::WithParamInterface<std::pair<const char*, const char*>> { };

TEST_P(AnImpossiblePresetCommand, StopsTheRunWithItsLine)
{
    const auto [script, complaint] = GetParam();
    const auto run = playScript(root, script);
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.errors, HasSubstr(complaint));
}

INSTANTIATE_TEST_SUITE_P(OfEachKind, AnImpossiblePresetCommand,
    testing::Values(std::pair("row \"Rock\"\n", "line 1: the presets are not shown"),
        std::pair("saverow\n", "line 1: the presets are not shown"),
        std::pair("swipe \"Rock\"\n", "line 1: the presets are not shown"),
        std::pair("dim\n", "line 1: the presets are not shown"),
        std::pair("type \"x\"\n", "line 1: nothing takes text"),
        std::pair("return\n", "line 1: nothing takes Return"),
        std::pair("press \"Presets\"\nrow \"No such\"\n", "line 2: there is no preset \"No such\""),
        std::pair("press \"Presets\"\nsaverow\nrow \"Rock\"\n", "line 3: the presets are not shown"),
        std::pair("press \"Presets\"\npress \"Presets\"\n", "line 2: \"Presets\" is covered"),
        std::pair("press \"Presets\"\ntouch 3\n", "line 2: slider 3 is covered"),
        std::pair("press \"Cancel\"\n", "line 1: there is no button \"Cancel\""),
        std::pair("press \"Done\"\n", "line 1: there is no button \"Done\""),
        std::pair("press \"Presets\"\npress \"Done\"\n", "line 2: there is no button \"Done\"")));

} // namespace
} // namespace brimsound::tests
