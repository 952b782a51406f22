// Faults in the engine's surroundings and their effect on the sound.
#include "platform/desktop/bus/PrivateBus.h"
#include "settings/tweak.h"
#include "tests/end_to_end/sound/Desktop.h"

#include <algorithm>
#include <cmath>
#include <csignal>
#include <fstream>
#include <limits>
#include <numbers>
#include <sstream>

namespace brimsound::tests {
namespace {

std::string contentsOf(const std::filesystem::path& path)
{
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

std::size_t countOf(const std::string& part, const std::string& text)
{
    std::size_t count = 0;
    for (auto found = text.find(part); found != std::string::npos; found = text.find(part, found + 1))
        ++count;
    return count;
}

/// The largest amplitude of a frequency in any 10 ms.
double loudestAt(const Samples& samples, double frequency)
{
    constexpr std::size_t window = 480;
    double loudest = 0;
    for (std::size_t begin = 0; begin + window <= samples.size(); begin += window) {
        double sine = 0;
        double cosine = 0;
        for (std::size_t i = 0; i < window; ++i) {
            const double phase = 2 * std::numbers::pi * frequency * static_cast<double>(i) / 48000;
            sine += static_cast<double>(samples[begin + i]) * std::sin(phase);
            cosine += static_cast<double>(samples[begin + i]) * std::cos(phase);
        }
        loudest = std::max(loudest, 2 * std::hypot(sine, cosine) / window);
    }
    return loudest;
}

class AFaultyDesktop : public ADesktop {
protected:
    AFaultyDesktop() { hw1.emplace("hw1"); }

    void start()
    {
        engine.emplace();
        player.emplace(playTone);
        ASSERT_TRUE(comesTo(*hw1, equalizedLevel));
    }

    /// Sets the volume of each of two channels, and a common factor of one half.
    static void setVolume(std::uint32_t node, const std::string& volume)
    {
        outputOf({ "pw-cli", "set-param", std::to_string(node), "Props",
            "{ volume: 0.5 channelVolumes: [ " + volume + " " + volume + " ] }" });
    }

    /// Whether the session manager has saved that text for its next start.
    bool isStored(const std::string& text)
    {
        std::error_code missing;
        return std::ranges::any_of(
            std::filesystem::directory_iterator(system.folder() / "state/wireplumber", missing),
            [&](const auto& file) { return contentsOf(file.path()).find(text) != std::string::npos; });
    }

    std::optional<Recorder> hw1;
    std::optional<Engine> engine;
    std::optional<Player> player;
};

} // namespace

TEST_F(AFaultyDesktop, KeepsPlayingAfterInvalidSamples)
{
    auto samples = sine(30);
    const float poisons[] = { std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
        1e38F, -std::numeric_limits<float>::max() };
    for (std::size_t i = 0; i < 400; ++i)
        samples[48000 + 13 * i] = poisons[i % std::size(poisons)];
    const auto file = system.folder() / "poisoned.wav";
    writeSound(file, samples);
    engine.emplace();
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
    const auto start = hw1->position();
    player.emplace(std::vector<std::string> { "pw-play", file });
    hw1->next(144000);
    EXPECT_TRUE(comesTo(*hw1, equalizedLevel));
    for (const float sample : hw1->samples(start))
        ASSERT_LE(std::abs(sample), 1.F);
}

TEST_F(AFaultyDesktop, IsEqualizedAgainAfterPipeWireWasKilled)
{
    start();
    EXPECT_TRUE(engine->next("connected").get<bool>());
    hw1.reset();
    player.reset();
    system.killPipeWire();
    EXPECT_FALSE(engine->next("connected").get<bool>());
    EXPECT_TRUE(send(preamp(preampDecibels))) << "the server does not answer";
    system.startPipeWire();
    EXPECT_TRUE(engine->next("connected").get<bool>());
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
    hw1.emplace("hw1");
    player.emplace(playTone);
    EXPECT_TRUE(comesTo(*hw1, equalizedLevel));
    EXPECT_LT(loudest(hw1->samples()), equalizedLimit);
}

TEST_F(AFaultyDesktop, HasItsStreamsMovedAgainAfterTheSessionManagerWasKilled)
{
    start();
    const auto stream = nodeOf("pw-play");
    for (int round = 0; round < 2; ++round) {
        system.killSessionManager();
        system.startSessionManager();
        EXPECT_TRUE(eventually([&] { return system.metadata(stream, "target.object") == "brimsound"; }));
        EXPECT_TRUE(player->running());
        EXPECT_TRUE(engine->process().running());
    }
    EXPECT_LT(loudest(hw1->samples()), equalizedLimit);

    // Some session managers remove the links, and link devices like these again only after PipeWire was
    // restarted too.
    hw1.reset();
    player.reset();
    system.killPipeWire();
    system.startPipeWire();
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
    hw1.emplace("hw1");
    player.emplace(playTone);
    EXPECT_TRUE(comesTo(*hw1, equalizedLevel));
}

TEST_F(AFaultyDesktop, IsHeardAgainWhenTheSessionManagerBringsItsDevicesBackLate)
{
    start();
    hw1.reset();
    player.reset();
    system.killSessionManager();
    // Hardware devices belong to the session manager and disappear with it.
    for (const auto* name : { "surround", "hw2", "hw1" })
        system.unplug(name);
    system.startSessionManager();
    // Longer than the engine's first wait for the output to be linked.
    std::this_thread::sleep_for(std::chrono::seconds(3));
    system.plugIn("hw1");
    ASSERT_TRUE(system.waitForDefault("hw1"));
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
    hw1.emplace("hw1");
    player.emplace(playTone);
    EXPECT_TRUE(comesTo(*hw1, equalizedLevel));
    EXPECT_LT(loudest(hw1->samples()), equalizedLimit);
}

TEST_F(AFaultyDesktop, AnswersWithoutPipeWireAndReportsItOnce)
{
    hw1.reset();
    system.killPipeWire();
    // Each attempt to connect writes a line to the log of PipeWire's library.
    const auto log = system.folder() / "library.log";
    const auto errors = system.folder() / "errors";
    {
        const EnvironmentVariable level("PIPEWIRE_DEBUG", "mod.protocol-native:4");
        const EnvironmentVariable file("PIPEWIRE_LOG", log.c_str());
        engine.emplace(errors);
    }
    EXPECT_TRUE(send(preamp(-3)));
    EXPECT_EQ(engine->next("vals")[0], -6);
    EXPECT_EQ(engine->next("vals")[0], -3);
    const auto socket = "runtime_dir:" + (system.folder() / "run").string();
    ASSERT_TRUE(eventually([&] { return countOf(socket, contentsOf(log)) >= 4; }))
        << "the server does not try again";
    EXPECT_THAT(
        contentsOf(errors), testing::MatchesRegex("mediaserverd: PipeWire cannot be reached[^\n]*\n"));
    EXPECT_TRUE(send(preamp(-12)));

    system.startPipeWire();
    EXPECT_TRUE(engine->next("connected").get<bool>());
    hw1.emplace("hw1");
    player.emplace(playTone);
    EXPECT_TRUE(comesTo(*hw1, sineLevel * std::pow(10, -12 / 20.)));
}

TEST_F(AFaultyDesktop, StaysEqualizedWhenRateAndQuantumChange)
{
    start();
    EXPECT_EQ(engine->next("rate"), 48000);
    const auto force = [&](const char* what, int value) {
        system.setMetadata("settings", 0, std::string("clock.force-") + what, std::to_string(value), "");
    };
    const auto begin = hw1->position();
    for (const int rate : { 44100, 96000, 48000 }) {
        force("rate", rate);
        EXPECT_EQ(engine->next("rate"), rate);
        EXPECT_TRUE(comesTo(*hw1, equalizedLevel)) << rate;
    }
    for (const int quantum : { 64, 2048, 37, 1024 }) {
        force("quantum", quantum);
        EXPECT_TRUE(comesTo(*hw1, equalizedLevel)) << quantum;
    }
    EXPECT_LT(loudest(hw1->samples(begin)), equalizedLimit);
}

TEST_F(AFaultyDesktop, FollowsAMixerUntilTheEngineEnds)
{
    start();
    // A volume change right after the start is not attributed to the user.
    EXPECT_TRUE(eventually([&] {
        outputOf({ "pactl", "set-sink-volume", "brimsound", "50%" });
        return isNear(level(hw1->next(24000)), equalizedLevel / 8);
    }));
    outputOf({ "pactl", "set-sink-volume", "brimsound", "100%" });
    EXPECT_TRUE(comesTo(*hw1, equalizedLevel));

    // The user can also change the output's volume and target, but they are not kept for the next run.
    const Recorder hw2("hw2");
    const auto output = nodeOf("brimsound.output");
    setVolume(output, "0.125");
    EXPECT_TRUE(comesTo(*hw1, equalizedLevel / 16));
    system.moveStream(output, "hw2");
    EXPECT_TRUE(comesTo(hw2, equalizedLevel / 16));
    outputOf({ "pactl", "set-sink-volume", "brimsound", "50%" });
    // The session manager saves such values after a delay, all at once, including the last one set.
    setVolume(nodeOf("pw-play"), "0.21875");
    ASSERT_TRUE(eventually([&] { return isStored("0.21875"); }));
    engine->stop();
    engine.emplace();
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
    EXPECT_TRUE(comesTo(*hw1, equalizedLevel * 0.21875 / 2));
    EXPECT_TRUE(comesTo(hw2, 0));
}

TEST_F(AFaultyDesktop, EqualizesEachOfTwentyStreams)
{
    // Each has a frequency of its own, so that none can hide another one.
    constexpr double amplitude = 0.05;
    constexpr int step = 300;
    constexpr int count = 20;
    Gains softest {};
    softest.fill(-12);
    storePreferences(softest);
    std::vector<std::filesystem::path> files;
    for (int stream = 1; stream <= count; ++stream) {
        std::vector<float> samples(static_cast<std::size_t>(48000 * 20));
        for (std::size_t i = 0; i < samples.size(); ++i)
            samples[i] = static_cast<float>(amplitude
                * std::sin(2 * std::numbers::pi * step * stream * static_cast<double>(i % 480) / 48000));
        files.push_back(system.folder() / (std::to_string(stream) + ".wav"));
        writeSound(files.back(), samples);
    }
    engine.emplace();
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
    const auto start = hw1->position();
    {
        std::list<Player> players;
        for (std::size_t i = 0; i < files.size(); ++i)
            players.emplace_back(std::vector<std::string> { i % 2 == 0 ? "pw-play" : "paplay", files[i] });
        ASSERT_TRUE(eventually([&] {
            const auto found = system.graph();
            int linked = 0;
            for (const auto& object : found)
                linked += object.value("type", "") == "PipeWire:Interface:Link" ? 1 : 0;
            // Two links for each stream, two of the output, and the recorder's two.
            return linked >= 2 * count + 4;
        }));
        hw1->next(48000);
    }
    const auto heard = hw1->samples(start);
    for (int stream = 1; stream <= count; ++stream) {
        const double level = loudestAt(heard, step * stream) / amplitude;
        EXPECT_GT(level, 0.063 / 2) << stream << " is not heard";
        EXPECT_LT(level, 0.5) << stream << " is not equalized";
    }
}

TEST_F(AFaultyDesktop, HasOneOfTwoEnginesAtATime)
{
    start();
    const auto begin = hw1->position();
    const auto errors = system.folder() / "errors";
    // In another session, with its own bus but the same PipeWire.
    const desktop::PrivateBus anotherBus;
    const Player second(
        { "sh", "-c", "exec \"$1\" --root \"$2\" 2>\"$3\"", "sh", MEDIASERVERD, root.path(), errors });
    ASSERT_TRUE(
        eventually([&] { return contentsOf(errors).find("another equalizer") != std::string::npos; }));
    EXPECT_TRUE(comesTo(*hw1, equalizedLevel));
    EXPECT_LT(loudest(hw1->samples(begin)), equalizedLimit);
    // It reports this only once, whatever devices appear and disappear.
    system.plugIn("hw3");
    system.unplug("hw3");
    EXPECT_TRUE(comesTo(*hw1, equalizedLevel));
    engine->stop();
    EXPECT_TRUE(comesTo(*hw1, equalizedLevel)) << "the second one takes over";
    EXPECT_EQ(countOf("another equalizer", contentsOf(errors)), 1u);
    EXPECT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
}

TEST_F(AFaultyDesktop, IsPlayedToWhileDevicesComeAndGo)
{
    start();
    for (int round = 0; round < 3; ++round) {
        hw1.reset();
        system.unplug("hw1");
        ASSERT_TRUE(system.waitForDefault("hw2"));
        EXPECT_TRUE(system.waitForTargets("brimsound.output", { "hw2" }));
        system.plugIn("hw1");
        ASSERT_TRUE(system.waitForDefault("hw1"));
        hw1.emplace("hw1");
        EXPECT_TRUE(comesTo(*hw1, equalizedLevel)) << round;
        EXPECT_LT(loudest(hw1->samples()), equalizedLimit);
    }
    EXPECT_TRUE(engine->process().running());
}

} // namespace brimsound::tests
