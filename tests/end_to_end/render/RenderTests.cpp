#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/desktop/process/ChildProcess.h"
#include "settings/tweak.h"
#include "tests/end_to_end/render/Sounds.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TemporaryRoot.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>

namespace brimsound::render {

using brimsound::tests::readFile;
using brimsound::tests::TemporaryFolder;
using brimsound::tests::TemporaryRoot;
using brimsound::tests::writeFile;
using testing::AllOf;
using testing::Each;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

namespace fs = std::filesystem;

constexpr auto wav16 = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
constexpr auto wavFloat = SF_FORMAT_WAV | SF_FORMAT_FLOAT;
constexpr auto flat = "--gains '0 0 0 0 0 0 0 0 0 0'";

struct Outcome {
    int status;
    std::string output;
    std::string errors;
};

class Rendering : public testing::Test {
protected:
    /// Runs the program through a shell in the folder. `before` is shell code before the command.
    Outcome run(const std::string& arguments, const std::string& before = {})
    {
        const TemporaryFolder streams;
        const auto command = "cd '" + folder.path().string() + "' && " + before
            + " '" BRIMSOUND_RENDER "' --root '" + root.path().string() + "' " + arguments + " >'"
            + (streams.path() / "out").string() + "' 2>'" + (streams.path() / "errors").string() + "'";
        const int status = std::system(command.c_str());
        return { WEXITSTATUS(status), readFile(streams.path() / "out"), readFile(streams.path() / "errors") };
    }

    void expectDone(const Outcome& outcome)
    {
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.output, "");
        EXPECT_EQ(outcome.errors, "");
    }

    /// Expects one line with the reason and no new file in the folder.
    void expectRefused(const Outcome& outcome, int status, const std::string& reason)
    {
        EXPECT_EQ(outcome.status, status);
        EXPECT_EQ(outcome.output, "");
        EXPECT_THAT(
            outcome.errors, AllOf(StartsWith("brimsound-render: "), HasSubstr(reason), EndsWith("\n")));
        EXPECT_EQ(std::ranges::count(outcome.errors, '\n'), 1) << outcome.errors;
        EXPECT_THAT(files(), Not(testing::Contains(StartsWith("out"))));
    }

    static void storePreferences(PropertyList::Dictionary preferences)
    {
        const auto data
            = dataWithPropertyList(std::move(preferences), NSPropertyListFormat::BinaryFormat_v1_0, 0);
        ASSERT_TRUE(data && writeToFile(*data, preferencesPath));
    }

    std::vector<std::string> files() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.path()))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }

    fs::path path(const std::string& name) const { return folder.path() / name; }

    void writeSine(const std::string& name, double frequency, float amplitude, int format = wavFloat)
    {
        write(path(name),
            { .rate = 48000, .channels = 1, .format = format, .samples = sine(frequency, 48000, amplitude) });
    }

    TemporaryFolder folder;
    TemporaryRoot root;
};

// The gain of a steady sine in dB.
double gainOf(const Sound& out, const Sound& in)
{
    return 20 * std::log10(rms(out) / rms(in));
}

} // namespace

struct Format {
    const char* name;
    int format;
    int channels;
    int rate;
};

class RenderingAFormat : public Rendering, public testing::WithParamInterface<Format> { };

TEST_P(RenderingAFormat, KeepsItAndChangesNoSampleWhenFlat)
{
    const auto [name, format, channels, rate] = GetParam();
    write(path("in"),
        { .rate = rate, .channels = channels, .format = format, .samples = noise(channels * 10001) });
    expectDone(run(std::string("in out ") + flat));
    const auto in = read(path("in"));
    const auto out = read(path("out"));
    EXPECT_EQ(out.rate, rate);
    EXPECT_EQ(out.channels, channels);
    EXPECT_EQ(out.format, in.format);
    EXPECT_EQ(out.samples, in.samples);
}

