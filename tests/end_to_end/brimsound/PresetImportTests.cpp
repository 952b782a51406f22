// Preset files that are named on the command line.
#include "tests/end_to_end/brimsound/Program.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimsound::tests {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

constexpr auto preferencesPath = "/var/mobile/Library/Preferences/com.quorvix.brimsound.plist";
constexpr auto ten = "1 2 3 4 5 -1 -2 -3 -4 -5";
/// The preamp follows the highest band.
const Json tenSliders = { -5, 1, 2, 3, 4, 5, -1, -2, -3, -4, -5 };

class AnImportIntoThePane : public testing::Test {
protected:
    std::filesystem::path write(const std::string& name, std::string_view text)
    {
        writeFile(folder.path() / name, text);
        return folder.path() / name;
    }

    /// Runs the script after the files were imported.
    tests::Run import(const std::vector<std::filesystem::path>& files, const std::string& script)
    {
        const auto path = write("script", script);
        std::vector<std::string> arguments { "--headless", "--root", root.path(), "--script", path };
        arguments.insert(arguments.end(), files.begin(), files.end());
        auto run = runProgram(arguments);
        EXPECT_EQ(run.status, 0) << run.errors;
        return run;
    }

    Json stateAfter(const std::vector<std::filesystem::path>& files, const std::string& script = "wait 1")
    {
        return import(files, script + "\nstate\n").all("state").back();
    }

    /// Of the only alert.
    static std::string messageOf(const tests::Run& run)
    {
        const auto alerts = run.all("alert");
        EXPECT_THAT(alerts, SizeIs(1));
        return alerts.empty() ? "" : alerts[0].at("message");
    }

    TemporaryRoot root;
    TemporaryFolder folder;
    TestBus bus;
};

TEST_F(AnImportIntoThePane, PlaysThePresetBandByBandAndThenRecordsIt)
{
    const auto run = import({ write("Mine.txt", ten) }, "wait 1\npress \"Presets\"\nstate\n");
    EXPECT_THAT(run.all("message"), SizeIs(10));
    EXPECT_EQ(run.all("message").back().at("vals"), tenSliders);
    const auto state = run.all("state").back();
    EXPECT_EQ(state.at("sliders"), tenSliders);
    EXPECT_EQ(state.at("selected"), "Mine");
    EXPECT_THAT(state.at("rows"), AllOf(SizeIs(17), Contains("Mine")));
    EXPECT_EQ(state.at("notificationsToSkip"), 0);
    EXPECT_THAT(run.all("alert"), IsEmpty());
}

TEST_F(AnImportIntoThePane, LeavesThePanelClosed)
{
    EXPECT_EQ(stateAfter({ write("Mine.txt", ten) }).at("panel"), "hidden");
}

TEST_F(AnImportIntoThePane, ShowsTheListOfSeveralPresetsAndChoosesNone)
{
    const auto state = stateAfter({ write("One.txt", ten), write("Two.txt", "1 1 1 1 1 1 1 1 1 1") });
    EXPECT_EQ(state.at("panel"), "list");
    EXPECT_THAT(state.at("rows"), AllOf(Contains("One"), Contains("Two")));
    EXPECT_EQ(state.at("sliders"), Json(std::vector<int>(11)));
    EXPECT_EQ(state.at("selected"), nullptr);
}

TEST_F(AnImportIntoThePane, ChoosesAPresetThatIsThereAlready)
{
    const auto file = write("Mine.txt", ten);
    import({ file }, "wait 1\npress \"Presets\"\nrow \"Rock\"\nwait 1\n");
    const auto run = import({ file }, "wait 1\nstate\n");
    EXPECT_EQ(run.all("state").back().at("sliders"), tenSliders);
    EXPECT_THAT(run.all("alert"), IsEmpty());
}

TEST_F(AnImportIntoThePane, AsksBeforeItReplacesAPreset)
{
    const auto run = import({ write("Rock.txt", ten) }, "wait 1\nstate\nalert \"Replace\"\nwait 1\nstate\n");
    EXPECT_THAT(messageOf(run), HasSubstr("\"Rock\""));
    EXPECT_THAT(run.all("alert").at(0).at("buttons"), ElementsAre("Cancel", "Replace", "Keep Both"));
    EXPECT_EQ(run.all("state")[0].at("sliders"), Json(std::vector<int>(11)));
    EXPECT_EQ(run.all("state")[1].at("sliders"), tenSliders);
    EXPECT_EQ(run.all("state")[1].at("selected"), "Rock");
    EXPECT_THAT(run.all("state")[1].at("rows"), SizeIs(16));
}

TEST_F(AnImportIntoThePane, KeepsBothPresetsOfOneName)
{
    const auto state = stateAfter({ write("Rock.txt", ten) }, "alert \"Keep Both\"\nwait 1");
    EXPECT_EQ(state.at("sliders"), tenSliders);
    EXPECT_EQ(state.at("selected"), "Rock (2)");
    EXPECT_THAT(state.at("rows"), AllOf(SizeIs(17), Contains("Rock"), Contains("Rock (2)")));
}

