#include "settings/store/preferences.h"

#include "settings/store/presets.h"
#include "settings/tweak.h"
#include "tests/unit/settings/Pane.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimsound::tests {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

class Preferences : public testing::Test {
protected:
    void expectFresh(const char* situation)
    {
        const auto preferences = get_preferences();
        EXPECT_THAT(keysOf(preferences), areKeys({ "PEAKING_EQ_VALUES", "PRESETS" })) << situation;
        EXPECT_EQ(floatsIn(preferences, "PEAKING_EQ_VALUES"), std::vector<float>(10, 0.0f)) << situation;
        for (const auto& gain : *preferences.find("PEAKING_EQ_VALUES")->asArray())
            EXPECT_TRUE(gain.asReal()) << situation;
        EXPECT_EQ(*preferences.find("PRESETS")->asDictionary(), builtin_presets()) << situation;
    }

    TestPlatform platform;
};

using ReadingThePreferences = Preferences;
using WritingThePreferences = Preferences;

TEST_F(ReadingThePreferences, ReturnsDefaultsWithoutAFileAndWritesNone)
{
    expectFresh("no file");
    EXPECT_EQ(platform.preferencesFile(), "");
    EXPECT_THAT(platform.takeTrace(), ElementsAre());
}

TEST_F(ReadingThePreferences, ReturnsDefaultsForAFileThatIsNotADictionary)
{
    platform.writePreferencesFile(std::string());
    expectFresh("an empty file");
    platform.writePreferencesFile(std::string("bplist00 and then nothing of the kind"));
    expectFresh("random bytes");
    platform.writePreferencesFile(PropertyList(PropertyList::Array { 1, 2 }));
    expectFresh("an array at the top");
    platform.writePreferencesFile(PropertyList("ENABLED"));
    expectFresh("a string at the top");
}

TEST_F(ReadingThePreferences, ReturnsDefaultsForATruncatedFileAndLeavesItAlone)
{
    write_preferences({ { "ENABLED", true }, { "PREAMP", -4.5f } });
    const auto whole = platform.preferencesFile();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        platform.writePreferencesFile(whole.substr(0, length));
        get_preferences();
        EXPECT_EQ(platform.preferencesFile(), whole.substr(0, length));
    }
    platform.writePreferencesFile(whole.substr(0, whole.size() - 1));
    expectFresh("a file without its last byte");
}

TEST_F(ReadingThePreferences, AddsNothingToTheFilesContents)
{
    platform.writePreferencesFile(PropertyList::Dictionary { { "ENABLED", false } });
    const auto preferences = get_preferences();
    EXPECT_THAT(keysOf(preferences), ElementsAre("ENABLED"));
    EXPECT_EQ(*preferences.find("ENABLED"), PropertyList(false));
}

TEST_F(ReadingThePreferences, KeepsEmptyPresetsEmpty)
{
    platform.writePreferencesFile(PropertyList::Dictionary { { "PRESETS", PropertyList::Dictionary() } });
    EXPECT_TRUE(get_preferences().find("PRESETS")->asDictionary()->empty());
}

TEST_F(ReadingThePreferences, KeepsValuesOfUnexpectedTypesAsTheyAre)
{
    const PropertyList::Dictionary odd {
        { "ENABLED", "perhaps" },
        { "PEAKING_EQ_VALUES", 7 },
        { "PREAMP", PropertyList::Array { "loud" } },
        { "PRESETS", false },
    };
    platform.writePreferencesFile(odd);
    EXPECT_EQ(get_preferences(), odd);
}

TEST_F(ReadingThePreferences, ReturnsContainersThatCanBeChanged)
{
    platform.writePreferencesFile(
        PropertyList::Dictionary { { "PEAKING_EQ_VALUES", PropertyList::Array { 1, 2 } } });
    auto preferences = get_preferences();
    (*preferences.find("PEAKING_EQ_VALUES")->asArray())[1] = 3.5f;
    EXPECT_THAT(floatsIn(preferences, "PEAKING_EQ_VALUES"), ElementsAre(1, 3.5f));
    EXPECT_THAT(floatsIn(get_preferences(), "PEAKING_EQ_VALUES"), ElementsAre(1, 2));
}

TEST_F(WritingThePreferences, CreatesTheFileWithTheDefaultsAndTheChange)
{
    auto preferences = get_preferences();
    preferences.set("ENABLED", false);
    write_preferences(preferences);
    EXPECT_THAT(keysOf(storedPreferences()), areKeys({ "PEAKING_EQ_VALUES", "PRESETS", "ENABLED" }));
    EXPECT_THAT(platform.takeTrace(), ElementsAre(writesFile));
}

TEST_F(WritingThePreferences, MakesABinaryFileWhateverWasRead)
{
    platform.writePreferencesFile(PropertyList::Dictionary { { "ENABLED", true } });
    ASSERT_THAT(platform.preferencesFile(), StartsWith("<?xml"));
    write_preferences(get_preferences());
    EXPECT_THAT(platform.preferencesFile(), StartsWith("bplist00"));
    EXPECT_EQ(storedPreferences(), (PropertyList::Dictionary { { "ENABLED", true } }));
}

TEST_F(WritingThePreferences, ReplacesTheWholeFile)
{
    write_preferences(get_preferences());
    write_preferences({ { "ENABLED", true } });
    EXPECT_THAT(keysOf(storedPreferences()), ElementsAre("ENABLED"));
}

TEST_F(WritingThePreferences, LeavesTheFileAloneWhenThereIsNothingToSerialize)
{
    write_preferences({ { "ENABLED", true } });
    const auto before = platform.preferencesFile();
    platform.takeTrace();
    write_preferences({ { "ENABLED", PropertyList() } });
    EXPECT_EQ(platform.preferencesFile(), before);
    EXPECT_THAT(platform.takeTrace(), ElementsAre());
}

TEST_F(WritingThePreferences, ReplacesAnUnreadableFileByTheDefaults)
{
    platform.writePreferencesFile(std::string("bplist00 of which nothing is left"));
    auto preferences = get_preferences();
    preferences.set("ENABLED", true);
    write_preferences(preferences);
    EXPECT_THAT(keysOf(storedPreferences()), areKeys({ "PEAKING_EQ_VALUES", "PRESETS", "ENABLED" }));
}

} // namespace
} // namespace brimsound::tests
