// The formats of positions: Winamp, XMMS, ten numbers, and the program's own.
#include "presets/Text.h"
#include "presets/formats/BrimsoundJson.h"
#include "presets/formats/Eqf.h"
#include "presets/formats/TenNumbers.h"
#include "presets/formats/Xmms.h"

#include <gmock/gmock.h>

#include <cmath>

namespace brimsound::presets {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pointwise;
using testing::SizeIs;

MATCHER_P(IsWithin, distance, "")
{
    return std::abs(std::get<0>(arg) - std::get<1>(arg)) <= distance;
}

Finding error(std::string place, std::string text)
{
    return { Severity::Error, std::move(place), std::move(text) };
}

audio::BandGains gainsOf(const ForeignPreset& preset)
{
    EXPECT_FALSE(preset.findings.haveErrors());
    return std::get<Positions>(preset.target).gains;
}

audio::BandGains allBands(double gain)
{
    audio::BandGains gains {};
    gains.fill(gain);
    return gains;
}

/// A Winamp file, byte by byte.
std::string magic()
{
    return std::string("Winamp EQ library file v1.1") + "\x1a" + "!--";
}

std::string record(const std::string& name, const std::string& values, char afterName = '\0')
{
    auto field = name + '\0';
    field.resize(257, afterName);
    return field + values;
}

const std::string middle(11, '\x1f');

TEST(AWinampFile, Has299BytesForOnePreset)
{
    const OwnPreset presets[] { { "Mine", {} } };
    Findings findings;
    const auto file = writeEqf(presets, findings);
    EXPECT_EQ(file.size(), 299U);
    EXPECT_EQ(file, magic() + record("Mine", middle));
    EXPECT_THAT(findings.all(), IsEmpty());
}

TEST(AWinampFile, HasTheTopOfASliderAtZero)
{
    EXPECT_EQ(gainsOf(readEqf(magic() + record("Up", std::string(10, '\0') + '\x1f')).front()), allBands(12));
    EXPECT_EQ(
        gainsOf(readEqf(magic() + record("Down", std::string(10, '\x3f') + '\x1f')).front()), allBands(-12));
}

TEST(AWinampFile, HasTwoMiddles)
{
    EXPECT_EQ(gainsOf(readEqf(magic() + record("31", middle)).front()), allBands(0));
    EXPECT_EQ(gainsOf(readEqf(magic() + record("32", std::string(11, '\x20'))).front()), allBands(0));
}

TEST(AWinampFile, HasItsBandsFromTheLowestUp)
{
    const auto presets = readEqf(magic() + record("Steps", { 0, 1, 30, 31, 32, 33, 62, 63, 31, 31, 31 }));
    constexpr double step = 12.0 / 31;
    EXPECT_THAT(gainsOf(presets.front()),
        Pointwise(
            IsWithin(1e-9), audio::BandGains { 12, 30 * step, step, 0, 0, -step, -30 * step, -12, 0, 0 }));
}

TEST(AWinampFile, MayHaveManyPresetsAndAnyBytesAfterTheirNames)
{
    const auto presets = readEqf(magic() + record("One", middle, '\x7f') + record("Two", middle, '\xff'));
    ASSERT_THAT(presets, SizeIs(2));
    EXPECT_EQ(presets[0].name, "One");
    EXPECT_EQ(presets[1].name, "Two");
}

TEST(AWinampFile, HasNamesInEitherEncoding)
{
    EXPECT_EQ(readEqf(magic() + record("Caf\xc3\xa9", middle)).front().name, "Caf\xc3\xa9");
    EXPECT_EQ(readEqf(magic() + record("Caf\xe9 \x80", middle)).front().name, "Caf\xc3\xa9 \xe2\x82\xac");
    EXPECT_EQ(readEqf(magic() + std::string(257, 'x') + middle).front().name, std::string(257, 'x'));
}

TEST(AWinampFile, HasNoNameWhenItsOnlyPresetHasWinampsDefault)
{
    EXPECT_EQ(readEqf(magic() + record("Entry1", middle)).front().name, "");
    const auto library = readEqf(magic() + record("Entry1", middle) + record("Entry2", middle));
    EXPECT_EQ(library.front().name, "Entry1");
}

TEST(AWinampFile, HasAPreampThatIsLeftOut)
{
    const auto presets = readEqf(magic() + record("Loud", std::string(11, '\0')));
    EXPECT_THAT(presets.front().findings.all(),
        ElementsAre(Finding { Severity::Note, "record 1 \"Loud\"",
            "the preamp of 12 dB is left out: Auto Preamp sets one for these gains" }));
}

TEST(AWinampFile, LosesOnlyTheRecordWithAWrongValue)
{
    const auto presets
        = readEqf(magic() + record("Bad", "\x1f\x1f\x40" + std::string(8, '\x1f')) + record("Good", middle));
    EXPECT_THAT(presets[0].findings.all(),
        ElementsAre(error("record 1 \"Bad\"", "band 3 has the value 64, which is not from 0 to 63")));
    EXPECT_EQ(gainsOf(presets[1]), allBands(0));
}

TEST(AWinampFile, LosesOnlyTheRecordThatIsCut)
{
    const auto presets = readEqf(magic() + record("Good", middle) + record("Cut", middle).substr(0, 267));
    EXPECT_EQ(gainsOf(presets[0]), allBands(0));
    EXPECT_THAT(presets[1].findings.all(),
        ElementsAre(error("record 2 \"Cut\"", "the file ends within this preset")));
}

TEST(AWinampFile, IsRefusedWithoutItsMagicOrARecord)
{
    EXPECT_THAT(readEqf("Winamp EQ library file v1.0\x1a!--").front().findings.all(),
        ElementsAre(error("", "not a Winamp equalizer file of version 1.1")));
    EXPECT_THAT(readEqf(magic()).front().findings.all(), ElementsAre(error("", "there is no preset in it")));
}

TEST(WritingAWinampFile, WarnsOfNamesThatItLacks)
{
    const OwnPreset presets[] { { "\xe2\x82\xac \xd0\x96", {} }, { std::string(300, 'x'), {} } };
    Findings findings;
    const auto read = readEqf(writeEqf(presets, findings));
    EXPECT_EQ(read[0].name, "\xe2\x82\xac ?");
    EXPECT_EQ(read[1].name, std::string(256, 'x'));
    ASSERT_THAT(findings.all(), SizeIs(2));
    EXPECT_EQ(
        findings.all()[0].text, "the name \"\xe2\x82\xac \xd0\x96\" has characters that the format lacks");
    EXPECT_THAT(findings.all()[1].text, testing::EndsWith(" is too long for the format and is cut"));
}

constexpr auto xmmsBands
    = "Band0=1.5\nBand1=2\nBand2=3\nBand3=4\nBand4=5\nBand5=-1\nBand6=-2\nBand7=-3\nBand8=-4\nBand9=-5,5\n";

TEST(AnXmmsPreset, HasTenBands)
{
    const auto presets = readXmms(std::string("[Equalizer preset]\nPreamp=0\n") + xmmsBands, {});
    ASSERT_THAT(presets, SizeIs(1));
    EXPECT_EQ(presets.front().name, "");
    EXPECT_EQ(gainsOf(presets.front()), (audio::BandGains { 1.5, 2, 3, 4, 5, -1, -2, -3, -4, -5.5 }));
    EXPECT_THAT(presets.front().findings.all(), IsEmpty());
}

TEST(AnXmmsPreset, HasAPreampThatIsLeftOut)
{
    const auto presets = readXmms(std::string("[Equalizer preset]\r\nPreamp=3.5\r\n") + xmmsBands, {});
    EXPECT_THAT(presets.front().findings.all(),
        ElementsAre(Finding {
            Severity::Note, "2", "the preamp of 3.5 dB is left out: Auto Preamp sets one for these gains" }));
}

TEST(AnXmmsPreset, MayHaveOctaves)
{
    ReadingOptions options;
    options.bandsAreOctaves = true;
    const auto presets = readXmms(std::string("[Equalizer preset]\n") + xmmsBands, options);
    const auto& response = std::get<Response>(presets.front().target);
    ASSERT_THAT(response.curves, SizeIs(1));
    EXPECT_EQ(response.curves[0].front(), (CurvePoint { 31.25, 1.5 }));
    EXPECT_EQ(response.curves[0].back(), (CurvePoint { 16000, -5.5 }));
    EXPECT_TRUE(response.levelIsKnown);
}

TEST(AnXmmsLibrary, HasASectionForEachName)
{
    const auto presets
        = readXmms(std::string("[Presets]\nPreset0=Caf\xe9\nPreset1=Gone\n[Caf\xe9]\n") + xmmsBands, {});
    ASSERT_THAT(presets, SizeIs(2));
    EXPECT_EQ(presets[0].name, "Caf\xc3\xa9");
    EXPECT_EQ(gainsOf(presets[0])[0], 1.5);
    EXPECT_THAT(presets[1].findings.all(), ElementsAre(error("3", "there is no section \"Gone\"")));
}

TEST(AnXmmsLibrary, MayHaveBlanksAroundItsNames)
{
    const auto presets = readXmms(std::string("[Presets]\nPreset0=Loud \n[Loud ]\n") + xmmsBands, {});
    ASSERT_THAT(presets, SizeIs(1));
    EXPECT_EQ(presets[0].name, "Loud");
    EXPECT_EQ(gainsOf(presets[0])[0], 1.5);
}

TEST(AnXmmsPreset, IsRefusedWithoutAGainForEachBand)
{
    EXPECT_THAT(readXmms("\n[Equalizer preset]\nBand0=1\n", {}).front().findings.all(),
        ElementsAre(error("2", "there is no \"Band1\"")));
    EXPECT_THAT(readXmms("[Equalizer preset]\nBand0=loud\n", {}).front().findings.all(),
        ElementsAre(error("2", "\"loud\" is no gain")));
    EXPECT_THAT(readXmms("[Equalizer preset]\nBand0=inf\n", {}).front().findings.all(),
        ElementsAre(error("2", "\"inf\" is no gain")));
    EXPECT_THAT(readXmms("[Else]\nBand0=1\n", {}).front().findings.all(),
        ElementsAre(error("", "there is no section \"Equalizer preset\" and no list \"Presets\"")));
}

TEST(AnXmmsLibrary, IsRefusedWithTooManyPresets)
{
    std::string text = "[Presets]\n";
    for (int i = 0; i <= 10000; ++i)
        text += "Preset0=A\n";
    EXPECT_THAT(
        readXmms(text, {}).front().findings.all(), ElementsAre(error("10002", "more than 10000 presets")));
}

TEST(TenNumbers, MayBeSeparatedByBlanksCommasOrSemicolons)
{
    const audio::BandGains gains { 1, -2.5, 3, 4, 5, 6, 7, 8, 9, 10 };
    EXPECT_EQ(gainsOf(readTenNumbers("1 -2.5 3 4 5 6 7 8 9 10\n").front()), gains);
    EXPECT_EQ(gainsOf(readTenNumbers("1\n-2.5\n3\n4\n5\n6\n7\n8\n9\n10\n").front()), gains);
    EXPECT_EQ(gainsOf(readTenNumbers("1,-2.5,3,4,5,6,7,8,9,10").front()), gains);
    EXPECT_EQ(gainsOf(readTenNumbers("1, -2.5, 3, 4, 5, 6, 7, 8, 9, 10").front()), gains);
    EXPECT_EQ(gainsOf(readTenNumbers("1;-2,5;3;4;5;6;7;8;9;10").front()), gains);
    EXPECT_EQ(gainsOf(readTenNumbers("equalizer-bands=1 -2.5 3 4 5 6 7 8 9 10").front()), gains);
}

TEST(TenNumbers, AreRefusedWhenTheyAreNotTenGains)
{
    EXPECT_THAT(readTenNumbers("1 2 3").front().findings.all(),
        ElementsAre(error("", "there are 3 numbers instead of ten")));
    EXPECT_THAT(readTenNumbers("1 2 3 4 5 6 7 8 9 inf").front().findings.all(),
        ElementsAre(error("", "number 10 is no gain: \"inf\"")));
    EXPECT_THAT(readTenNumbers("1 2 3 4 5 6 7 8 9 x").front().findings.all(),
        ElementsAre(error("", "number 10 is no gain: \"x\"")));
}

TEST(OwnJson, KeepsEveryDigit)
{
    const OwnPreset presets[] { { "A \"b\" \xc3\xa9", { 0.1f, -11.9, 1.0 / 3, 4, 5, 6, 7, 8, 9, 10 } },
        { "Flat", {} } };
    const auto read = readBrimsoundJson(writeBrimsoundJson(presets));
    ASSERT_THAT(read, SizeIs(2));
    EXPECT_EQ(read[0].name, presets[0].name);
    EXPECT_EQ(gainsOf(read[0]), presets[0].gains);
    EXPECT_EQ(gainsOf(read[1]), allBands(0));
}

TEST(OwnJson, IsRefusedWhenItIsNotWhatItSays)
{
    const auto only = [](std::string_view text) { return readBrimsoundJson(text).front().findings.all(); };
    EXPECT_THAT(only("[1, 2\n"), ElementsAre(error("2", "this is no valid JSON")));
    EXPECT_THAT(only("[1e999]"), ElementsAre(error("", "the JSON text has a number that is too large")));
    EXPECT_THAT(only(std::string(70, '[') + std::string(70, ']')),
        ElementsAre(error("", "the JSON text is nested more than 64 deep")));
    EXPECT_THAT(only("{\"" + std::string(70, '[') + "\\\"[\":1}"),
        ElementsAre(error("format", "it is not \"brimsound-presets\"")));
    EXPECT_THAT(only("{}"), ElementsAre(error("format", "it is not \"brimsound-presets\"")));
    EXPECT_THAT(only(R"({"format":"brimsound-presets","version":2})"),
        ElementsAre(error("version", "only version 1 is known")));
    EXPECT_THAT(only(R"({"format":"brimsound-presets","version":1,"presets":[]})"),
        ElementsAre(error("presets", "there is no list of presets")));
}

TEST(OwnJson, LosesOnlyThePresetThatIsWrong)
{
    const auto presets = readBrimsoundJson(R"({"format":"brimsound-presets","version":1,"presets":[
        {"name":"Short","gains":[1]}, {"name":"Text","gains":[1,2,3,"x",5,6,7,8,9,10]}, 5,
        {"name":"Good","gains":[1,2,3,4,5,6,7,8,9,10]}]})");
    ASSERT_THAT(presets, SizeIs(4));
    EXPECT_THAT(presets[0].findings.all(), ElementsAre(error("presets[0].gains", "there are no ten gains")));
    EXPECT_THAT(presets[1].findings.all(), ElementsAre(error("presets[1].gains[3]", "this is no gain")));
    EXPECT_THAT(presets[2].findings.all(), ElementsAre(error("presets[2].gains", "there are no ten gains")));
    EXPECT_EQ(gainsOf(presets[3])[9], 10);
}