TEST_F(AnImportIntoThePane, ChangesNothingWhenItIsCanceled)
{
    const auto run = import({ write("Rock.txt", ten), write("Mine.txt", ten) }, "alert \"Cancel\"\nwait 1\n");
    EXPECT_THAT(run.all("write"), IsEmpty());
    EXPECT_THAT(run.all("message"), IsEmpty());
    EXPECT_FALSE(root.contains(preferencesPath));
}

TEST_F(AnImportIntoThePane, ShowsAllProblemsInOneAlert)
{
    const auto run = import({ write("Loud.txt", "20 0 0 0 0 0 0 0 0 0"), write("bad.txt", "1 2 3"),
                                folder.path() / "missing.txt" },
        "alert \"OK\"\nwait 1\nstate\n");
    EXPECT_EQ(messageOf(run),
        "bad.txt\nNot imported. These are not ten numbers\n\n"
        "missing.txt\nNot imported. There is no such file\n\n"
        "Loud.txt\nThe gain of 20 dB at 60 Hz is limited to 12 dB");
    EXPECT_THAT(run.all("alert").at(0).at("buttons"), ElementsAre("OK"));
    EXPECT_EQ(run.all("state").back().at("sliders")[1], 12);
}

TEST_F(AnImportIntoThePane, DoesNotMentionThePreamp)
{
    const auto file = write("Bell.txt", "Preamp: -6.0 dB\nFilter 1: ON PK Fc 1000 Hz Gain 6.0 dB Q 0.70\n");
    EXPECT_THAT(import({ file }, "wait 1\n").all("alert"), IsEmpty());
}

TEST_F(AnImportIntoThePane, NamesTheFirstWarningsAndCountsTheOthers)
{
    std::string lines = "Filter 1: ON PK Fc 1000 Hz Gain 6.0 dB Q 0.70\n";
    for (int i = 0; i < 20; ++i)
        lines += "Filter 2: ON XY\n";
    const auto run = import({ write("Many.txt", lines) }, "alert \"OK\"\n");
    const auto message = messageOf(run);
    EXPECT_THAT(
        message, StartsWith("Many.txt\nLine 2: unknown filter type \"XY\", line skipped\n\nLine 3: "));
    EXPECT_THAT(message, EndsWith("\n\nLine 6: unknown filter type \"XY\", line skipped\n\nand 15 more"));
}

TEST_F(AnImportIntoThePane, NamesThePresetsOfALibraryInItsWarnings)
{
    const auto file = write("Library.preset",
        "[Presets]\nPreset0=Loud\nPreset1=Lost\n[Loud]\nBand0=20\nBand1=0\nBand2=0\nBand3=0\nBand4=0\n"
        "Band5=0\nBand6=0\nBand7=0\nBand8=0\nBand9=0\n");
    EXPECT_EQ(messageOf(import({ file }, "alert \"OK\"\n")),
        "Library.preset\nNot imported. Line 3: there is no section \"Lost\"\n\n"
        "Library.preset\n\"Loud\": the gain of 20 dB at 60 Hz is limited to 12 dB");
}

TEST_F(AnImportIntoThePane, OnlyShowsTheErrorOfAPresetThatIsNotImported)
{
    const auto file = write("Room.txt",
        "Device: Speakers\nFilter: ON PK Fc 60 Hz Gain 1 dB Q 1\n"
        "Device: Headphones\nFilter: ON PK Fc 60 Hz Gain 2 dB Q 1\n");
    EXPECT_EQ(messageOf(import({ file }, "alert \"OK\"\n")),
        "Room.txt\nNot imported. Line 3: for another device, \"Headphones\": choose one with "
        "brimsound-presets import --device");
}

TEST_F(AnImportIntoThePane, KeepsADamagedPreferencesFile)
{
    root.write(preferencesPath, "damaged");
    const auto run = import({ write("Mine.txt", ten) }, "alert \"OK\"\n");
    EXPECT_THAT(messageOf(run), HasSubstr("cannot be read"));
    EXPECT_EQ(root.read(preferencesPath), "damaged");
}

TEST_F(AnImportIntoThePane, ComesFromTheCommandLineProgramToo)
{
    RunningProgram pane(root.path(), { "--headless" });
    EXPECT_EQ(pane.state().at("sliders")[1], 0);
    root.write(preferencesPath,
        "<plist><dict><key>PEAKING_EQ_VALUES</key><array><real>7</real></array></dict></plist>");
    desktop::ChildProcess program(
        { BRIMSOUND_PRESETS, "--root", root.path(), "import", write("Mine.txt", ten) });
    EXPECT_EQ(program.exitStatus(std::chrono::seconds(20)), 0);
    pane.say("wait 0.1");
    EXPECT_EQ(pane.next("delivered").at("name"), "com.quorvix.brimsound.settingsfinishnotify");
    EXPECT_EQ(pane.state().at("sliders")[1], 7);
    pane.say("press \"Presets\"");
    EXPECT_THAT(pane.state().at("rows"), Contains("Mine"));
}

} // namespace
} // namespace brimsound::tests
