#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/desktop/bus/SessionBus.h"
#include "settings/tweak.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TemporaryRoot.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <sys/stat.h>
#include <sys/wait.h>

namespace brimsound::presets {

using brimsound::tests::EnvironmentVariable;
using brimsound::tests::readFile;
using brimsound::tests::TemporaryFolder;
using brimsound::tests::TemporaryRoot;
using brimsound::tests::TestBus;
using brimsound::tests::writeFile;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

namespace fs = std::filesystem;

constexpr auto ten = "1 2 3 4 5 -1 -2 -3 -4 -5";
constexpr auto otherTen = "5 4 3 2 1 0 0 0 0 0";

PropertyList gains(std::initializer_list<float> values)
{
    return PropertyList::Array(values.begin(), values.end());
}

const PropertyList tenGains = gains({ 1, 2, 3, 4, 5, -1, -2, -3, -4, -5 });
const PropertyList otherTenGains = gains({ 5, 4, 3, 2, 1, 0, 0, 0, 0, 0 });

/// The names of all notifications since this was last called. They arrive when the bus is drained.
std::vector<std::string>& watchNotifications()
{
    static std::vector<std::string> posted;
    [[maybe_unused]] static const bool isSubscribed = [] {
        desktop::SessionBus::shared().subscribeToNotifications(
            [](std::string_view name) { posted.emplace_back(name); });
        return true;
    }();
    posted.clear();
    return posted;
}

struct Outcome {
    int status;
    std::string output;
    std::string errors;
};

class ThePresetsProgram : public testing::Test {
protected:
    /// Runs the program through a shell in the folder. `before` is shell code before the command.
    Outcome run(const std::string& arguments, const std::string& before = {})
    {
        const TemporaryFolder streams;
        const auto command = "cd '" + folder.path().string() + "' && " + before
            + " '" BRIMSOUND_PRESETS "' --root '" + root.path().string() + "' " + arguments + " >'"
            + (streams.path() / "out").string() + "' 2>'" + (streams.path() / "errors").string() + "'";
        const int status = std::system(command.c_str());
        return { WEXITSTATUS(status), readFile(streams.path() / "out"), readFile(streams.path() / "errors") };
    }

    void expectUsageError(const std::string& arguments, const std::string& reason)
    {
        const auto outcome = run(arguments);
        EXPECT_EQ(outcome.status, 2) << arguments;
        EXPECT_EQ(outcome.errors, "brimsound-presets: " + reason + "\n") << arguments;
        EXPECT_EQ(outcome.output, "") << arguments;
    }

    void expectFailure(const std::string& arguments, const std::string& errors)
    {
        const auto outcome = run(arguments);
        EXPECT_EQ(outcome.status, 1) << arguments;
        EXPECT_EQ(outcome.errors, errors) << arguments;
        EXPECT_EQ(outcome.output, "") << arguments;
    }

    void expectDone(const std::string& arguments, const std::string& output = {})
    {
        const auto outcome = run(arguments);
        EXPECT_EQ(outcome.status, 0) << arguments;
        EXPECT_EQ(outcome.errors, "") << arguments;
        EXPECT_EQ(outcome.output, output) << arguments;
    }

    static void storePreferences(PropertyList::Dictionary preferences)
    {
        const auto data
            = dataWithPropertyList(std::move(preferences), NSPropertyListFormat::BinaryFormat_v1_0, 0);
        ASSERT_TRUE(data && writeToFile(*data, preferencesPath));
    }

    /// What is in the file; empty when there is none.
    static PropertyList::Dictionary preferences()
    {
        auto file = readPropertyListFile(preferencesPath);
        auto* all = file ? file->asDictionary() : nullptr;
        return all ? std::move(*all) : PropertyList::Dictionary();
    }

    static PropertyList::Dictionary presets()
    {
        auto all = preferences();
        auto* presets = dictionaryForKey(all, presetsKey);
        return presets ? std::move(*presets) : PropertyList::Dictionary();
    }

    static std::vector<std::string> names()
    {
        std::vector<std::string> all;
        for (const auto& preset : presets())
            all.push_back(preset.key);
        return all;
    }

    void write(const std::string& name, std::string_view contents)
    {
        writeFile(folder.path() / name, contents);
    }
    std::string read(const std::string& name) const { return readFile(folder.path() / name); }

