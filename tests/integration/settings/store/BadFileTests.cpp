// Preferences files that are damaged or written by another program.
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "settings/store/preferences.h"
#include "settings/store/presets.h"
#include "settings/tweak.h"
#include "tests/support/Alike.h"
#include "tests/support/BinaryPropertyList.h"
#include "tests/support/TemporaryRoot.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <sys/stat.h>

namespace brimsound::tests {
namespace {

namespace fs = std::filesystem;

class ABadFile : public testing::Test {
protected:
    fs::path file() const { return desktop::resolveDevicePath(preferencesPath); }
    std::string contents() const { return root.read(preferencesPath); }
    void write(std::string_view bytes) const { root.write(preferencesPath, bytes); }

    bool isFresh() const { return areAlike(get_preferences(), fresh); }

    /// Reads the file, changes a value and writes it. Returns whether the file can be read again.
    bool canBeSaved() const
    {
        auto preferences = get_preferences();
        preferences.set(preampKey, -4.5f);
        write_preferences(preferences);
        return areAlike(get_preferences(), preferences);
    }

    TemporaryRoot root;
    const PropertyList::Dictionary fresh = get_preferences();
};

/// The file that the pane itself writes after some use.
PropertyList::Dictionary usedPreferences()
{
    const auto builtin = builtin_presets();
    return {
        { peakingEqValuesKey, PropertyList::Array { 0, 1.5f, 3, 4.5f, 6, -1.5f, -3, -4.5f, -6, 12 } },
        { presetsKey,
            PropertyList::Dictionary {
                { "Rock", *builtin.find("Rock") }, { "Mein \U0001F3A7", PropertyList::Array(10, 0.5f) } } },
        { selectedPresetKey, "Rock" },
        { preampKey, -12.0f },
        { enabledKey, true },
        { autoPreampKey, false },
    };
}

PropertyList::Dictionary preferencesWithPresets(std::size_t count)
{
    PropertyList::Dictionary presets;
    for (std::size_t i = 0; i < count; ++i)
        presets.set("Preset " + std::to_string(i), PropertyList::Array(10, static_cast<float>(i % 25) - 12));
    return { { presetsKey, std::move(presets) } };
}

TEST_F(ABadFile, TruncatedAnywhereCountsAsMissingAndIsReplaced)
{
    write_preferences(usedPreferences());
    const auto whole = contents();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        write(whole.substr(0, length));
        EXPECT_TRUE(isFresh()) << length;
    }
    EXPECT_TRUE(canBeSaved());
}

TEST_F(ABadFile, WithAnySingleBitFlippedCanBeSavedAgain)
{
    write_preferences(usedPreferences());
    const auto whole = contents();
    for (std::size_t bit = 0; bit < 8 * whole.size(); ++bit) {
        auto turned = whole;
        turned[bit / 8] = static_cast<char>(turned[bit / 8] ^ 1 << bit % 8);
        write(turned);
        EXPECT_TRUE(canBeSaved()) << bit;
    }
}

TEST_F(ABadFile, WithInvalidNumbersCanBeSaved)
{
    using Limits = std::numeric_limits<double>;
    PropertyList::Array gains { Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(), Limits::max(),
        Limits::lowest(), Limits::denorm_min(), std::numeric_limits<std::int64_t>::max(),
        std::numeric_limits<std::int64_t>::min(), 1e9, -0.0 };
    const PropertyList::Dictionary odd { { peakingEqValuesKey, gains }, { preampKey, Limits::quiet_NaN() } };
    write_preferences(odd);
    EXPECT_TRUE(areAlike(get_preferences(), odd));
    EXPECT_TRUE(canBeSaved());
}

TEST_F(ABadFile, WithInvalidTextKeepsItsOtherSettingsAndCanBeSaved)
{
    write(binaryFile({ dictionaryOf(1, 2), stringOf("SELECTED_PRESET"), stringOf("B\xe4sse") }));
    EXPECT_EQ(*get_preferences().find(selectedPresetKey), PropertyList("B\uFFFDsse"));
    EXPECT_TRUE(canBeSaved());
    EXPECT_EQ(*get_preferences().find(selectedPresetKey), PropertyList("B\uFFFDsse"));
}

TEST_F(ABadFile, WithANulInAKeyKeepsIt)
{
    for (const auto& key : { stringOf(std::string_view("a\0b", 3)), std::string("\x63\0a\0\0\0b", 7) }) {
        write(binaryFile({ dictionaryOf(1, 2), key, "\x09" }));
        EXPECT_TRUE(canBeSaved());
        ASSERT_TRUE(get_preferences().find(std::string_view("a\0b", 3)));
        EXPECT_EQ(*get_preferences().find(std::string_view("a\0b", 3)), PropertyList(true));
    }
}

TEST_F(ABadFile, OfPartsInEveryOddTypeKeepsThemWhenASwitchIsFlipped)
{
    // Integers that exceed 64 bits and 64 signed bits, a UID, a null object, a set, an unpaired surrogate.
    const std::vector<std::string> odd { std::string(1, '\x14') + std::string(16, '\x5a'),
        std::string("\x14") + std::string(8, '\0') + std::string(8, '\xff'), std::string("\x81\x12\x34"),
        std::string(1, '\0'), std::string("\xc2\0\3\0\4", 5), std::string("\x61\xd8\x3d") };
    std::vector<std::string> objects { dictionaryOf(1, 2), stringOf("odd"), arrayOf({ 3, 4, 5, 6, 7, 8 }) };
    objects.insert(objects.end(), odd.begin(), odd.end());
    write(binaryFile(objects));
    const auto before = get_preferences();
    auto preferences = before;
    preferences.set(enabledKey, false);
    write_preferences(preferences);
    const auto saved = contents();
    for (const std::size_t i : { 0u, 1u, 2u, 5u })
        EXPECT_NE(saved.find(odd[i]), std::string::npos) << i;
    const auto read = get_preferences();
    EXPECT_TRUE(areAlike(read, preferences));
    const auto& values = *read.find("odd")->asArray();
    EXPECT_TRUE(values.at(3).asNullObject());
    EXPECT_EQ(values.at(4).asSet()->elements.size(), 2u);
}

TEST_F(ABadFile, NestedTooDeeplyCountsAsMissing)
{
    constexpr int depth = 10'000;
    write("<plist><dict><key>PRESETS</key>" + repeat("<array>", depth) + repeat("</array>", depth)
        + "</dict></plist>");
    EXPECT_TRUE(isFresh());

    std::vector<std::string> objects { dictionaryOf(1, 2), stringOf("PRESETS") };
    for (int place = 2; place < depth; ++place)
        objects.push_back(arrayOf({ place + 1 }));
    objects.emplace_back("\x09");
    write(binaryFile(objects));
    EXPECT_TRUE(isFresh());
    EXPECT_TRUE(canBeSaved());
}

TEST_F(ABadFile, OfReferencesThatDoubleTooOftenCountsAsMissing)
{
    std::vector<std::string> objects { dictionaryOf(1, 2), stringOf("PRESETS") };
    for (int place = 2; place < 100; ++place)
        objects.push_back(arrayOf({ place + 1, place + 1 }));
    objects.emplace_back("\x09");
    write(binaryFile(objects));
    EXPECT_TRUE(isFresh());
    EXPECT_TRUE(canBeSaved());
}

TEST_F(ABadFile, ThatIsADirectoryCountsAsMissingAndStays)
{
    fs::create_directory(file());
    EXPECT_TRUE(isFresh());
    write_preferences(usedPreferences());
    EXPECT_TRUE(fs::is_directory(file()));
    EXPECT_TRUE(isFresh());
}

TEST_F(ABadFile, ThatIsAPipeCountsAsMissingAndStays)
{
    ASSERT_EQ(mkfifo(file().c_str(), 0600), 0);
    EXPECT_TRUE(isFresh());
    write_preferences(usedPreferences());
    EXPECT_TRUE(fs::is_fifo(file()));
    EXPECT_TRUE(isFresh());
}

TEST_F(ABadFile, InAPathThatIsNotAFolderCountsAsMissing)
{
    const auto folder = file().parent_path();
    fs::remove(folder);
    root.write("/var/mobile/Library/Preferences", "a file");
    EXPECT_TRUE(isFresh());
    write_preferences(usedPreferences());
    EXPECT_TRUE(fs::is_regular_file(folder));
    EXPECT_TRUE(isFresh());
}

TEST_F(ABadFile, BehindALinkToItselfCountsAsMissing)
{
    fs::create_symlink(file(), file());
    EXPECT_TRUE(isFresh());
    write_preferences(usedPreferences());
    EXPECT_TRUE(fs::is_symlink(file()));
    EXPECT_TRUE(isFresh());
}

TEST(AnUnusualFile, HoldsFortyThousandPresets)
{
    const TemporaryRoot root;
    auto preferences = preferencesWithPresets(40'000);
    write_preferences(preferences);
    EXPECT_EQ(get_preferences(), preferences);
    preferences.find(presetsKey)->asDictionary()->set("One more", PropertyList::Array(10, 0.0f));
    write_preferences(preferences);
    EXPECT_EQ(get_preferences(), preferences);
}

TEST(AnUnusualFile, KeepsItsPresetsWhenThereAreTooManyForOneMore)
{
    const TemporaryRoot root;
    write_preferences(preferencesWithPresets(10'000));
    const auto before = root.read(preferencesPath);
    write_preferences(preferencesWithPresets(60'000));
    EXPECT_TRUE(root.read(preferencesPath) == before);
}

TEST(AnUnusualFile, SupportsNamesOfAllKinds)
{
    const TemporaryRoot root;
    PropertyList::Dictionary presets;
    for (const std::string& name :
        { std::string("\U0001F468\u200D\U0001F469\u200D\U0001F467 \U0001F3A7"), std::string("two\nlines\r\n"),
            std::string(), std::string(10'000, 'x'), repeat("\U0001F3A7", 10'000), std::string("<&\"'>"),
            std::string("\u202Eright to left"), std::string("e\u0301") })
        presets.set(name, PropertyList::Array(10, 0.5f));
    const PropertyList::Dictionary preferences { { presetsKey, presets },
        { selectedPresetKey, "two\nlines\r\n" } };
    write_preferences(preferences);
    EXPECT_EQ(get_preferences(), preferences);
}

} // namespace
} // namespace brimsound::tests
