#include "presets/Reading.h"

#include "presets/Recognition.h"

#include <gmock/gmock.h>

namespace brimsound::presets {
namespace {

using testing::AllOf;
using testing::HasSubstr;

void expectFormat(std::string_view contents, Format format)
{
    const auto recognition = recognize(contents);
    EXPECT_EQ(recognition.format, format) << contents << ": " << recognition.reason;
}

void expectRefused(std::string_view contents, const std::string& reason)
{
    const auto recognition = recognize(contents);
    EXPECT_FALSE(recognition.format) << contents;
    EXPECT_EQ(recognition.reason, reason);
}

TEST(AFormat, IsRecognizedByTheContents)
{
    expectFormat("Winamp EQ library file v1.1\x1a!--", Format::Eqf);
    expectFormat("Filter 1: ON PK Fc 60 Hz Gain 1 dB Q 1", Format::EqualizerApo);
    expectFormat("Room EQ V5.20\n\n  filter  1: ON None", Format::EqualizerApo);
    expectFormat("# a comment\r\nPreamp: -6 dB\r\n", Format::EqualizerApo);
    expectFormat("Channel: L", Format::EqualizerApo);
    expectFormat("Device: Speakers", Format::EqualizerApo);
    expectFormat("Stage: capture", Format::EqualizerApo);
    expectFormat("Include: a.txt", Format::EqualizerApo);
    expectFormat("If: 1 == 1", Format::EqualizerApo);
    expectFormat("GraphicEQ: 20 -0.2; 21 -0.2", Format::GraphicEq);
    expectFormat(" {\"output\": {}}", Format::EasyEffects);
    expectFormat("{\"input\": {}}", Format::EasyEffects);
    expectFormat("{\"format\": \"brimsound-presets\"}", Format::BrimsoundJson);
    expectFormat("[Equalizer preset]\nBand0=1", Format::Xmms);
    expectFormat("[Presets]\nPreset0=A", Format::Xmms);
    expectFormat("1 2 3 4 5 6 7 8 9 10", Format::TenNumbers);
    expectFormat("equalizer-bands=1 2 3 4 5 6 7 8 9 10", Format::TenNumbers);
}

TEST(AnUnknownFile, IsRefusedWithWhatItIs)
{
    expectRefused("Winamp EQ library file v1.2", "this is a Winamp equalizer file of another version");
    expectRefused("[apps_equalizer]\nband0_freq=1", "this is a preset of PulseEffects 1 to 3");
    expectRefused("graphiceq_enable=true\n",
        "this is a configuration of JamesDSP: copy its GraphicEQ text into a file");
    expectRefused("graphiceq_param=\"GraphicEQ: 1 2\"",
        "this is a configuration of JamesDSP: copy its GraphicEQ text into a file");
    expectRefused("context.modules = [ {} ]", "this is a configuration of PipeWire");
    expectRefused("filter.graph = {}", "this is a configuration of PipeWire");
    expectRefused("[{\"name\":\"a\",\"gains\":{}}]", "this is a preset file of eqMac");
    expectRefused("[1]", "this is JSON of an unknown kind");
    expectRefused("{\"a\":\n1,}", "this is no valid JSON");
    expectRefused("{\"a\":1e999}", "the JSON text has a number that is too large");
    expectRefused("1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n13\n14\n15\n16\n17\n18\n",
        "this is a preset of foobar2000, with 18 bands");
    expectRefused("1 2 3", "these are not ten numbers");
    expectRefused("Dear diary", "this is no known kind of preset");
    expectRefused("Filter cloth", "this is no known kind of preset");
    expectRefused(" \r\n", "the file is empty");
    expectRefused(std::string_view("a\0b", 3), "this is a binary file");
    expectRefused("\xff\xfeG", "this text is in UTF-16: save it as UTF-8");
}

TEST(AnUnknownFile, IsRefusedWithTheLineThatIsNoJson)
{
    const auto presets = readPresets("{\"a\":\n1,}", {}, {});
    const Finding expected { Severity::Error, "2", "this is no valid JSON" };
    EXPECT_EQ(presets.front().findings.all().front(), expected);
}

TEST(AnUnknownFile, IsRefusedWithWhatCanBeRead)
{
    const auto presets = readPresets("?", {}, {});
    const auto& finding = presets.front().findings.all().at(1);
    EXPECT_EQ(finding.severity, Severity::Note);
    EXPECT_THAT(finding.text,
        AllOf(HasSubstr("Winamp EQF"), HasSubstr("Equalizer APO"), HasSubstr("AutoEq"),
            HasSubstr("GraphicEQ"), HasSubstr("EasyEffects"), HasSubstr("XMMS"), HasSubstr("ten numbers")));
}

TEST(AFileOfSections, IsRecognizedByAnyOfThem)
{
    expectFormat("[Other]\na=1\n[Equalizer preset]\nBand0=1", Format::Xmms);
    expectRefused("[apps]\na=1\n[apps_equalizer]\nband0_freq=1", "this is a preset of PulseEffects 1 to 3");
    expectRefused("[Other]\na=1\n", "this is no valid JSON");
}

TEST(ReadingAFile, UsesTheFormatThatItsContentsShow)
{
    EXPECT_FALSE(readPresets("1 2 3 4 5 6 7 8 9 10", {}, {}).front().findings.haveErrors());
    EXPECT_FALSE(readPresets("GraphicEQ: 20 1; 100 0", {}, {}).front().findings.haveErrors());
    EXPECT_TRUE(readPresets("?", {}, {}).front().findings.haveErrors());
}

TEST(ReadingAFile, AcceptsAByteOrderMark)
{
    EXPECT_FALSE(readPresets("\xef\xbb\xbf"
                             "1 2 3 4 5 6 7 8 9 10",
        {}, {})
                     .front()
                     .findings.haveErrors());
    EXPECT_FALSE(readPresets("\xef\xbb\xbf"
                             "GraphicEQ: 20 1",
        {}, {})
                     .front()
                     .findings.haveErrors());
}

TEST(ReadingAFile, UsesTheFormatThatIsGiven)
{
    const auto presets = readPresets("1 2 3 4 5 6 7 8 9 10", Format::Eqf, {});
    EXPECT_EQ(presets.front().findings.all().front().text, "not a Winamp equalizer file of version 1.1");
}

TEST(AFormat, HasANameOnTheCommandLine)
{
    EXPECT_EQ(formatNamed("eqf"), Format::Eqf);
    EXPECT_EQ(formatNamed("apo"), Format::EqualizerApo);
    EXPECT_EQ(formatNamed("graphiceq"), Format::GraphicEq);
    EXPECT_EQ(formatNamed("easyeffects"), Format::EasyEffects);
    EXPECT_EQ(formatNamed("xmms"), Format::Xmms);
    EXPECT_EQ(formatNamed("numbers"), Format::TenNumbers);
    EXPECT_EQ(formatNamed("json"), Format::BrimsoundJson);
    EXPECT_FALSE(formatNamed("EQF"));
}

} // namespace
} // namespace brimsound::presets