    TemporaryFolder folder;
    TemporaryRoot root;
    EnvironmentVariable noBus { "DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent" };
};

} // namespace

TEST_F(ThePresetsProgram, ImportsAFileUnderItsName)
{
    write("My Phones ParametricEQ.txt", "Preamp: -6.0 dB\nFilter 1: ON LSC Fc 105 Hz Gain 4.0 dB Q 0.70\n");
    const auto outcome = run("import 'My Phones ParametricEQ.txt'");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output,
        testing::MatchesRegex("Imported \"My Phones\", off by 0\\.[0-9]+ dB rms, at most "
                              "[0-9.]+ dB, at [0-9.]+ k?Hz\n"));
    EXPECT_EQ(outcome.errors,
        "My Phones ParametricEQ.txt:1: note: the preamp of -6 dB is left out: Auto Preamp sets one for these "
        "gains\n"
        "My Phones ParametricEQ.txt:2: note: the filter at 105 Hz falls back to 0 dB below 60 Hz\n");
    const auto all = presets();
    ASSERT_TRUE(all.find("My Phones"));
    EXPECT_NEAR(all.find("My Phones")->asArray()->at(0).floatValue(), 4, 0.5);
    EXPECT_NEAR(all.find("My Phones")->asArray()->at(9).floatValue(), 0, 0.1);
}

TEST_F(ThePresetsProgram, AddsToTheBuiltInPresetsWhenThereIsNoFile)
{
    write("a.txt", ten);
    expectDone("import a.txt", "Imported \"a\", positions copied\n");
    EXPECT_THAT(names(), AllOf(SizeIs(17), Contains("Rock"), Contains("a")));
    EXPECT_EQ(*presets().find("a"), tenGains);
    EXPECT_EQ(*preferences().find(peakingEqValuesKey), gains({ 0, 0, 0, 0, 0, 0, 0, 0, 0, 0 }));
}

TEST_F(ThePresetsProgram, AddsToTheBuiltInPresetsWhenThereAreNone)
{
    storePreferences({ { preampKey, -3.0f }, { presetsKey, PropertyList::Dictionary() } });
    write("a.txt", ten);
    expectDone("import a.txt", "Imported \"a\", positions copied\n");
    EXPECT_THAT(names(), SizeIs(17));
    EXPECT_EQ(floatForKey(preferences(), preampKey), -3);
}

TEST_F(ThePresetsProgram, KeepsEverythingElseInTheFile)
{
    storePreferences({ { presetsKey, PropertyList::Dictionary { { "Mine", otherTenGains } } },
        { selectedPresetKey, "Mine" }, { enabledKey, false }, { "OTHER", "kept" } });
    write("a.txt", ten);
    run("import a.txt");
    EXPECT_EQ(preferences(),
        (PropertyList::Dictionary {
            { presetsKey, PropertyList::Dictionary { { "Mine", otherTenGains }, { "a", tenGains } } },
            { selectedPresetKey, "Mine" }, { enabledKey, false }, { "OTHER", "kept" } }));
}

TEST_F(ThePresetsProgram, CreatesTheFoldersOfItsFirstFile)
{
    fs::remove_all(root.path());
    write("a.txt", ten);
    expectDone("import a.txt", "Imported \"a\", positions copied\n");
    EXPECT_THAT(names(), SizeIs(17));
}

TEST_F(ThePresetsProgram, TellsOtherProgramsOnceAfterManyImports)
{
    const TestBus bus;
    const auto& posted = watchNotifications();
    write("a.txt", ten);
    write("b.txt", otherTen);
    const auto outcome = run("import a.txt b.txt");
    desktop::SessionBus::shared().drain();
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(posted, ElementsAre(settingsFinishedNotification));
}

TEST_F(ThePresetsProgram, NeitherWritesNorTellsAnyoneWhenNothingIsImported)
{
    const TestBus bus;
    const auto& posted = watchNotifications();
    write("a.txt", "Dear diary");
    write("b.txt", ten);
    EXPECT_EQ(run("import a.txt").status, 1);
    EXPECT_EQ(run("import --dry-run b.txt").status, 0);
    run("list");
    run("show Rock");
    run("export Rock");
    run("delete Nobody");
    desktop::SessionBus::shared().drain();
    EXPECT_THAT(posted, IsEmpty());
    EXPECT_FALSE(root.contains(preferencesPath));
}

