#include "presets/formats/EasyEffects.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <cmath>

namespace brimsound::presets {
namespace {

using Shape = FilterShape;
using nlohmann::json;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

json band(double frequency, double gain, double q)
{
    return { { "type", "Bell" }, { "mode", "APO (DR)" }, { "slope", "x1" }, { "solo", false },
        { "mute", false }, { "gain", gain }, { "frequency", frequency }, { "q", q }, { "width", 4.0 } };
}

/// A preset of one equalizer with these bands.
json presetOf(const std::vector<json>& bands)
{
    auto channel = json::object();
    for (std::size_t i = 0; i < bands.size(); ++i)
        channel["band" + std::to_string(i)] = bands[i];
    return { { "output",
        { { "blocklist", json::array() }, { "plugins_order", { "equalizer#0" } },
            { "equalizer#0",
                { { "bypass", false }, { "input-gain", 0.0 }, { "output-gain", 0.0 }, { "mode", "IIR" },
                    { "split-channels", false }, { "balance", 0.0 }, { "pitch-left", 0.0 },
                    { "pitch-right", 0.0 }, { "num-bands", bands.size() }, { "left", channel },
                    { "right", channel } } } } } };
}

json& equalizerOf(json& preset)
{
    return preset["output"]["equalizer#0"];
}

json& firstBandOf(json& preset)
{
    return equalizerOf(preset)["left"]["band0"];
}

ReadingOptions rightChannel()
{
    ReadingOptions options;
    options.channel = ReadingOptions::Channel::Right;
    return options;
}

ForeignPreset read(const json& preset, const ReadingOptions& options = {})
{
    return readEasyEffects(preset.dump(), options).front();
}

std::vector<Filter> filtersOf(const ForeignPreset& preset)
{
    EXPECT_FALSE(preset.findings.haveErrors()) << preset.findings.all().back().text;
    return std::get<Response>(preset.target).filters;
}

Finding warning(std::string place, std::string text)
{
    return { Severity::Warning, std::move(place), std::move(text) };
}

Finding error(std::string place, std::string text)
{
    return { Severity::Error, std::move(place), std::move(text) };
}

TEST(AnEasyEffectsPreset, HasFiltersOfTheCookbookInTheModeApo)
{
    auto preset = presetOf({ band(60, 5, 1.41), band(1000, -3, 2), band(8000, 2, 0.7), band(90, 3, 0.7),
        band(30, 3, 0.6), band(50, 3, 0.5), band(19000, 3, 0.5) });
    const char* types[] { "Bell", "Bell", "Hi-shelf", "Lo-shelf", "Hi-pass", "Notch", "Lo-pass" };
    for (std::size_t i = 0; i < std::size(types); ++i)
        equalizerOf(preset)["left"]["band" + std::to_string(i)]["type"] = types[i];
    EXPECT_THAT(filtersOf(read(preset)),
        ElementsAre(Filter { Shape::Peak, 60, 5, 1.41 }, Filter { Shape::Peak, 1000, -3, 2 },
            Filter { Shape::HighShelf, 8000, 2, 0.7 }, Filter { Shape::LowShelf, 90, 3, 0.7 },
            Filter { Shape::HighPass, 30, 0, 0.6 }, Filter { Shape::Notch, 50, 0, 0.5 },
            Filter { Shape::LowPass, 19000, 0, 0.5 }));
}

TEST(AnEasyEffectsPreset, NamesThePathOfEachFilter)
{
    const auto preset = presetOf({ band(60, 5, 1.41), band(1000, -3, 2) });
    EXPECT_EQ(filtersOf(read(preset)).back().place, "output.equalizer#0.left.band1");
}

TEST(AnEasyEffectsPreset, HasItsOwnFiltersInTheModeRlc)
{
    auto preset = presetOf({ band(60, 5, 1.41), band(100, 3, 0.7), band(10000, 3, 0.7) });
    auto& left = equalizerOf(preset)["left"];
    left["band0"].erase("mode");
    left["band0"]["slope"] = "x3";
    left["band1"]["mode"] = "RLC (BT)";
    left["band1"]["type"] = "Lo-shelf";
    left["band2"]["mode"] = "RLC (BT)";
    left["band2"]["type"] = "Hi-shelf";
    const auto imported = read(preset);
    EXPECT_THAT(filtersOf(imported),
        ElementsAre(Filter { Shape::RlcPeak, 60, 5, 1.41, 3 }, Filter { Shape::RlcLowShelf, 100, 3, 0.7 },
            Filter { Shape::RlcHighShelf, 10000, 3, 0.7 }));
    EXPECT_THAT(imported.findings.all(), IsEmpty());
}

TEST(AnEasyEffectsPreset, WarnsOfModesAndSlopesThatAreApproximated)
{
    const std::string path = "output.equalizer#0.left.band0.";
    const auto findings = [&](const char* type, const char* mode, const char* slope) {
        auto preset = presetOf({ band(60, 5, 1.41) });
        firstBandOf(preset)["type"] = type;
        firstBandOf(preset)["mode"] = mode;
        firstBandOf(preset)["slope"] = slope;
        return read(preset).findings.all();
    };
    EXPECT_THAT(findings("Bell", "LRX (MT)", "x1"),
        ElementsAre(warning(path + "mode", "the mode \"LRX (MT)\" is taken as \"APO (DR)\"")));
    EXPECT_THAT(findings("Bell", "RLC (MT)", "x1"),
        ElementsAre(warning(path + "mode", "the mode \"RLC (MT)\" is taken as \"RLC (BT)\"")));
    EXPECT_THAT(findings("Hi-pass", "RLC (BT)", "x1"),
        ElementsAre(warning(path + "mode", "the mode \"RLC (BT)\" is taken as \"APO (DR)\"")));
    EXPECT_THAT(findings("Lo-shelf", "RLC (BT)", "x2"),
        ElementsAre(warning(path + "slope", "the slope \"x2\" is taken as \"x1\"")));
    EXPECT_THAT(findings("Bell", "APO (DR)", "steep"),
        ElementsAre(warning(path + "slope", "the slope \"steep\" is taken as \"x1\"")));
}

TEST(AnEasyEffectsPreset, SkipsBandsWithoutEffect)
{
    auto preset = presetOf({ band(60, 5, 1.41), band(100, 5, 1.41), band(200, 5, 1.41), band(400, 5, 1.41) });
    auto& left = equalizerOf(preset)["left"];
    left["band0"]["type"] = "Off";
    left["band1"]["mute"] = true;
    left["band2"]["type"] = "Allpass";
    const auto imported = read(preset);
    EXPECT_THAT(filtersOf(imported), ElementsAre(Filter { Shape::Peak, 400, 5, 1.41 }));
    EXPECT_THAT(imported.findings.all(), IsEmpty());
}

TEST(AnEasyEffectsPreset, WarnsOfBandsThatItSkips)
{
    auto preset
        = presetOf({ band(60, 5, 1.41), band(100, 5, 1.41), band(30000, 5, 1.41), band(400, 5, 1.41) });
    auto& left = equalizerOf(preset)["left"];
    left["band0"]["type"] = "Resonance";
    left["band1"]["gain"] = "loud";
    left["band3"]["solo"] = true;
    const auto imported = read(preset);
    EXPECT_THAT(filtersOf(imported), SizeIs(1));
    EXPECT_THAT(imported.findings.all(),
        ElementsAre(warning("output.equalizer#0.left.band0.type",
                        "filters of type \"Resonance\" are not supported, band skipped"),
            warning("output.equalizer#0.left.band1", "its frequency, gain or Q is no number, band skipped"),
            warning("output.equalizer#0.left.band2", "band skipped: its frequency is not below 24 kHz"),
            warning(
                "output.equalizer#0.left.band3.solo", "\"solo\" is ignored: the other bands are taken too")));
}

TEST(AnEasyEffectsPreset, HasDefaultsForKeysThatAreMissing)
{
    auto preset = presetOf({ { { "frequency", 500 }, { "gain", 2 } } });
    EXPECT_THAT(filtersOf(read(preset)), ElementsAre(Filter { Shape::RlcPeak, 500, 2, 4.36 }));
}

TEST(AnEasyEffectsPreset, ShiftsFrequenciesByItsPitch)
{
    auto preset = presetOf({ band(500, 2, 1) });
    equalizerOf(preset)["pitch-left"] = 12;
    equalizerOf(preset)["pitch-right"] = 12;
    EXPECT_NEAR(filtersOf(read(preset)).front().frequency, 1000, 1e-9);
    EXPECT_THAT(read(preset).findings.all(), IsEmpty());
    equalizerOf(preset)["pitch-right"] = 0;
    EXPECT_NEAR(filtersOf(read(preset)).front().frequency, 1000, 1e-9);
    EXPECT_NEAR(filtersOf(read(preset, rightChannel())).front().frequency, 500, 1e-9);
    EXPECT_THAT(read(preset).findings.all(),
        ElementsAre(warning("output.equalizer#0", "the channels differ: the left one is taken")));
    EXPECT_THAT(read(preset, rightChannel()).findings.all(),
        ElementsAre(warning("output.equalizer#0", "the channels differ: the right one is taken")));
}

TEST(AnEasyEffectsPreset, AddsTheEqualizersOfItsOutput)
{
    auto preset = presetOf({ band(60, 5, 1.41) });
    auto& output = preset["output"];
    output["equalizer#1"] = equalizerOf(preset);
    output["equalizer#2"] = equalizerOf(preset);
    output["equalizer#2"]["bypass"] = true;
    output["plugins_order"] = { "bass_enhancer#0", "equalizer#0", "equalizer#1", "equalizer#2" };
    preset["input"] = { { "plugins_order", { "equalizer#0" } } };
    const auto imported = read(preset);
    EXPECT_THAT(filtersOf(imported), SizeIs(2));
    EXPECT_THAT(imported.findings.all(),
        ElementsAre(warning("output.plugins_order", "the effect \"bass_enhancer#0\" is left out"),
            warning("output.equalizer#2", "it is switched off and left out")));
}

TEST(AnEasyEffectsPreset, DoesNotMentionEffectsThatAreSwitchedOff)
{
    auto preset = presetOf({ band(60, 5, 1.41) });
    auto& output = preset["output"];
    output["limiter#0"]["bypass"] = true;
    output["reverb"]["state"] = "false";
    output["exciter#0"]["bypass"] = false;
    output["crossfeed"]["state"] = "true";
    output["plugins_order"] = { "limiter#0", "reverb", "exciter#0", "crossfeed", "equalizer#0" };
    EXPECT_THAT(read(preset).findings.all(),
        ElementsAre(warning("output.plugins_order", "the effect \"exciter#0\" is left out"),
            warning("output.plugins_order", "the effect \"crossfeed\" is left out")));
}

TEST(AnEasyEffectsPreset, UsesItsInputWithoutAnOutput)
{
    auto preset = presetOf({ band(60, 5, 1.41) });
    preset["input"] = preset["output"];
    preset.erase("output");
    EXPECT_THAT(filtersOf(read(preset)), SizeIs(1));
}

TEST(AnEasyEffectsPreset, OfRelease6NamesItsEqualizerWithoutANumber)
{
    auto preset = presetOf({ band(60, 5, 1.41) });
    preset["output"]["equalizer"] = equalizerOf(preset);
    preset["output"].erase("equalizer#0");
    preset["output"]["plugins_order"] = { "equalizer" };
    EXPECT_THAT(filtersOf(read(preset)), SizeIs(1));
}

TEST(AnEasyEffectsPreset, NamesTheLevelsAndTheBalanceThatAreLeftOut)
{
    auto preset = presetOf({ band(60, 5, 1.41) });
    equalizerOf(preset)["input-gain"] = -5.5;
    equalizerOf(preset)["output-gain"] = 2;
    equalizerOf(preset)["balance"] = 10;
    EXPECT_THAT(read(preset).findings.all(),
        ElementsAre(Finding { Severity::Note, "output.equalizer#0.input-gain",
                        "the preamp of -5.5 dB is left out: Auto Preamp sets one for these gains" },
            Finding { Severity::Note, "output.equalizer#0.output-gain",
                "the preamp of 2 dB is left out: Auto Preamp sets one for these gains" },
            warning("output.equalizer#0.balance", "the balance is left out")));
}

TEST(AnEasyEffectsPreset, GivesTheLeftChannelUnlessTheRightOneIsChosen)
{
    auto preset = presetOf({ band(60, 5, 1.41) });
    equalizerOf(preset)["split-channels"] = true;
    equalizerOf(preset)["right"]["band0"]["gain"] = 1;
    const auto left = read(preset);
    EXPECT_EQ(filtersOf(left).front().gain, 5);
    EXPECT_THAT(left.findings.all(),
        ElementsAre(warning("output.equalizer#0", "the channels differ: the left one is taken")));
    const auto right = read(preset, rightChannel());
    EXPECT_EQ(filtersOf(right).front().gain, 1);
    equalizerOf(preset)["split-channels"] = false;
    EXPECT_EQ(filtersOf(read(preset, rightChannel())).front().gain, 5);
    EXPECT_THAT(read(preset).findings.all(), IsEmpty());
}

TEST(APulseEffectsPreset, HasStringsForNumbersAndBooleans)
{
    const auto preset = read(json::parse(R"text({"output": {"blacklist": [], "plugins_order": ["equalizer"],
        "equalizer": {"state": "true", "mode": "IIR", "num-bands": "2", "input-gain": "0", "left": {
            "band0": {"type": "Bell", "mode": "APO (DR)", "slope": "x1", "gain": "-0.5", "frequency": "60",
                      "q": "1.41", "mute": "false"},
            "band1": {"type": "Bell", "mode": "APO (DR)", "slope": "x1", "gain": "3", "frequency": "100", "q": "1",
                      "mute": "true"}}}}})text"));
    EXPECT_THAT(filtersOf(preset), ElementsAre(Filter { Shape::Peak, 60, -0.5, 1.41 }));
    EXPECT_THAT(preset.findings.all(), IsEmpty());
}

TEST(APulseEffectsPreset, MayBeSwitchedOff)
{
    const auto preset = read(json::parse(
        R"text({"output": {"plugins_order": ["equalizer"],
            "equalizer": {"state": "false", "num-bands": "0", "left": {}}}})text"));
    EXPECT_THAT(preset.findings.all(),
        ElementsAre(warning("output.equalizer", "it is switched off and left out"),
            error("output", "there is no equalizer that is switched on")));
}