INSTANTIATE_TEST_SUITE_P(Lossless, RenderingAFormat,
    testing::Values(Format { "Wav8", SF_FORMAT_WAV | SF_FORMAT_PCM_U8, 1, 8000 },
        Format { "Wav16", wav16, 2, 44100 }, Format { "Wav24", SF_FORMAT_WAV | SF_FORMAT_PCM_24, 6, 48000 },
        Format { "WavFloat", wavFloat, 2, 192000 },
        Format { "Aiff16", SF_FORMAT_AIFF | SF_FORMAT_PCM_16, 1, 22050 },
        Format { "Flac8", SF_FORMAT_FLAC | SF_FORMAT_PCM_S8, 1, 48000 },
        Format { "Flac16", SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 2, 44100 },
        Format { "Flac24", SF_FORMAT_FLAC | SF_FORMAT_PCM_24, 8, 96000 },
        Format { "Double", SF_FORMAT_AU | SF_FORMAT_DOUBLE, 2, 384000 }),
    [](const testing::TestParamInfo<Format>& format) { return format.param.name; });

TEST_F(Rendering, KeepsALossyFormatAndTheLength)
{
    write(path("in.ogg"),
        { .rate = 48000,
            .channels = 2,
            .format = SF_FORMAT_OGG | SF_FORMAT_VORBIS,
            .samples = noise(96000) });
    expectDone(run("in.ogg out.ogg --preset Rock"));
    const auto out = read(path("out.ogg"));
    EXPECT_EQ(out.format, SF_FORMAT_OGG | SF_FORMAT_VORBIS);
    EXPECT_THAT(out.samples, SizeIs(96000));
}

TEST_F(Rendering, KeepsTagsAndTheOrderOfChannels)
{
    const std::vector<int> order { SF_CHANNEL_MAP_LEFT, SF_CHANNEL_MAP_RIGHT, SF_CHANNEL_MAP_LFE };
    write(path("in.caf"),
        { .rate = 48000,
            .channels = 3,
            .format = SF_FORMAT_CAF | SF_FORMAT_PCM_16,
            .samples = noise(300),
            .title = "A song",
            .order = order });
    expectDone(run(std::string("in.caf out.caf ") + flat));
    EXPECT_EQ(read(path("out.caf")).title, "A song");
    EXPECT_EQ(read(path("out.caf")).order, order);
}

TEST_F(Rendering, HasTheGainsOfTheSliders)
{
    writeSine("in.wav", 1000, 0.1f);
    expectDone(run("in.wav out.wav --gains '0 0 0 0 6.5 0 0 0 0 0'"));
    EXPECT_NEAR(gainOf(read(path("out.wav")), read(path("in.wav"))), 6.5, 0.02);
    expectDone(run("in.wav out.wav --gains '0,0,0,0,+6.5,0,0,0,0,0' --preamp -4"));
    EXPECT_NEAR(gainOf(read(path("out.wav")), read(path("in.wav"))), 2.5, 0.02);
    expectDone(run("in.wav out.wav --gains '0 0 0 0 6.5 0 0 9 0 0' --preamp auto"));
    EXPECT_NEAR(gainOf(read(path("out.wav")), read(path("in.wav"))), -2.5, 0.02);
    // The automatic preamp is positive when all gains are below 0 dB.
    expectDone(run("in.wav out.wav --gains '-5 -5 -5 -5 -3 -5 -5 -5 -5 -5' --preamp auto"));
    EXPECT_NEAR(gainOf(read(path("out.wav")), read(path("in.wav"))), 0, 0.02);
}

TEST_F(Rendering, HasTheGainsOfAPresetBelowThePreamp)
{
    writeSine("in.wav", 1000, 0.1f);
    // At 1 kHz 2 of 31 steps, at the highest band 15; a step is 12/31 dB.
    expectDone(run("in.wav out.wav --preset 'Full bass'"));
    EXPECT_NEAR(gainOf(read(path("out.wav")), read(path("in.wav"))), (2 - 15) * 12.0 / 31, 0.02);
    expectDone(run("in.wav out.wav --preset 'Full bass' --preamp 0"));
    EXPECT_NEAR(gainOf(read(path("out.wav")), read(path("in.wav"))), 2 * 12.0 / 31, 0.02);
}