TEST_F(ThePresetsProgram, ImportsTheOthersWhenOneFileIsBad)
{
    write("a.txt", ten);
    write("b.txt", "1 2 3");
    const auto outcome = run("import b.txt missing.txt a.txt .");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "Imported \"a\", positions copied\n");
    EXPECT_THAT(outcome.errors,
        StartsWith(
            "b.txt: error: these are not ten numbers\nb.txt: note: files that can be read: Winamp EQF, "));
    EXPECT_THAT(outcome.errors, HasSubstr("\nmissing.txt: error: there is no such file\n"));
    EXPECT_THAT(outcome.errors, HasSubstr("\n.: error: it is no regular file\n"));
    EXPECT_THAT(names(), Contains("a"));
}

TEST_F(ThePresetsProgram, NeitherWaitsForAPipeNorReadsAHugeFile)
{
    ASSERT_EQ(mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
    expectFailure("import pipe", "pipe: error: it is no regular file\n");
    write("huge.txt", std::string((1 << 20) + 1, ' '));
    expectFailure("import huge.txt", "huge.txt: error: it is larger than 1 MiB\n");
}

TEST_F(ThePresetsProgram, ReportsThatAFileCannotBeRead)
{
    expectFailure("import /proc/self/mem", "/proc/self/mem: error: it cannot be read\n");
}

TEST_F(ThePresetsProgram, CountsMessagesBeyondTheFirstHundred)
{
    std::string lines = "Filter: ON PK Fc 1000 Hz Gain 1 dB Q 1\n";
    for (int i = 0; i < 105; ++i)
        lines += "Filter: ON XY\n";
    write("a.txt", lines);
    const auto outcome = run("import a.txt");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(std::ranges::count(outcome.errors, '\n'), 101);
    EXPECT_THAT(outcome.errors, testing::EndsWith("\na.txt: note: 5 more messages\n"));
}

TEST_F(ThePresetsProgram, RefusesANameThatIsTaken)
{
    write("Rock.txt", ten);
    expectFailure(
        "import Rock.txt", "Rock.txt: error: there is another preset \"Rock\"; see --replace and --rename\n");
    EXPECT_FALSE(root.contains(preferencesPath));
}

TEST_F(ThePresetsProgram, ReplacesAPresetWhenTold)
{
    write("Rock.txt", ten);
    expectDone("import Rock.txt --replace", "Imported \"Rock\", positions copied\n");
    EXPECT_THAT(names(), SizeIs(16));
    EXPECT_EQ(*presets().find("Rock"), tenGains);
}

TEST_F(ThePresetsProgram, FindsAnotherNameWhenTold)
{
    write("Rock.txt", ten);
    expectDone("import --rename Rock.txt", "Imported \"Rock (2)\", positions copied\n");
    write("Rock.txt", otherTen);
    expectDone("import --rename Rock.txt", "Imported \"Rock (3)\", positions copied\n");
    EXPECT_THAT(names(), SizeIs(18));
    EXPECT_EQ(*presets().find("Rock (2)"), tenGains);
    EXPECT_EQ(*presets().find("Rock (3)"), otherTenGains);
    expectDone("import --rename Rock.txt", "Already there: \"Rock (3)\"\n");
}

TEST_F(ThePresetsProgram, NumbersThePresetsOfOneNameInALibrary)
{
    write("all.json", R"({"format":"brimsound-presets","version":1,"presets":[
        {"name":"A","gains":[1,0,0,0,0,0,0,0,0,0]}, {"name":"A","gains":[2,0,0,0,0,0,0,0,0,0]},
        {"name":"A","gains":[3,0,0,0,0,0,0,0,0,0]}]})");
    EXPECT_EQ(run("import all.json").status, 1);
    EXPECT_THAT(names(), AllOf(SizeIs(17), Contains("A")));
    expectDone("import --rename all.json",
        "Already there: \"A\"\nImported \"A (2)\", positions copied\nImported \"A (3)\", positions "
        "copied\n");
    expectDone("import --rename all.json",
        "Already there: \"A\"\nAlready there: \"A (2)\"\nAlready there: \"A (3)\"\n");
}