TEST(AnEasyEffectsPreset, IsRefusedWhenPartsAreMissing)
{
    const auto findings = [](const char* text) { return readEasyEffects(text, {}).front().findings.all(); };
    EXPECT_THAT(findings("{\n\"output\": {,}}"), ElementsAre(error("2", "this is no valid JSON")));
    EXPECT_THAT(findings("[]"), ElementsAre(error("", "there is no \"output\" and no \"input\"")));
    EXPECT_THAT(findings(R"({"output": {}})"),
        ElementsAre(error("output.plugins_order", "there is no list of the effects")));
    EXPECT_THAT(findings(R"({"output": {"plugins_order": ["equalizer#0"]}})"),
        ElementsAre(error("output.equalizer#0", "it is listed, but missing")));
    EXPECT_THAT(findings(R"({"output": {"plugins_order": ["equalizer#0"], "equalizer#0": {}}})"),
        ElementsAre(error("output.equalizer#0.left", "there are no bands")));
    EXPECT_THAT(
        findings(
            R"({"output": {"plugins_order": ["equalizer#0"], "equalizer#0": {"num-bands": -1, "left": {}}}})"),
        ElementsAre(error("output.equalizer#0.num-bands", "not a number of bands up to 10000")));
    EXPECT_THAT(
        findings(
            R"({"output": {"plugins_order": ["equalizer#0"], "equalizer#0": {"num-bands": 1e5, "left": {}}}})"),
        ElementsAre(error("output.equalizer#0.num-bands", "not a number of bands up to 10000")));
    // Without a number there are 32.
    EXPECT_THAT(findings(R"({"output": {"plugins_order": ["equalizer#0"], "equalizer#0": {"left": {}}}})"),
        ElementsAre(error("output.equalizer#0.left.band0", "the band is missing")));
    EXPECT_THAT(findings(R"({"output": {"plugins_order": [1]}})"),
        ElementsAre(warning("output.plugins_order", "an effect without a name is left out"),
            error("output", "there is no equalizer that is switched on")));
}

TEST(AnEasyEffectsPreset, IsRefusedWithoutABandThatIsOn)
{
    auto preset = presetOf({ band(60, 5, 1.41), band(100, 5, 1.41) });
    firstBandOf(preset)["type"] = "Off";
    equalizerOf(preset)["left"]["band1"]["mute"] = true;
    EXPECT_THAT(read(preset).findings.all(), ElementsAre(error("output", "there is no band that is on")));
    equalizerOf(preset)["num-bands"] = 0;
    EXPECT_THAT(read(preset).findings.all(), ElementsAre(error("output", "there is no band that is on")));
}

TEST(AnEasyEffectsPreset, IsRefusedWithNumbersThatCannotBe)
{
    for (const char* key : { "frequency", "q" }) {
        auto preset = presetOf({ band(60, 5, 1.41) });
        firstBandOf(preset)[key] = 0;
        EXPECT_THAT(read(preset).findings.all(),
            ElementsAre(error(
                "output.equalizer#0.left.band0", "its numbers must be finite, its frequency and Q above 0")));
    }
    auto preset = presetOf({ band(60, 5, 1.41) });
    firstBandOf(preset)["gain"] = "nan";
    EXPECT_TRUE(read(preset).findings.haveErrors());
    preset = presetOf({ band(60, 5, 1.41) });
    equalizerOf(preset)["output-gain"] = "inf";
    EXPECT_THAT(read(preset).findings.all(),
        ElementsAre(error("output.equalizer#0.output-gain", "the preamp must be a finite number")));
}

} // namespace
} // namespace brimsound::presets