TEST_F(Rendering, FindsThePresetsThatWereSaved)
{
    writeSine("in.wav", 1000, 0.1f);
    const PropertyList::Array saved { -40, 0, 0, 0, 3.5, 0, 0, 0, 0, 40 };
    storePreferences({ { presetsKey, PropertyList::Dictionary { { "Mine", saved } } } });
    // Gains beyond the sliders' range are limited to it.
    expectDone(run("in.wav out.wav --preset Mine"));
    EXPECT_NEAR(gainOf(read(path("out.wav")), read(path("in.wav"))), 3.5 - 12, 0.02);
    fs::remove(path("out.wav"));
    // When presets were saved, the built-in ones are no longer available.
    expectRefused(run("in.wav out.wav --preset Rock"), 1, "there is no preset \"Rock\"");

    storePreferences({ { presetsKey, PropertyList::Dictionary {} } });
    expectDone(run("in.wav out.wav --preset Rock"));
}

TEST_F(Rendering, ListsThePresets)
{
    const auto builtIn = run("--list-presets");
    EXPECT_EQ(builtIn.status, 0);
    EXPECT_THAT(builtIn.output, StartsWith("Flat\nFull bass\n"));
    EXPECT_EQ(std::ranges::count(builtIn.output, '\n'), 16);

    storePreferences({ { presetsKey, PropertyList::Dictionary { { "Mine", PropertyList::Array {} } } } });
    EXPECT_EQ(run("--list-presets").output, "Mine\n");
}

TEST_F(Rendering, RefusesAPresetThatIsNotTenGains)
{
    writeSine("in.wav", 1000, 0.1f);
    storePreferences(
        { { presetsKey, PropertyList::Dictionary { { "Short", PropertyList::Array { 1, 2 } } } } });
    expectRefused(run("in.wav out.wav --preset Short"), 1, "preset \"Short\" is not ten gains");
}

TEST_F(Rendering, RefusesToFindPresetsInADamagedPreferencesFile)
{
    writeSine("in.wav", 1000, 0.1f);
    root.write(preferencesPath, "damaged");
    expectRefused(run("in.wav out.wav --preset Rock"), 1, "cannot be read");
    expectRefused(run("--list-presets"), 1, "cannot be read");
}

TEST_F(Rendering, IsSettledFromTheFirstSampleOn)
{
    write(path("in.wav"),
        { .rate = 48000, .channels = 1, .format = wavFloat, .samples = std::vector<float>(100, 0.5f) });
    expectDone(run(std::string("in.wav out.wav --preamp -6 ") + flat));
    EXPECT_THAT(read(path("out.wav")).samples, Each(testing::FloatNear(0.250594f, 1e-5f)));
}

TEST_F(Rendering, LimitsByDefault)
{
    writeSine("in.wav", 1000, 0.9f);
    expectDone(run("in.wav out.wav --gains '0 0 0 0 12 0 0 0 0 0'"));
    EXPECT_LE(peak(read(path("out.wav"))), 0.98856f);
    expectDone(run("in.wav out.wav --no-limiter --gains '0 0 0 0 12 0 0 0 0 0'"));
    EXPECT_NEAR(peak(read(path("out.wav"))), 0.9 * 3.981, 0.02);
}

class RenderingIntegers : public Rendering, public testing::WithParamInterface<int> { };

TEST_P(RenderingIntegers, ClipsWithoutWrappingAround)
{
    writeSine("in", 1000, 0.99f, GetParam());
    expectDone(run("in out --no-limiter --preamp 12 --gains '0 0 0 0 12 0 0 0 0 0'"));
    const auto in = read(path("in")).samples;
    const auto out = read(path("out")).samples;
    ASSERT_EQ(out.size(), in.size());
    // After the filters have settled, the output has the sign of the input wherever the input is large.
    std::size_t wrapped = 0;
    for (std::size_t i = 24000; i < out.size(); ++i)
        wrapped += std::abs(in[i]) > 0.5f && out[i] * in[i] < 0;
    EXPECT_EQ(wrapped, 0U);
    EXPECT_GT(peak(read(path("out"))), 0.98f);
}