TEST_F(ThePresetsProgram, TakesTheSameGainsAsAlreadyThere)
{
    write("a.txt", ten);
    run("import a.txt");
    const auto before = fs::last_write_time(root.path() / fs::path(preferencesPath).relative_path());
    expectDone("import a.txt", "Already there: \"a\"\n");
    EXPECT_EQ(fs::last_write_time(root.path() / fs::path(preferencesPath).relative_path()), before);
}

TEST_F(ThePresetsProgram, TakesTheSameGainsInAnotherTypeAsAlreadyThere)
{
    root.write(preferencesPath,
        "<plist><dict><key>PRESETS</key><dict><key>a</key><array><integer>1</integer><integer>2</integer>"
        "<integer>3</integer><integer>4</integer><integer>5</integer><string>-1</string><integer>-2</integer>"
        "<integer>-3</integer><integer>-4</integer><real>-5</real></array></dict></dict></plist>");
    write("a.txt", ten);
    expectDone("import a.txt", "Already there: \"a\"\n");
}

TEST_F(ThePresetsProgram, UsesTheNameThatIsGiven)
{
    write("a.txt", ten);
    expectDone("import a.txt --name 'Bass/treble \xc3\xa9'",
        "Imported \"Bass/treble \xc3\xa9\", positions copied\n");
    EXPECT_THAT(names(), Contains("Bass/treble \xc3\xa9"));
    expectFailure("import a.txt --name ''",
        "a.txt: error: \"\" cannot be a name; give one with brimsound-presets import --name\n");
    expectFailure("import a.txt --name \"$(printf 'a\\nb')\"",
        "a.txt: error: \"a?b\" cannot be a name; give one with brimsound-presets import --name\n");
}

TEST_F(ThePresetsProgram, ImportsALibraryWithoutItsBadPresets)
{
    std::string library = "Winamp EQ library file v1.1\x1a!--";
    for (const char* name : { "One", "Two" }) {
        auto record = name + std::string(254, '\0') + std::string(11, '\x1f');
        record[260] = name[0] == 'O' ? '\x50' : '\x10';
        library += record;
    }
    write("all.q1", library);
    const auto outcome = run("import all.q1");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.output, "Imported \"Two\", positions copied\n");
    EXPECT_EQ(outcome.errors,
        "all.q1:record 1 \"One\": error: band 4 has the value 80, which is not from 0 to 63\n");
    EXPECT_THAT(names(), AllOf(Contains("Two"), Not(Contains("One"))));
    expectFailure(
        "import all.q1 --name Three", "all.q1: error: there are 2 presets in it, so --name cannot be used\n");
    library[31] = '\n';
    library[31 + 260] = '\x10';
    write("all.q1", library);
    EXPECT_EQ(run("import all.q1").errors, "all.q1: error: preset \"?ne\": \"?ne\" cannot be a name\n");
}

TEST_F(ThePresetsProgram, NamesThePresetOfALibraryInItsWarnings)
{
    write("both.json", R"({"format":"brimsound-presets","version":1,"presets":[
        {"name":"Loud","gains":[20,0,0,0,0,0,0,0,0,0]}, {"name":"Quiet","gains":[0,0,0,0,0,0,0,0,0,1]}]})");
    const auto outcome = run("import both.json");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors,
        "both.json: warning: preset \"Loud\": the gain of 20 dB at 60 Hz is limited to 12 dB\n");
}

TEST_F(ThePresetsProgram, ImportsNothingWithAWarningWhenStrict)
{
    write("a.txt", "20 0 0 0 0 0 0 0 0 0");
    expectFailure("import --strict a.txt",
        "a.txt: warning: the gain of 20 dB at 60 Hz is limited to 12 dB\n"
        "a.txt: error: not imported because of the warnings\n");
    EXPECT_FALSE(root.contains(preferencesPath));
    // A preamp is only noted.
    write("b.txt", "Preamp: -6.0 dB\nFilter 1: ON PK Fc 1000 Hz Gain 1.0 dB Q 0.70\n");
    EXPECT_EQ(run("import --strict b.txt").status, 0);
}

TEST_F(ThePresetsProgram, PrintsGainsAndStoresNothingInADryRun)
{
    write("a.txt", ten);
    expectDone("import --dry-run a.txt",
        "Would import \"a\", positions copied\n  +1.0 +2.0 +3.0 +4.0 +5.0 -1.0 -2.0 -3.0 -4.0 -5.0\n");
    EXPECT_FALSE(root.contains(preferencesPath));
}