TEST(OwnJson, IsRefusedWithTooManyPresets)
{
    std::string text = R"({"format":"brimsound-presets","version":1,"presets":[0)";
    for (int i = 0; i < 10000; ++i)
        text += ",0";
    EXPECT_THAT(readBrimsoundJson(text + "]}").front().findings.all(),
        ElementsAre(error("presets", "more than 10000 presets")));
}

TEST(AName, IsTextWithoutControlCharacters)
{
    EXPECT_TRUE(isName("Full bass/treble"));
    EXPECT_TRUE(isName(" "));
    EXPECT_TRUE(isName("\xe6\x97\xa5\xe6\x9c\xac \xf0\x9f\x8e\xa7"));
    EXPECT_FALSE(isName(""));
    EXPECT_FALSE(isName("two\nlines"));
    EXPECT_FALSE(isName("\x7f"));
    EXPECT_FALSE(isName("\xc2\x85"));
    EXPECT_FALSE(isName("Caf\xe9"));
    EXPECT_FALSE(isName(std::string_view("a\0b", 3)));
}

TEST(TextInQuotes, IsShortAndPrintable)
{
    EXPECT_EQ(inQuotes("Caf\xc3\xa9"), "\"Caf\xc3\xa9\"");
    EXPECT_EQ(inQuotes("Caf\xe9\x1b"), "\"Caf??\"");
    EXPECT_EQ(inQuotes(std::string(100, 'x')), "\"" + std::string(60, 'x') + "...\"");
    EXPECT_EQ(printable("a\tb"), "a?b");
}

TEST(ANumber, IsPrintedWithoutANegativeZero)
{
    EXPECT_EQ(fixed(-0.04, 1), "0.0");
    EXPECT_EQ(fixed(-0.06, 1), "-0.1");
    EXPECT_EQ(plain(-6.5), "-6.5");
    EXPECT_EQ(plain(10), "10");
    EXPECT_EQ(plain(1e300), "a very large number");
}

} // namespace
} // namespace brimsound::presets