INSTANTIATE_TEST_SUITE_P(Formats, RenderingIntegers,
    testing::Values(SF_FORMAT_WAV | SF_FORMAT_PCM_U8, wav16, SF_FORMAT_WAV | SF_FORMAT_PCM_24,
        SF_FORMAT_WAV | SF_FORMAT_PCM_32, SF_FORMAT_WAV | SF_FORMAT_ULAW, SF_FORMAT_FLAC | SF_FORMAT_PCM_16,
        SF_FORMAT_CAF | SF_FORMAT_ALAC_32));

TEST_F(Rendering, CanReplaceItsInput)
{
    writeSine("in.wav", 1000, 0.1f);
    const auto before = read(path("in.wav"));
    fs::create_symlink("in.wav", path("link.wav"));
    chmod(path("in.wav").c_str(), 0640);
    expectDone(run("in.wav link.wav --gains '0 0 0 0 6 0 0 0 0 0'"));
    EXPECT_NEAR(gainOf(read(path("in.wav")), before), 6, 0.02);
    EXPECT_TRUE(fs::is_symlink(path("link.wav")));
    EXPECT_EQ(static_cast<unsigned>(fs::status(path("in.wav")).permissions()), 0640U);
    EXPECT_THAT(files(), testing::ElementsAre("in.wav", "link.wav"));
}

TEST_F(Rendering, AcceptsAFileWithoutSound)
{
    write(path("in.wav"), { .rate = 48000, .channels = 2, .format = wav16, .samples = {} });
    expectDone(run("in.wav out.wav --preset Rock"));
    EXPECT_THAT(read(path("out.wav")).samples, IsEmpty());
}

TEST_F(Rendering, RejectsAFileThatIsNotSound)
{
    writeFile(path("in.wav"), "This is a text.\n");
    expectRefused(run("in.wav out.wav --preset Rock"), 1, "\"in.wav\" cannot be read: ");
    expectRefused(run("nothing.wav out.wav --preset Rock"), 1, "\"nothing.wav\" cannot be read: ");
    expectRefused(run(". out.wav --preset Rock"), 1, "\".\" cannot be read: ");
}

TEST_F(Rendering, RefusesMoreThanEightChannels)
{
    write(path("in.wav"), { .rate = 48000, .channels = 9, .format = wav16, .samples = noise(90) });
    expectRefused(
        run("in.wav out.wav --preset Rock"), 1, "\"in.wav\" has 9 channels; at most 8 can be equalized");
}

TEST_F(Rendering, RejectsAnOutputThatCannotBeWritten)
{
    writeSine("in.wav", 1000, 0.1f);
    expectRefused(run("in.wav missing/out.wav --preset Rock"), 1, "No such file or directory");
    expectRefused(run("in.wav . --preset Rock"), 1, "\".\" is no file");
    expectRefused(run("in.wav /dev/null --preset Rock"), 1, "\"/dev/null\" is no file");
}

TEST_F(Rendering, StopsAtADamagedFileAndKeepsTheOldOutput)
{
    write(path("in.flac"),
        { .rate = 48000,
            .channels = 2,
            .format = SF_FORMAT_FLAC | SF_FORMAT_PCM_16,
            .samples = noise(200000) });
    auto bytes = readFile(path("in.flac"));
    std::fill_n(bytes.begin() + static_cast<long>(bytes.size() / 2), 20000, '\0');
    writeFile(path("in.flac"), bytes);
    const auto outcome = run("in.flac in.flac --preset Rock");
    expectRefused(outcome, 1, "\"in.flac\" is damaged");
    EXPECT_EQ(readFile(path("in.flac")), bytes);
    EXPECT_THAT(files(), testing::ElementsAre("in.flac"));
}

TEST_F(Rendering, LeavesNothingWhenTheDiskIsFull)
{
    write(path("in.wav"), { .rate = 48000, .channels = 2, .format = wav16, .samples = noise(400000) });
    const auto before = readFile(path("in.wav"));
    expectRefused(
        run("in.wav out.wav --preset Rock", "ulimit -f 200 &&"), 1, "\"out.wav\" cannot be written");
    expectRefused(run("in.wav in.wav --preset Rock", "ulimit -f 200 &&"), 1, "\"in.wav\" cannot be written");
    EXPECT_EQ(readFile(path("in.wav")), before);
    EXPECT_THAT(files(), testing::ElementsAre("in.wav"));
}