TEST_F(ThePresetsProgram, UsesTheOptionsOfReading)
{
    write("a.txt",
        "Channel: L\nFilter: ON PK Fc 1000 Hz Gain 6 dB Q 1\nChannel: R\nFilter: ON PK Fc 1000 Hz Gain -6 dB "
        "Q 1\n");
    EXPECT_THAT(run("import --dry-run --channel right a.txt").output, testing::ContainsRegex(" -[56]\\."));
    write("b.preset",
        "[Equalizer "
        "preset]\nBand0=1\nBand1=2\nBand2=3\nBand3=4\nBand4=5\nBand5=6\nBand6=5\nBand7=4\nBand8=3\nBand9="
        "2\n");
    EXPECT_THAT(run("import --dry-run b.preset").output, HasSubstr("positions copied"));
    EXPECT_THAT(run("import --dry-run --bands iso b.preset").output, HasSubstr("off by"));
    write("c.txt", ten);
    EXPECT_THAT(run("import --dry-run --fit c.txt").output, HasSubstr("off by"));
    EXPECT_THAT(run("import --dry-run --format eqf c.txt").errors, HasSubstr("not a Winamp equalizer file"));
    write("d.txt",
        "Device: A\nFilter: ON PK Fc 1000 Hz Gain 6 dB Q 1\nDevice: B\nFilter: ON PK Fc 1000 Hz Gain -6 dB Q "
        "1\n");
    EXPECT_EQ(run("import --dry-run d.txt").status, 1);
    EXPECT_THAT(run("import --dry-run --device B d.txt").output, testing::ContainsRegex(" -[56]\\."));
}

TEST_F(ThePresetsProgram, ListsThePresets)
{
    const auto all = run("list").output;
    EXPECT_THAT(all, StartsWith("Flat\nFull bass\nFull bass/treble\n"));
    EXPECT_EQ(std::ranges::count(all, '\n'), 16);
    storePreferences({ { presetsKey, PropertyList::Dictionary { { "b", tenGains }, { "a", gains({ 1 }) } } },
        { selectedPresetKey, "b" } });
    expectDone("list", "b\na\n");
    const auto json = nlohmann::json::parse(run("list --json").output);
    EXPECT_EQ(json["selected"], "b");
    EXPECT_EQ(json["presets"][0],
        (nlohmann::json { { "name", "b" }, { "gains", { 1, 2, 3, 4, 5, -1, -2, -3, -4, -5 } } }));
    EXPECT_EQ(json["presets"][1], (nlohmann::json { { "name", "a" }, { "gains", nullptr } }));
}

TEST_F(ThePresetsProgram, ShowsAPreset)
{
    storePreferences({ { presetsKey,
        PropertyList::Dictionary { { "b", gains({ 12, -12, 0, 4.4f, 0, 0, 0, 0, 0, -1 }) } } } });
    const auto table = run("show b").output;
    EXPECT_THAT(table,
        StartsWith("b\n"
                   "   60 Hz   +12.0 dB              |############\n"
                   "  170 Hz   -12.0 dB  ############|\n"
                   "  310 Hz     0.0 dB              |\n"
                   "  600 Hz    +4.4 dB              |####\n"));
    EXPECT_THAT(table, HasSubstr("  16 kHz    -1.0 dB             #|\n"));
    EXPECT_THAT(table, testing::ContainsRegex("\nThe highest gain of the response is \\+1[0-9.]+ dB\\.\n$"));
    const auto json = nlohmann::json::parse(run("show --json b").output);
    EXPECT_EQ(json["name"], "b");
    EXPECT_EQ(json["gains"][1], -12);
    EXPECT_GT(json["peak"], 11.9);
}

TEST_F(ThePresetsProgram, CannotShowWhatIsNotThere)
{
    storePreferences({ { presetsKey, PropertyList::Dictionary { { "a", gains({ 1 }) } } } });
    expectFailure("show Rock", "brimsound-presets: there is no preset \"Rock\"\n");
    expectFailure("show a", "brimsound-presets: preset \"a\" is not ten gains\n");
}

