#include "presets/Exporting.h"

#include "desktop/engine/audio/EqualizerDesign.h"
#include "desktop/engine/audio/FilterResponse.h"
#include "presets/Conversion.h"
#include "presets/Text.h"
#include "settings/TenGains.h"
#include "settings/store/presets.h"
#include "tests/support/RoundTrips.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <cmath>

namespace brimsound::presets {

using tests::allSlidersAt;
using tests::builtInSets;
using tests::largestError;
using tests::randomSets;
using tests::RoundTrip;

namespace {

using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

std::string exportOf(const audio::BandGains& gains, Format format)
{
    const OwnPreset presets[] { { "Mine", gains } };
    Findings findings;
    return exported(presets, format, findings);
}

std::vector<std::string> linesIn(const std::string& text)
{
    std::vector<std::string> lines;
    for (const auto line : linesOf(text))
        lines.emplace_back(line);
    return lines;
}

constexpr audio::BandGains mixed { 4, -2, 0, 12, -12, 3, 1, 6, -3, 2 };

} // namespace

class ARoundTrip : public testing::TestWithParam<RoundTrip> { };

TEST_P(ARoundTrip, KeepsTheBuiltInPresetsAndTheExtremes)
{
    const auto& [name, format, limit, randomLimit] = GetParam();
    auto sets = builtInSets();
    sets.push_back(allSlidersAt(12));
    sets.push_back(allSlidersAt(-12));
    EXPECT_LE(largestError(sets, format), limit);
}

TEST_P(ARoundTrip, KeepsRandomSets)
{
    const auto& [name, format, limit, randomLimit] = GetParam();
    EXPECT_LE(largestError(randomSets(20), format), randomLimit);
}

TEST_P(ARoundTrip, KeepsAThousandRandomSets)
{
    const auto& [name, format, limit, randomLimit] = GetParam();
    EXPECT_LE(largestError(randomSets(1000), format), randomLimit);
}

INSTANTIATE_TEST_SUITE_P(Through, ARoundTrip, testing::ValuesIn(tests::roundTrips),
    [](const testing::TestParamInfo<RoundTrip>& trip) { return std::string(trip.param.name); });

TEST(ApoExport, HasItsPreampInTheFirstLineAndAFilterForEachBand)
{
    const auto lines = linesIn(exportOf(mixed, Format::EqualizerApo));
    ASSERT_THAT(lines, SizeIs(11));
    EXPECT_THAT(lines[0], testing::MatchesRegex("Preamp: -[0-9]+\\.[0-9] dB"));
    EXPECT_THAT(lines[1], StartsWith("Filter 1: ON PK Fc 60 Hz Gain "));
    EXPECT_THAT(lines[10], StartsWith("Filter 10: ON PK Fc 16000 Hz Gain "));
}

TEST(ApoExport, KeepsToTheWidthsThatOtherReadersAccept)
{
    for (const auto& gains : randomSets(50)) {
        auto lines = linesIn(exportOf(gains, Format::EqualizerApo));
        lines.erase(lines.begin());
        for (const auto& line : lines) {
            const auto words = wordsOf(line, " ");
            ASSERT_THAT(words, SizeIs(12)) << line;
            EXPECT_LE(words[5].size(), 8U) << line;
            EXPECT_LE(words[8].size(), 6U) << line;
            EXPECT_LE(words[11].size(), 6U) << line;
        }
    }
}

TEST(ApoExport, WritesFlatBandsToo)
{
    const auto lines = linesIn(exportOf({}, Format::EqualizerApo));
    ASSERT_THAT(lines, SizeIs(11));
    EXPECT_EQ(lines[0], "Preamp: 0.0 dB");
    EXPECT_THAT(lines[5], StartsWith("Filter 5: ON PK Fc 1000 Hz Gain 0.0000 dB Q "));
}

TEST(TheExportedPreamp, KeepsTheSoundWithinFullScale)
{
    for (const auto& gains : randomSets(50)) {
        const auto line = linesIn(exportOf(gains, Format::EqualizerApo)).front();
        const auto preamp = numberFrom(wordsOf(line, " ")[1]);
        const double peak = audio::maximumResponse(audio::EqualizerDesign(48000).solve(gains, 0));
        ASSERT_TRUE(preamp);
        EXPECT_LE(*preamp + peak, 1e-9);
        EXPECT_GT(*preamp + peak, -0.1 - 1e-9);
    }
    EXPECT_EQ(linesIn(exportOf(allSlidersAt(-12), Format::EqualizerApo)).front(), "Preamp: 0.0 dB");
    EXPECT_THAT(exportOf(allSlidersAt(-12), Format::EasyEffects), HasSubstr("\"input-gain\": 0.0,"));
}

TEST(GraphicEqExport, HasAutoEqsFrequenciesInOneLine)
{
    const auto text = exportOf(mixed, Format::GraphicEq);
    EXPECT_EQ(text.find('\n'), std::string::npos);
    EXPECT_THAT(text, StartsWith("GraphicEQ: 20 "));
    const auto points = wordsOf(std::string_view(text).substr(10), ";");
    ASSERT_THAT(points, SizeIs(127));
    EXPECT_THAT(std::string(points[1]), StartsWith(" 21 "));
    EXPECT_THAT(std::string(points.back()), StartsWith(" 19871 "));
}

TEST(GraphicEqExport, IsNowhereAboveZero)
{
    const auto text = exportOf(allSlidersAt(12), Format::GraphicEq);
    double highest = -100;
    for (const auto point : wordsOf(std::string_view(text).substr(10), ";"))
        highest = std::max(highest, numberFrom(wordsOf(point, " ")[1]).value_or(100));
    EXPECT_EQ(highest, 0);
}

TEST(EasyEffectsExport, HasAllThatTheProgramRequires)
{
    const auto file = nlohmann::json::parse(exportOf(mixed, Format::EasyEffects));
    const auto& output = file["output"];
    EXPECT_TRUE(output["blocklist"].is_array());
    EXPECT_EQ(output["plugins_order"], nlohmann::json({ "equalizer#0" }));
    const auto& equalizer = output["equalizer#0"];
    EXPECT_EQ(equalizer["num-bands"], 10);
    EXPECT_EQ(equalizer["left"], equalizer["right"]);
    EXPECT_LT(equalizer["input-gain"], 0);
    for (int i = 0; i < 10; ++i) {
        const auto& band = equalizer["left"]["band" + std::to_string(i)];
        EXPECT_EQ(band["type"], "Bell");
        EXPECT_EQ(band["mode"], "APO (DR)");
        EXPECT_EQ(band["frequency"], audio::centers[static_cast<std::size_t>(i)]);
    }
}

TEST(FilterExports, SoundAsTheEqualizerDoes)
{
    const auto filters = audio::EqualizerDesign(48000).solve(mixed, 0);
    for (const auto format : { Format::EqualizerApo, Format::EasyEffects }) {
        const auto preset = readPresets(exportOf(mixed, format), {}, {}).front();
        for (const double frequency : { 30.0, 100.0, 777.0, 1600.0, 5000.0, 13000.0, 19000.0 }) {
            double gain = 0;
            for (const auto& filter : std::get<Response>(preset.target).filters)
                gain += responseOf(filter, frequency);
            EXPECT_NEAR(gain, audio::responseAt(filters, frequency), 0.01) << frequency;
        }
    }
}

TEST(AFormat, IsWrittenWhenOtherProgramsReadIt)
{
    EXPECT_TRUE(canExport(Format::EqualizerApo));
    EXPECT_FALSE(canExport(Format::Xmms));
    EXPECT_FALSE(canExport(Format::TenNumbers));
    EXPECT_TRUE(holdsSeveral(Format::Eqf));
    EXPECT_TRUE(holdsSeveral(Format::BrimsoundJson));
    EXPECT_FALSE(holdsSeveral(Format::GraphicEq));
}

} // namespace brimsound::presets
