#include "settings/store/presets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace brimsound {
namespace {

using testing::ElementsAre;

std::vector<float> gainsOf(const std::string& name)
{
    const auto presets = builtin_presets();
    std::vector<float> gains;
    for (const auto& gain : *presets.find(name)->asArray())
        gains.push_back(gain.floatValue());
    return gains;
}

/// A gain of that many steps; 31 steps make 12 dB.
float steps(int count)
{
    return static_cast<float>(count * (12.0 / 31.0));
}

TEST(TheBuiltinPresets, AreSixteenInTheOrderOfTheTable)
{
    std::vector<std::string> names;
    for (const auto& preset : builtin_presets())
        names.push_back(preset.key);
    EXPECT_THAT(names,
        ElementsAre("Flat", "Full bass", "Full bass/treble", "Classical", "Club", "Dance", "Earbuds",
            "Large Hall", "Live", "Party", "Pop", "Reggae", "Rock", "Soft", "Techno", "Full treble"));
}

TEST(TheBuiltinPresets, HaveTenGainsEach)
{
    for (const auto& preset : builtin_presets())
        EXPECT_EQ(preset.value.asArray()->size(), 10u) << preset.key;
}

TEST(TheBuiltinPresets, AreWholeStepsWithinTheSlidersRange)
{
    for (const auto& preset : builtin_presets()) {
        for (const auto& gain : *preset.value.asArray()) {
            const double count = gain.doubleValue() * 31 / 12;
            EXPECT_NEAR(count, std::round(count), 1e-5) << preset.key;
            EXPECT_GE(count, -19.00001) << preset.key;
            EXPECT_LE(count, 27.00001) << preset.key;
        }
    }
}

TEST(TheBuiltinPresets, AreSinglePrecisionNumbers)
{
    for (const auto& preset : builtin_presets()) {
        for (const auto& gain : *preset.value.asArray()) {
            ASSERT_TRUE(gain.asReal());
            EXPECT_EQ(*gain.asReal(), static_cast<double>(static_cast<float>(*gain.asReal()))) << preset.key;
        }
    }
}

TEST(TheBuiltinPresets, HaveTheirKnownGains)
{
    EXPECT_EQ(gainsOf("Flat"), std::vector<float>(10, 0.0f));
    EXPECT_THAT(gainsOf("Full bass"),
        ElementsAre(steps(15), steps(15), steps(15), steps(9), steps(2), steps(-8), steps(-15), steps(-18),
            steps(-19), steps(-19)));
    EXPECT_THAT(gainsOf("Dance"),
        ElementsAre(steps(15), steps(11), steps(3), steps(-1), steps(-1), steps(-11), steps(-13), steps(-13),
            steps(-1), steps(-1)));
    EXPECT_THAT(gainsOf("Rock"),
        ElementsAre(steps(12), steps(7), steps(-10), steps(-14), steps(-7), steps(6), steps(14), steps(17),
            steps(17), steps(17)));
    EXPECT_EQ(gainsOf("Full treble").back(), steps(27));
    EXPECT_NEAR(gainsOf("Full treble").back(), 10.4516, 5e-5);
}

// The same table in dB to four places, which are independent of the steps.
TEST(TheBuiltinPresets, MatchTheTableInDecibels)
{
    const std::vector<std::pair<std::string, std::vector<double>>> table {
        { "Flat", { 0, 0, 0, 0, 0, 0, 0, 0, 0, 0 } },
        { "Full bass",
            { 5.8065, 5.8065, 5.8065, 3.4839, 0.7742, -3.0968, -5.8065, -6.9677, -7.3548, -7.3548 } },
        { "Full bass/treble",
            { 4.2581, 3.4839, 0, -5.0323, -3.4839, 0.7742, 5.0323, 6.5806, 7.3548, 7.3548 } },
        { "Classical", { 0, 0, 0, 0, 0, 0, -5.0323, -5.0323, -5.0323, -6.5806 } },
        { "Club", { 0, 0, 1.9355, 3.4839, 3.4839, 3.4839, 1.9355, 0, 0, 0 } },
        { "Dance",
            { 5.8065, 4.2581, 1.1613, -0.3871, -0.3871, -4.2581, -5.0323, -5.0323, -0.3871, -0.3871 } },
        { "Earbuds", { 2.7097, 6.5806, 3.0968, -2.7097, -1.9355, 0.7742, 2.7097, 5.8065, 7.7419, 8.9032 } },
        { "Large Hall", { 6.1935, 6.1935, 3.4839, 3.4839, 0, -3.4839, -3.4839, -3.4839, 0, 0 } },
        { "Live", { -3.4839, 0, 2.3226, 3.0968, 3.4839, 3.4839, 2.3226, 1.5484, 1.5484, 1.1613 } },
        { "Party", { 4.2581, 4.2581, 0, 0, 0, 0, 0, 0, 4.2581, 4.2581 } },
        { "Pop", { -1.5484, 2.7097, 4.2581, 4.6452, 3.0968, -1.1613, -1.9355, -1.9355, -1.5484, -1.5484 } },
        { "Reggae", { 0, 0, -0.7742, -4.2581, 0, 3.8710, 3.8710, 0, 0, 0 } },
        { "Rock", { 4.6452, 2.7097, -3.8710, -5.4194, -2.7097, 2.3226, 5.4194, 6.5806, 6.5806, 6.5806 } },
        { "Soft", { 2.7097, 0.7742, -1.1613, -1.9355, -1.1613, 2.3226, 5.0323, 5.8065, 6.5806, 7.3548 } },
        { "Techno", { 4.6452, 3.4839, 0, -3.8710, -3.4839, 0, 4.6452, 5.8065, 5.8065, 5.4194 } },
        { "Full treble",
            { -6.5806, -6.5806, -6.5806, -3.0968, 1.5484, 6.5806, 9.6774, 9.6774, 9.6774, 10.4516 } },
    };
    for (const auto& [name, decibels] : table) {
        const auto gains = gainsOf(name);
        for (std::size_t i = 0; i < gains.size(); ++i)
            EXPECT_NEAR(gains[i], decibels[i], 5.1e-5) << name << ", band " << i;
    }
}

TEST(TheBuiltinPresets, AreCreatedForEveryCaller)
{
    auto changed = builtin_presets();
    changed.remove("Flat");
    EXPECT_EQ(builtin_presets().size(), 16u);
}

} // namespace
} // namespace brimsound