TEST_F(ThePresetsProgram, ExportsWhatItImports)
{
    for (const std::string format : { "apo", "graphiceq", "easyeffects", "eqf", "json" }) {
        const auto file = format + ".file";
        EXPECT_EQ(run("export Rock --format " + format + " -o " + file).status, 0);
        EXPECT_EQ(run("export Rock --format " + format).output, read(file));
        EXPECT_EQ(run("import --name " + format + " " + file).status, 0);
        for (std::size_t band = 0; band < 10; ++band) {
            EXPECT_NEAR(presets().find(format)->asArray()->at(band).floatValue(),
                presets().find("Rock")->asArray()->at(band).floatValue(), 0.2)
                << format;
        }
    }
}

TEST_F(ThePresetsProgram, ExportsSeveralPresetsIntoOneFile)
{
    EXPECT_EQ(run("export Rock Pop -o two.json").status, 0);
    EXPECT_EQ(run("export Rock Pop --format eqf -o two.q1").status, 0);
    EXPECT_EQ(read("two.q1").size(), 31U + 2 * 268);
    const auto pop = run("show --json Pop").output;
    run("delete Rock Pop");
    expectDone(
        "import two.json", "Imported \"Rock\", positions copied\nImported \"Pop\", positions copied\n");
    EXPECT_EQ(run("show --json Pop").output, pop);
}

TEST_F(ThePresetsProgram, KeepsAnExistingFileUnlessForced)
{
    write("a.json", "mine");
    expectFailure("export Rock -o a.json", "brimsound-presets: \"a.json\" exists; --force replaces it\n");
    EXPECT_EQ(read("a.json"), "mine");
    expectDone("export Rock -o a.json --force");
    EXPECT_THAT(read("a.json"), HasSubstr("Rock"));
    expectFailure("export Rock -o no/a.json",
        "brimsound-presets: \"no/a.json\" cannot be written: No such file or directory\n");
    expectFailure("export Rock -o . --force", "brimsound-presets: \".\" cannot be written\n");
}

TEST_F(ThePresetsProgram, LeavesNoPartOfAFileThatCannotBeWritten)
{
    write("old.txt", "mine");
    // Files may have one block, as the message does.
    const std::string limit = "ulimit -f 1; trap '' XFSZ;";
    const auto created = run("export Rock --format graphiceq -o new.txt", limit);
    EXPECT_EQ(created.status, 1);
    EXPECT_EQ(created.errors, "brimsound-presets: \"new.txt\" cannot be written: File too large\n");
    EXPECT_FALSE(fs::exists(folder.path() / "new.txt"));
    const auto replaced = run("export Rock --format graphiceq -o old.txt --force", limit);
    EXPECT_EQ(replaced.status, 1);
    EXPECT_EQ(replaced.errors, "brimsound-presets: \"old.txt\" cannot be written\n");
    EXPECT_EQ(read("old.txt"), "mine");
}

TEST_F(ThePresetsProgram, WarnsOfNamesThatAFormatLacks)
{
    write("a.txt", ten);
    run("import a.txt --name \xd0\x96");
    const auto outcome = run("export \xd0\x96 --format eqf");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors,
        "brimsound-presets: warning: the name \"\xd0\x96\" has characters that the format lacks\n");
}

TEST_F(ThePresetsProgram, RenamesAPresetWhereItIs)
{
    storePreferences({ { presetsKey, PropertyList::Dictionary { { "a", tenGains }, { "b", otherTenGains } } },
        { selectedPresetKey, "a" } });
    expectDone("rename a c");
    EXPECT_THAT(names(), ElementsAre("c", "b"));
    EXPECT_EQ(*presets().find("c"), tenGains);
    EXPECT_EQ(*preferences().find(selectedPresetKey), PropertyList("c"));
    expectDone("rename b d");
    EXPECT_EQ(*preferences().find(selectedPresetKey), PropertyList("c"));
}

TEST_F(ThePresetsProgram, RefusesToRenameToATakenOrImpossibleName)
{
    expectFailure("rename Rock Pop", "brimsound-presets: there is a preset \"Pop\" already\n");
    expectFailure("rename Rock Rock", "brimsound-presets: there is a preset \"Rock\" already\n");
    expectFailure("rename Rock ''", "brimsound-presets: \"\" cannot be a name\n");
    expectFailure("rename Nobody a", "brimsound-presets: there is no preset \"Nobody\"\n");
    EXPECT_FALSE(root.contains(preferencesPath));
}