TEST_F(Rendering, LeavesNothingWhenItIsInterrupted)
{
    // Hours of silence, which take no disk space.
    write(path("in.wav"), { .rate = 48000, .channels = 2, .format = wav16, .samples = noise(200) });
    const auto header = readFile(path("in.wav")).substr(0, 44);
    auto bytes = header;
    constexpr std::uint32_t dataSize = 2'000'000'000;
    for (const auto& [offset, size] : { std::pair(4U, dataSize + 36), std::pair(40U, dataSize) }) {
        for (unsigned byte = 0; byte < 4; ++byte)
            bytes[offset + byte] = static_cast<char>(size >> (8 * byte) & 0xff);
    }
    writeFile(path("in.wav"), bytes);
    fs::resize_file(path("in.wav"), dataSize + 44ULL);

    for (const int signal : { SIGINT, SIGTERM, SIGHUP }) {
        desktop::ChildProcess program(
            { BRIMSOUND_RENDER, path("in.wav"), path("out.wav"), "--root", root.path(), "--preset", "Rock" });
        while (files().size() < 2 && program.running())
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        EXPECT_THAT(files(), SizeIs(2));
        program.signal(signal);
        EXPECT_EQ(program.exitStatus(std::chrono::seconds(10)), 128 + signal);
        EXPECT_THAT(files(), testing::ElementsAre("in.wav"));
    }
}

TEST_F(Rendering, ShowsProgressOnATerminal)
{
    write(path("in.wav"), { .rate = 48000, .channels = 2, .format = wav16, .samples = noise(400000) });
    const auto command = "cd '" + folder.path().string()
        + "' && script -qec \"'" BRIMSOUND_RENDER "' --root '" + root.path().string()
        + "' in.wav out.wav --preset Rock\" /dev/null </dev/null >shown";
    ASSERT_EQ(std::system(command.c_str()), 0);
    const auto shown = readFile(path("shown"));
    EXPECT_THAT(shown, HasSubstr("\rRendering  51 %"));
    EXPECT_THAT(shown, EndsWith("\rRendering 100 %\r\033[K"));
}

TEST_F(Rendering, RejectsInvalidArguments)
{
    writeSine("in.wav", 1000, 0.1f);
    expectRefused(run(""), 2, "there is no IN and no OUT");
    expectRefused(run("in.wav"), 2, "there is no OUT");
    expectRefused(run("in.wav out.wav"), 2, "either --preset or --gains is needed");
    expectRefused(run("in.wav out.wav more --preset Rock"), 2, "unexpected argument \"more\"");
    expectRefused(run("in.wav out.wav --loud"), 2, "unknown option \"--loud\"");
    expectRefused(run("in.wav out.wav --preset"), 2, "--preset needs a value");
    expectRefused(run(std::string("in.wav out.wav --preset Rock ") + flat), 2, "exclude each other");
    expectRefused(run("in.wav out.wav --gains '1 2 3'"), 2, "--gains takes ten gains, not 3");
    expectRefused(
        run("in.wav out.wav --gains '0 0 0 0 0 0 0 0 0 0 0'"), 2, "--gains takes ten gains, not 11");
    expectRefused(run("in.wav out.wav --gains '0 0 0 0 0 0 0 0 0 x'"), 2, "\"x\" is no gain");
    expectRefused(run("in.wav out.wav --gains '0 0 0 0 0 0 0 0 0 nan'"), 2, "\"nan\" is no gain");
    expectRefused(run("in.wav out.wav --gains '0 0 0 0 0 0 0 0 0 12.1'"), 2, "\"12.1\" is no gain");
    expectRefused(run("in.wav out.wav --preset Rock --preamp loud"), 2, "\"loud\" is no gain");
    expectRefused(run("in.wav out.wav --preset Rock --preamp 1e9"), 2, "\"1e9\" is no gain");
}

TEST_F(Rendering, PrintsItsHelpAndVersion)
{
    EXPECT_THAT(run("--help").output, StartsWith("Usage: brimsound-render IN OUT"));
    EXPECT_THAT(run("--version").output, StartsWith("brimsound-render "));
    EXPECT_EQ(run("--help").status, 0);
}

} // namespace brimsound::render
