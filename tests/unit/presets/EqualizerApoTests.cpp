#include "presets/formats/EqualizerApo.h"

#include "presets/formats/ApoFilter.h"

#include <gmock/gmock.h>

#include <cmath>

namespace brimsound::presets {
namespace {

using Shape = FilterShape;
using Use = ApoFilter::Use;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

ReadingOptions rightChannel()
{
    ReadingOptions options;
    options.channel = ReadingOptions::Channel::Right;
    return options;
}

ForeignPreset read(std::string_view text, const ReadingOptions& options = {})
{
    return readEqualizerApo(text, options).front();
}

std::vector<Filter> filtersOf(const ForeignPreset& preset)
{
    EXPECT_FALSE(preset.findings.haveErrors());
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

void expectFilter(std::string_view line, const Filter& expected)
{
    const auto read = readApoFilter(line);
    EXPECT_EQ(read.use, Use::On) << line << ": " << read.reason;
    EXPECT_EQ(read.filter.shape, expected.shape) << line;
    EXPECT_NEAR(read.filter.frequency, expected.frequency, 0.05) << line;
    EXPECT_NEAR(read.filter.gain, expected.gain, 1e-9) << line;
    EXPECT_NEAR(read.filter.q, expected.q, 0.0006) << line;
}

void expectSkipped(std::string_view line, const std::string& reason)
{
    const auto read = readApoFilter(line);
    EXPECT_EQ(read.use, Use::Skipped) << line;
    EXPECT_EQ(read.reason, reason) << line;
}

TEST(AFilterLine, HasItsTypeFrequencyGainAndQ)
{
    expectFilter("ON PK Fc 50 Hz Gain -3.0 dB Q 10.00", { Shape::Peak, 50, -3, 10 });
    expectFilter("ON PEQ Fc 50 Hz Gain +3.0 dB Q 1", { Shape::Peak, 50, 3, 1 });
    expectFilter("ON Modal Fc 50 Hz Gain 3.0 dB Q 1 T60 target 300 ms", { Shape::Peak, 50, 3, 1 });
    expectFilter("on  pk  fc 50hz  gain 3db  q 2", { Shape::Peak, 50, 3, 2 });
    expectFilter("ON LSC Fc 105 Hz Gain 6.7 dB Q 0.70", { Shape::LowShelf, 105, 6.7, 0.7 });
    expectFilter("ON HSC Fc 10000 Hz Gain -2 dB Q 0.70", { Shape::HighShelf, 10000, -2, 0.7 });
}

TEST(AFilterLine, MayHaveABandwidthInsteadOfAQ)
{
    // At low frequencies an octave is Q 1.414.
    expectFilter("ON PK Fc 50 Hz Gain -3.0 dB BW Oct 1", { Shape::Peak, 50, -3, 1.4142 });
    expectFilter("ON PK Fc 50 Hz Gain -3.0 dB BW Oct 0.167", { Shape::Peak, 50, -3, 8.634 });
}

TEST(AFilterLine, HasADefaultQForPassFilters)
{
    expectFilter("ON LP Fc 50 Hz", { Shape::LowPass, 50, 0, 0.7071 });
    expectFilter("ON LPQ Fc 50 Hz Q 2", { Shape::LowPass, 50, 0, 2 });
    expectFilter("ON HP Fc 50 Hz", { Shape::HighPass, 50, 0, 0.7071 });
    expectFilter("ON HPQ Fc 50 Hz Q 2", { Shape::HighPass, 50, 0, 2 });
    expectFilter("ON BP Fc 50 Hz", { Shape::BandPass, 50, 0, 0.7071 });
    expectFilter("ON NO Fc 50 Hz", { Shape::Notch, 50, 0, 30 });
}

TEST(AShelf, WithoutAQOrASlopeIsAtItsCenter)
{
    expectFilter("ON LS Fc 100 Hz Gain 5 dB", { Shape::LowShelf, 100, 5, 0.6694 });
    expectFilter("ON HSC Fc 100 Hz Gain 5 dB", { Shape::HighShelf, 100, 5, 0.6694 });
}

TEST(AShelf, WithASlopeIsAtItsCenterWhenItsTypeSaysSo)
{
    expectFilter("ON LSC 10.8 dB Fc 100 Hz Gain 5 dB", { Shape::LowShelf, 100, 5, 0.6694 });
    expectFilter("ON HSC 12dB Fc 100 Hz Gain 5 dB", { Shape::HighShelf, 100, 5, 0.7071 });
}

TEST(AShelf, WithASlopeBeginsAtItsCornerOtherwise)
{
    // The center is at 10^(6 / 80) and 10^(6 / 40) times the corner.
    expectFilter("ON LS 12dB Fc 100 Hz Gain 6 dB", { Shape::LowShelf, 118.85, 6, 0.7071 });
    expectFilter("ON LS 6dB Fc 100 Hz Gain -6 dB", { Shape::LowShelf, 141.25, -6, 0.4927 });
    expectFilter("ON HS 12 dB Fc 1000 Hz Gain 6 dB", { Shape::HighShelf, 841.4, 6, 0.7071 });
}

TEST(AShelf, WithAQAndACornerIsMovedToItsCenter)
{
    expectFilter("ON LS Fc 105 Hz Gain 6 dB Q 0.7", { Shape::LowShelf, 125.2, 6, 0.7 });
    expectFilter("ON HS Fc 10000 Hz Gain 6 dB Q 0.7", { Shape::HighShelf, 8386.0, 6, 0.7 });
}

TEST(AFrequency, WithThreeDigitsAfterItsSeparatorIsInThousands)
{
    expectFilter("ON PK Fc 8.000 Hz Gain -3.0 dB Q 1", { Shape::Peak, 8000, -3, 1 });
    expectFilter("ON PK Fc 1,607 Hz Gain -3,5 dB Q 1,41", { Shape::Peak, 1607, -3.5, 1.41 });
    expectFilter("ON PK Fc 22.123 Hz Gain -3.0 dB Q 1", { Shape::Peak, 22123, -3, 1 });
    expectFilter("ON PK Fc 50,0 Hz Gain -3.0 dB Q 1", { Shape::Peak, 50, -3, 1 });
    expectFilter("ON PK Fc 50.25Hz Gain -3.0 dB Q 1", { Shape::Peak, 50.25, -3, 1 });
    expectFilter("ON PK Fc 1,607.5 Hz Gain -3.0 dB Q 1", { Shape::Peak, 1607.5, -3, 1 });
    expectFilter("ON PK Fc 1.607,25 Hz Gain -3,0 dB Q 1", { Shape::Peak, 1607.25, -3, 1 });
}

TEST(AFrequency, MayHaveANoBreakSpace)
{
    expectFilter("ON PK Fc 1\xc2\xa0"
                 "607 Hz Gain -3.0 dB Q 1",
        { Shape::Peak, 1607, -3, 1 });
    expectFilter("ON PK Fc 1\xa0"
                 "607\xa0Hz Gain -3.0 dB Q 1",
        { Shape::Peak, 1607, -3, 1 });
    // The narrow one that separates thousands in French.
    expectFilter("ON PK Fc 1\xe2\x80\xaf"
                 "607\xe2\x80\xafHz Gain -3.0 dB Q 1",
        { Shape::Peak, 1607, -3, 1 });
}

TEST(AFilterLine, IsNotUsedWhenItIsOffOrWithoutEffectOnTheLevel)
{
    EXPECT_EQ(readApoFilter("OFF PK Fc 50 Hz Gain -3.0 dB Q 1").use, Use::None);
    EXPECT_EQ(readApoFilter("ON None").use, Use::None);
    EXPECT_EQ(readApoFilter("ON AP Fc 900 Hz Q 0.7").use, Use::None);
}

TEST(AFilterLine, IsSkippedWithoutWhatItNeeds)
{
    expectSkipped("", "filter without a type, line skipped");
    expectSkipped("ON", "filter without a type, line skipped");
    expectSkipped("PK Fc 50 Hz Gain -3.0 dB Q 1", "filter is neither ON nor OFF, line skipped");
    expectSkipped("ON XY Fc 50 Hz", "unknown filter type \"XY\", line skipped");
    expectSkipped("ON IIR Order 2 Coefficients 1 2 3 4 5 6",
        "filters given by coefficients (IIR) are not supported, line skipped");
    expectSkipped("ON PK Gain -3.0 dB Q 1", "filter without a frequency (Fc), line skipped");
    expectSkipped("ON PK Fc", "filter without a frequency (Fc), line skipped");
    expectSkipped("ON PK Fc 50 Hz Q 1", "filter without a gain, line skipped");
    expectSkipped("ON LSC Fc 50 Hz Q 1", "filter without a gain, line skipped");
    expectSkipped("ON PK Fc 50 Hz Gain 3 dB", "filter without a Q or a bandwidth, line skipped");
    expectSkipped("ON PK Fc 30000 Hz Gain 3 dB Q 1", "filter skipped: its frequency is not below 24 kHz");
}

TEST(AFilterLine, MakesThePresetMeaninglessWithNumbersThatCannotBe)
{
    for (const auto* line : { "ON PK Fc 0 Hz Gain 3 dB Q 1", "ON PK Fc -50 Hz Gain 3 dB Q 1",
             "ON PK Fc 50 Hz Gain nan dB Q 1", "ON PK Fc 50 Hz Gain 1e999 dB Q 1",
             "ON PK Fc inf Hz Gain 3 dB Q 1", "ON PK Fc 50 Hz Gain 3 dB Q 0", "ON PK Fc 50 Hz Gain 3 dB Q -1",
             "ON LSC Fc 50 Hz Gain 3 dB Q 0" })
        EXPECT_EQ(
            readApoFilter(line).reason, "a filter's numbers must be finite, its frequency and Q above 0")
            << line;
    EXPECT_EQ(
        readApoFilter("ON PK Fc 50 Hz Gain 3 dB BW Oct 0").reason, "the bandwidth must be a number above 0");
    EXPECT_EQ(readApoFilter("ON LSC -3 dB Fc 50 Hz Gain 3 dB").reason, "the slope must be a number above 0");
    EXPECT_EQ(readApoFilter("ON LSC -3 dB Fc 50 Hz Gain 3 dB").use, Use::Refused);
}

TEST(ApoText, HasAFilterOnEachLine)
{
    const auto preset = read("# made by hand\r\n"
                             "Preamp: -6.5 dB\r\n"
                             "Filter 1: ON LSC Fc 105 Hz Gain 6.7 dB Q 0.70\r\n"
                             "\r\n"
                             "  Filter: ON PK Fc 1969 Hz Gain 5.1 dB Q 2.37\r\n"
                             "Filter 3: OFF PK Fc 100 Hz Gain 5.1 dB Q 2.37\r\n");
    EXPECT_THAT(filtersOf(preset),
        ElementsAre(Filter { Shape::LowShelf, 105, 6.7, 0.7 }, Filter { Shape::Peak, 1969, 5.1, 2.37 }));
    EXPECT_TRUE(std::get<Response>(preset.target).levelIsKnown);
    EXPECT_THAT(preset.findings.all(),
        ElementsAre(Finding { Severity::Note, "2",
            "the preamp of -6.5 dB is left out: Auto Preamp sets one for these gains" }));
}

TEST(ApoText, NamesTheLineOfEachFilter)
{
    const auto preset = read("\nFilter: ON PK Fc 60 Hz Gain 1 dB Q 1\n\nFilter: ON LP Fc 9000 Hz\n");
    EXPECT_EQ(filtersOf(preset).front().place, "2");
    EXPECT_EQ(filtersOf(preset).back().place, "4");
}

TEST(ApoText, AddsItsPreamps)
{
    const auto preset = read("Preamp: -6,5 dB\nPreamp: +1 dB\nFilter: ON PK Fc 60 Hz Gain 1 dB Q 1");
    EXPECT_THAT(preset.findings.all(), SizeIs(1));
    EXPECT_THAT(preset.findings.all()[0].text, HasSubstr("-5.5 dB"));
}

TEST(ApoText, AddsThePreampsOfTheChannelThatIsTaken)
{
    const auto text = "Preamp: -1 dB\nChannel: L\nPreamp: -2 dB\nChannel: R\nPreamp: -4 dB\n"
                      "Channel: all\nFilter: ON PK Fc 60 Hz Gain 1 dB Q 1";
    EXPECT_THAT(read(text).findings.all()[0].text, HasSubstr("-3 dB"));
    EXPECT_THAT(read(text, rightChannel()).findings.all()[0].text, HasSubstr("-5 dB"));
    EXPECT_EQ(read(text).findings.all().back(), warning("2", "the channels differ: the left one is taken"));
}

TEST(ApoText, NamesTheFirstPreampOfTheChannelThatIsTaken)
{
    const auto text = "Channel: R\nPreamp: -4 dB\nChannel: C\nPreamp: -1 dB\nChannel: L\nPreamp: -3 dB\n"
                      "Channel: all\nFilter: ON PK Fc 60 Hz Gain 1 dB Q 1";
    EXPECT_EQ(read(text).findings.all()[1].place, "6");
    EXPECT_EQ(read(text, rightChannel()).findings.all()[1].place, "2");
}

TEST(ApoText, HasACurveOfUnknownLevel)
{
    const auto preset = read("GraphicEQ: 40 4.5; 25 6; 100 -0.0");
    const auto& response = std::get<Response>(preset.target);
    EXPECT_THAT(response.curves, ElementsAre(Curve { { 25, 6 }, { 40, 4.5 }, { 100, 0 } }));
    EXPECT_FALSE(response.levelIsKnown);
    EXPECT_THAT(preset.findings.all(), IsEmpty());
}

TEST(ApoText, MayHaveWordsAfterACurve)
{
    const auto preset = read("GraphicEQ: 25 6; 40 4.5; info by Nancy");
    EXPECT_THAT(std::get<Response>(preset.target).curves, ElementsAre(Curve { { 25, 6 }, { 40, 4.5 } }));
    EXPECT_THAT(preset.findings.all(), IsEmpty());
}

TEST(ApoText, MayHaveDecimalCommasInACurveWithoutPoints)
{
    EXPECT_THAT(std::get<Response>(read("GraphicEQ: 25 6,5; 40 -4,5").target).curves,
        ElementsAre(Curve { { 25, 6.5 }, { 40, -4.5 } }));
    EXPECT_THAT(std::get<Response>(read("GraphicEQ: 25 6.5, 40 -4.5").target).curves,
        ElementsAre(Curve { { 25, 6.5 }, { 40, -4.5 } }));
}

TEST(ApoText, WithACurveOfTheTenBandsHasPositions)
{
    const auto preset
        = read("GraphicEQ: 60 1; 170 2; 310 3; 600 4; 1000 5; 3000 6; 6000 7; 12000 8; 14000 9; 16000 10");
    EXPECT_EQ(std::get<Positions>(preset.target), (Positions { { 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 } }));
}

TEST(ApoText, WarnsOfOddCurves)
{
    const auto preset = read("GraphicEQ: 25 6; 40 4.5; 40 3; 60");
    EXPECT_THAT(std::get<Response>(preset.target).curves, ElementsAre(Curve { { 25, 6 }, { 40, 3 } }));
    EXPECT_THAT(preset.findings.all(),
        ElementsAre(warning("1", "the last frequency has no gain, point skipped"),
            warning("1", "a frequency has several gains, the last one is taken")));
}

TEST(ApoText, IsRefusedWithACurveThatCannotBe)
{
    EXPECT_THAT(read("GraphicEQ: 25 6; 0 4.5").findings.all(),
        ElementsAre(error("1", "point 2 is not a frequency above 0 and a gain")));
    EXPECT_THAT(read("GraphicEQ: 25 nan").findings.all(),
        ElementsAre(error("1", "point 1 is not a frequency above 0 and a gain")));
    EXPECT_THAT(
        read("GraphicEQ: none").findings.all(), ElementsAre(error("1", "\"GraphicEQ:\" has no points")));
}

TEST(ApoText, WarnsOfEachLineThatItSkips)
{
    const auto preset = read("Filter: ON PK Fc 60 Hz Gain 1 dB Q 1\n"
                             "Filter 2: ON XY Fc 60 Hz\n"
                             "Fliter 3: ON PK Fc 60 Hz Gain 1 dB Q 1\n"
                             "Filter 4 ON PK Fc 60 Hz Gain 1 dB Q 1\n"
                             "Include: other.txt\n"
                             "Convolution: room.wav\n"
                             "Copy: L=R\n"
                             "Delay: 10 ms\n"
                             "VSTPlugin: Library a.dll\n"
                             "Preamp: loud\n");
    EXPECT_THAT(filtersOf(preset), SizeIs(1));
    EXPECT_THAT(preset.findings.all(),
        ElementsAre(warning("2", "unknown filter type \"XY\", line skipped"),
            warning("3", "unknown command \"Fliter 3\", line skipped"),
            warning("4", "no command, line skipped: \"Filter 4 ON PK Fc 60 Hz Gain 1 dB Q 1\""),
            warning("5", "the file \"other.txt\" is not included: import it instead"),
            warning("6", "left out, it is not a filter: \"room.wav\""),
            warning("7", "left out, it is not a filter: \"L=R\""),
            warning("8", "left out, it is not a filter: \"10 ms\""),
            warning("9", "left out, it is not a filter: \"Library a.dll\""),
            warning("10", "preamp without a number, line skipped")));
}

TEST(ApoText, IsRefusedWhenWhatAppliesIsNotKnown)
{
    const std::string filter = "Filter: ON PK Fc 60 Hz Gain 1 dB Q 1\n";
    for (const std::string line : { "If: sampleRate == 48000", "ElseIf: 1", "Else:", "EndIf:", "Eval: a = 1",
             "Filter: ON PK Fc `60 * 2` Hz Gain 1 dB Q 1" }) {
        EXPECT_THAT(read(filter + line).findings.all(),
            ElementsAre(error("2", "what applies is only known when Equalizer APO runs: \"" + line + "\"")));
    }
}

TEST(ApoText, IsRefusedWithoutAFilterThatIsOn)
{
    const auto expected = error("", "there is no filter that is on, and no curve");
    EXPECT_THAT(
        read("Filter: OFF PK Fc 60 Hz Gain 1 dB Q 1\nFilter: ON None").findings.all(), ElementsAre(expected));
    EXPECT_THAT(read("").findings.all(), ElementsAre(expected));
}

TEST(ApoText, IsRefusedWithNumbersThatCannotBe)
{
    EXPECT_THAT(read("Filter: ON PK Fc 0 Hz Gain 1 dB Q 1").findings.all(),
        ElementsAre(error("1", "a filter's numbers must be finite, its frequency and Q above 0")));
    EXPECT_THAT(
        read("Preamp: inf dB").findings.all(), ElementsAre(error("1", "the preamp must be a finite number")));
}

TEST(ApoText, IsRefusedWithTooManyFilters)
{
    std::string text;
    for (int i = 0; i <= 10000; ++i)
        text += "Filter: ON PK Fc 60 Hz Gain 1 dB Q 1\n";
    EXPECT_THAT(read(text).findings.all(), ElementsAre(error("10001", "more than 10000 filters or points")));
}

TEST(ApoText, GivesTheLeftChannelUnlessTheRightOneIsChosen)
{
    const auto text = "Channel: L\nFilter: ON PK Fc 60 Hz Gain 1 dB Q 1\n"
                      "Channel: R\nFilter: ON PK Fc 60 Hz Gain 2 dB Q 1\n"
                      "Channel: all\nFilter: ON PK Fc 60 Hz Gain 3 dB Q 1\n"
                      "Channel: C LFE\nFilter: ON PK Fc 60 Hz Gain 4 dB Q 1\n";
    const auto left = read(text);
    EXPECT_THAT(
        filtersOf(left), ElementsAre(Filter { Shape::Peak, 60, 1, 1 }, Filter { Shape::Peak, 60, 3, 1 }));
    EXPECT_THAT(left.findings.all(),
        ElementsAre(
            warning("7", "what follows is neither for the left nor the right channel and is left out"),
            warning("1", "the channels differ: the left one is taken")));
    const auto right = read(text, rightChannel());
    EXPECT_THAT(
        filtersOf(right), ElementsAre(Filter { Shape::Peak, 60, 2, 1 }, Filter { Shape::Peak, 60, 3, 1 }));
    EXPECT_EQ(right.findings.all().back(), warning("1", "the channels differ: the right one is taken"));
}

TEST(ApoText, DoesNotWarnOfChannelsThatAreEqual)
{
    const auto preset = read("Channel: L\nFilter: ON PK Fc 60 Hz Gain 1 dB Q 1\n"
                             "Channel: R\nFilter: ON PK Fc 60 Hz Gain 1 dB Q 1\n");
    EXPECT_THAT(filtersOf(preset), SizeIs(1));
    EXPECT_THAT(preset.findings.all(), IsEmpty());
}

TEST(ApoText, NamesItsDevice)
{
    const auto preset = read("Device: Speakers\nFilter: ON PK Fc 60 Hz Gain 1 dB Q 1\nDevice: all\n");
    EXPECT_THAT(filtersOf(preset), SizeIs(1));
    EXPECT_THAT(preset.findings.all(),
        ElementsAre(warning("1", "for the device \"Speakers\", imported for all devices")));
}

TEST(ApoText, NeedsAChoiceBetweenTwoDevices)
{
    const auto text = "Device: Speakers\nFilter: ON PK Fc 60 Hz Gain 1 dB Q 1\n"
                      "Device: Headphones\nFilter: ON PK Fc 60 Hz Gain 2 dB Q 1\n";
    EXPECT_THAT(read(text).findings.all(),
        ElementsAre(warning("1", "for the device \"Speakers\", imported for all devices"),
            error("3",
                "for another device, \"Headphones\": choose one with brimsound-presets import --device")));
    ReadingOptions options;
    options.device = "Headphones";
    const auto chosen = read(text, options);
    EXPECT_THAT(filtersOf(chosen), ElementsAre(Filter { Shape::Peak, 60, 2, 1 }));
    EXPECT_THAT(chosen.findings.all(),
        ElementsAre(warning("1", "for the device \"Speakers\", left out"),
            warning("3", "for the device \"Headphones\", imported for all devices")));
}

TEST(ApoText, MayNameItsDeviceInTheAnsiCodePage)
{
    ReadingOptions options;
    options.device = "Kopfh\xc3\xb6rer";
    const auto preset = read("Device: Kopfh\xf6rer\nFilter: ON PK Fc 60 Hz Gain 1 dB Q 1\n", options);
    EXPECT_THAT(filtersOf(preset), SizeIs(1));
    EXPECT_EQ(preset.findings.all().front(),
        warning("1", "for the device \"Kopfh\xc3\xb6rer\", imported for all devices"));
}

TEST(ApoText, LeavesOutAllLinesForAnotherDevice)
{
    ReadingOptions options;
    options.device = "Headphones";
    const auto preset = read("Device: Speakers\nChannel: R\nStage: capture\nPreamp: inf dB\nInclude: a.txt\n"
                             "Nonsense: 1\nNothing\n"
                             "Device: Headphones\nFilter: ON PK Fc 60 Hz Gain 2 dB Q 1\n",
        options);
    EXPECT_THAT(filtersOf(preset), ElementsAre(Filter { Shape::Peak, 60, 2, 1 }));
    EXPECT_THAT(preset.findings.all(),
        ElementsAre(warning("1", "for the device \"Speakers\", left out"),
            warning("8", "for the device \"Headphones\", imported for all devices")));
}

TEST(ApoText, LeavesOutWhatIsForRecording)
{
    const auto preset = read("Stage: capture\nFilter: ON PK Fc 60 Hz Gain 1 dB Q 1\nChannel: R\nNonsense: 1\n"
                             "Stage: post-mix\nFilter: ON PK Fc 60 Hz Gain 2 dB Q 1\n");
    EXPECT_THAT(filtersOf(preset), ElementsAre(Filter { Shape::Peak, 60, 2, 1 }));
    EXPECT_THAT(
        preset.findings.all(), ElementsAre(warning("1", "what follows is for recording and is left out")));
}

TEST(ManyFindings, AreCountedAfterTheFirstHundred)
{
    std::string text = "Filter: ON PK Fc 60 Hz Gain 1 dB Q 1\n";
    for (int i = 0; i < 1000; ++i)
        text += "Nonsense: 1\n";
    const auto preset = read(text + "Preamp: inf dB");
    EXPECT_THAT(preset.findings.all(), SizeIs(101));
    EXPECT_EQ(preset.findings.all().back().severity, Severity::Error);
    EXPECT_EQ(preset.findings.omitted(), 900U);
}

TEST(ApoText, IsRefusedWithTooManyLinesThatCannotBeRead)
{
    std::string text;
    for (int i = 0; i < 20000; ++i)
        text += "Nonsense: 1\n";
    EXPECT_EQ(read(text).findings.all().back(), error("10100", "more than 10000 lines cannot be read"));
}

} // namespace
} // namespace brimsound::presets