TEST_F(ThePresetsProgram, DeletesPresetsAndNamesThoseThatAreMissing)
{
    const auto outcome = run("delete Rock Nobody Pop");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, "brimsound-presets: there is no preset \"Nobody\"\n");
    EXPECT_THAT(names(), AllOf(SizeIs(14), Not(Contains("Rock")), Not(Contains("Pop"))));
}

TEST_F(ThePresetsProgram, KeepsADamagedPreferencesFile)
{
    root.write(preferencesPath, "damaged");
    write("a.txt", ten);
    const auto outcome = run("import a.txt");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors,
        AllOf(StartsWith("brimsound-presets: the preferences in \""), HasSubstr("\" cannot be read\n")));
    EXPECT_EQ(root.read(preferencesPath), "damaged");
}

TEST_F(ThePresetsProgram, ReportsThatThePreferencesCannotBeWritten)
{
    write("a.txt", ten);
    run("import a.txt");
    const auto before = root.read(preferencesPath);
    write("b.txt", otherTen);
    // Files may have one block.
    const auto outcome = run("import b.txt", "ulimit -f 1; trap '' XFSZ;");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.errors,
        AllOf(StartsWith("brimsound-presets: \""), HasSubstr(".plist\" cannot be written\n")));
    EXPECT_THAT(names(), Not(Contains("b")));
    EXPECT_EQ(root.read(preferencesPath), before);
}

TEST_F(ThePresetsProgram, ReportsThatItsOutputCannotBeWritten)
{
    const TemporaryFolder streams;
    const auto errors = (streams.path() / "errors").string();
    const int status
        = std::system(("'" BRIMSOUND_PRESETS "' export Rock >/dev/full 2>'" + errors + "'").c_str());
    EXPECT_EQ(WEXITSTATUS(status), 1);
    EXPECT_EQ(readFile(errors), "brimsound-presets: the output cannot be written: No space left on device\n");
}

TEST_F(ThePresetsProgram, IsIndependentOfTheLocale)
{
    write("a.txt", "Filter: ON PK Fc 60.5 Hz Gain 4.4 dB Q 0.70");
    const auto german = run("import --dry-run a.txt", "LC_ALL=de_DE.UTF-8 LANG=de_DE.UTF-8");
    EXPECT_EQ(german.output, run("import --dry-run a.txt", "LC_ALL=C").output);
    EXPECT_THAT(german.output, HasSubstr("+4."));
}

TEST_F(ThePresetsProgram, RefusesAWrongCommandLine)
{
    expectUsageError("", "there is no command; --help lists them");
    expectUsageError("frobnicate", "unknown command \"frobnicate\"");
    expectUsageError("list --frobnicate", "unknown option \"--frobnicate\"");
    expectUsageError("list Rock", "unexpected argument \"Rock\"");
    expectUsageError("show", "show needs a NAME");
    expectUsageError("import", "import needs a FILE");
    expectUsageError("rename Rock", "rename needs OLD and NEW");
    expectUsageError("list --root ''", "--root needs a path");
    expectUsageError("show Rock --force", "--force is no option of show");
    expectUsageError("import a --json", "--json is no option of import");
    expectUsageError("import a --format mp3", "unknown format \"mp3\"");
    expectUsageError("import a --format", "--format needs a value");
    expectUsageError("import a --bands ten", "--bands takes iso, not \"ten\"");
    expectUsageError("import a --channel both", "--channel takes left or right, not \"both\"");
    expectUsageError("import a --replace --rename", "--replace and --rename exclude each other");
    expectUsageError("import a b --name c", "--name is for one FILE");
    expectUsageError("export Rock --force", "--force is for -o");
    expectUsageError("export Rock --format xmms", "this format is only read");
    expectUsageError(
        "export Rock Pop --format apo", "this format holds one preset; json and eqf hold several");
}

TEST_F(ThePresetsProgram, PrintsItsOptionsAndItsVersion)
{
    EXPECT_THAT(run("--help").output, StartsWith("Usage: brimsound-presets list"));
    EXPECT_THAT(run("import --help").output, StartsWith("Usage: brimsound-presets list"));
    EXPECT_THAT(run("--version").output, testing::MatchesRegex("brimsound-presets [0-9.]+\n"));
}

} // namespace brimsound::presets
