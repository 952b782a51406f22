// The effect of the settings on the sound at the device.
#include "platform/desktop/bus/SessionBus.h"
#include "settings/tweak.h"
#include "tests/end_to_end/sound/Desktop.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/MediaServer.h"

#include <cmath>
#include <numbers>
#include <sys/stat.h>

namespace brimsound::tests {
namespace {

constexpr std::size_t oneKilohertz = 5;

Gains with(double preampGain, std::size_t slider, double gain)
{
    auto gains = preamp(preampGain);
    gains[slider] = gain;
    return gains;
}

/// The largest difference from a 1 kHz sine of slowly changing amplitude. A step in the gain shows in it.
double largestStep(const Samples& samples)
{
    const double twice = 2 * std::cos(2 * std::numbers::pi / 48);
    double largest = 0;
    for (std::size_t i = 2; i < samples.size(); ++i)
        largest = std::max(largest,
            std::abs(static_cast<double>(samples[i]) + static_cast<double>(samples[i - 2])
                - twice * static_cast<double>(samples[i - 1])));
    return largest;
}

double peak(const Samples& samples)
{
    float peak = 0;
    for (const float sample : samples)
        peak = std::max(peak, std::abs(sample));
    return static_cast<double>(peak);
}

class EqualizedSound : public ADesktop {
protected:
    void start()
    {
        engine.emplace();
        player.emplace(playTone);
        ASSERT_TRUE(comesTo(hw1, equalizedLevel));
    }

    Recorder hw1 { "hw1" };
    std::optional<Engine> engine;
    std::optional<Player> player;
};

} // namespace

TEST_F(EqualizedSound, FollowsTheSlidersAndTheFile)
{
    start();
    ASSERT_TRUE(send(with(preampDecibels, oneKilohertz, 6)));
    EXPECT_TRUE(comesTo(hw1, sineLevel));
    EXPECT_NEAR(decibels(level(hw1.next(9600)) / sineLevel), 0, 0.05);
    ASSERT_TRUE(send(with(0, oneKilohertz, -12)));
    EXPECT_TRUE(comesTo(hw1, sineLevel * std::pow(10, -12 / 20.)));
    EXPECT_NEAR(decibels(level(hw1.next(9600)) / sineLevel), -12, 0.05);
    storePreferences(preamp(preampDecibels));
    postSettingsFinished();
    EXPECT_TRUE(comesTo(hw1, equalizedLevel));
}

TEST_F(EqualizedSound, StaysWhenGainsAreRefusedAndWhileTheFileIsDamaged)
{
    start();
    EXPECT_FALSE(send(with(std::nan(""), 1, 0)));
    EXPECT_FALSE(send(with(0, oneKilohertz, std::numeric_limits<double>::infinity())));
    root.write(preferencesPath, "bplist00 and then nothing");
    postSettingsFinished();
    postSettingsChanged();
    const auto start = hw1.position();
    EXPECT_TRUE(comesTo(hw1, equalizedLevel));
    hw1.next(24000);
    EXPECT_LT(loudest(hw1.samples(start)), equalizedLimit);
    EXPECT_TRUE(comesTo(hw1, equalizedLevel));
}

TEST_F(EqualizedSound, LimitsGainsToTheSlidersRange)
{
    start();
    ASSERT_TRUE(send(with(-40, oneKilohertz, 100)));
    EXPECT_TRUE(comesTo(hw1, sineLevel));
}

TEST_F(EqualizedSound, IsSwitchedOffAndOnWithoutAClick)
{
    start();
    const auto switchTo = [&](bool disabled) {
        storePreferences(preamp(preampDecibels), { { filterDisabledKey, disabled } });
        postSettingsChanged();
        return comesTo(hw1, disabled ? sineLevel : equalizedLevel);
    };
    // On a busy machine a recorder can lose a block, which looks like a step, but not every time.
    double smallest = 1;
    for (int attempt = 0; attempt < 5 && smallest > 1e-4; ++attempt) {
        const auto begin = hw1.position();
        ASSERT_TRUE(switchTo(true));
        ASSERT_TRUE(switchTo(false));
        smallest = std::min(smallest, largestStep(hw1.samples(begin)));
    }
    // A change without smoothing would be a step of 0.1.
    EXPECT_LT(smallest, 1e-4);
}

TEST_F(EqualizedSound, KeepsTheGainsOfAFileWithTheFilterSwitchedOff)
{
    storePreferences(preamp(preampDecibels), { { filterDisabledKey, true } });
    engine.emplace();
    player.emplace(playTone);
    ASSERT_TRUE(comesTo(hw1, sineLevel));
    ASSERT_TRUE(send(preamp(-12)));
    storePreferences(preamp(-12), { { filterDisabledKey, false } });
    postSettingsChanged();
    EXPECT_TRUE(comesTo(hw1, sineLevel * std::pow(10, -12 / 20.)));
}

TEST_F(EqualizedSound, StaysBelowFullScaleUnlessThatIsNotChecked)
{
    start();
    ASSERT_TRUE(send(with(12, oneKilohertz, 12)));
    EXPECT_TRUE(comesTo(hw1, 0.9886 * std::numbers::sqrt2 / 2));
    EXPECT_LE(peak(hw1.next(9600)), 0.98856);
    EXPECT_NEAR(engine->next("headroom").get<double>(), -6, 0.1);
    EXPECT_NEAR(engine->next("headroom").get<double>(), 24, 0.5);
    EXPECT_GT(engine->next("limited").get<int>(), 0);

    storePreferences(preamp(0), { { checkingDisabledKey, true } });
    postSettingsChanged();
    EXPECT_TRUE(comesTo(hw1, sineLevel * std::pow(10, 24 / 20.)));
}

TEST_F(EqualizedSound, IsUnchangedWhenTheEqualizerIsSwitchedOff)
{
    storePreferences(preamp(preampDecibels), { { enabledKey, false } });
    engine.emplace();
    player.emplace(playTone);
    EXPECT_TRUE(comesTo(hw1, sineLevel));
    EXPECT_FALSE(system.node("brimsound"));
    EXPECT_EQ(system.metadata(nodeOf("pw-play"), "target.object"), std::nullopt);
    EXPECT_TRUE(send(preamp(0)));
}

TEST_F(EqualizedSound, IsUnchangedWithASilentServer)
{
    const MediaServer server;
    player.emplace(playTone);
    EXPECT_TRUE(comesTo(hw1, sineLevel));
    EXPECT_FALSE(system.node("brimsound"));
    EXPECT_EQ(system.metadata(nodeOf("pw-play"), "target.object"), std::nullopt);
}

TEST_F(EqualizedSound, IsEqualizedWithAWindowButNotWithAScript)
{
    const auto isServed = [] { return desktop::SessionBus::shared().hasOwner(messagingCenterName); };
    player.emplace(playTone);
    {
        // A pipe that stays open.
        const auto script = system.folder() / "script";
        ASSERT_EQ(mkfifo(script.c_str(), 0600), 0);
        const Player headless({ "sh", "-c", R"(exec "$1" --headless --root "$2" --script - 0<>"$3")", "sh",
            BRIMSOUND, root.path(), script });
        ASSERT_TRUE(eventually(isServed));
        hw1.next(24000);
        EXPECT_TRUE(comesTo(hw1, sineLevel));
        EXPECT_FALSE(system.node("brimsound"));
    }
    ASSERT_TRUE(eventually([&] { return !isServed(); }));
    {
        // The window is not shown anywhere.
        const EnvironmentVariable noScreen("QT_QPA_PLATFORM", "minimal");
        const Player window({ BRIMSOUND, "--root", root.path() });
        EXPECT_TRUE(comesTo(hw1, equalizedLevel));
        EXPECT_TRUE(system.node("brimsound"));
    }
    EXPECT_TRUE(comesTo(hw1, sineLevel)) << "the window is closed";
}

TEST_F(EqualizedSound, ReportsItsOutput)
{
    start();
    system.chooseDefault("surround");
    EXPECT_TRUE(engine->next("connected").get<bool>());
    EXPECT_EQ(engine->next("output"), "hw1");
    EXPECT_EQ(engine->next("rate"), 48000);
    auto output = engine->next("output").get<std::string>();
    // Between two devices there may be none.
    if (output.empty())
        output = engine->next("output").get<std::string>();
    EXPECT_EQ(output, "surround");
}

TEST_F(EqualizedSound, HasTheChannelsOfTheDevice)
{
    const std::vector<std::string> channels { "FL", "FR", "FC", "LFE", "RL", "RR" };
    std::vector<float> interleaved;
    for (const float sample : sine(30)) {
        for (std::size_t channel = 0; channel < channels.size(); ++channel)
            interleaved.push_back(sample * (1.F - 0.1F * static_cast<float>(channel)));
    }
    const auto six = system.folder() / "six.wav";
    writeInterleaved(six, interleaved, 6, 48000);

    system.chooseDefault("surround");
    ASSERT_TRUE(system.waitForDefault("surround"));
    const Recorder surround("surround", channels);
    const auto levelsOf = [&](const std::vector<std::string>& command) {
        const Player playing(command);
        EXPECT_TRUE(eventually([&] { return level(surround.next(9600)) > 0.01; }));
        surround.next(24000);
        std::vector<double> found;
        const auto from = surround.position();
        surround.next(24000);
        for (std::size_t channel = 0; channel < channels.size(); ++channel)
            found.push_back(level(surround.samples(from, channel)));
        return found;
    };
    const std::vector<std::string> playSix { "pw-play", six };
    const auto sixAsTheyAre = levelsOf(playSix);
    const auto stereoAsItIs = levelsOf(playTone);

    engine.emplace();
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "surround" }));
    EXPECT_EQ(engine->next("layout"), nlohmann::json(channels));
    const auto sixEqualized = levelsOf(playSix);
    const auto stereoEqualized = levelsOf(playTone);
    for (std::size_t channel = 0; channel < channels.size(); ++channel) {
        EXPECT_NEAR(sixEqualized[channel], sixAsTheyAre[channel] * 0.5011872, 0.002) << channels[channel];
        EXPECT_NEAR(stereoEqualized[channel], stereoAsItIs[channel] * 0.5011872, 0.002) << channels[channel];
    }
}

TEST_F(EqualizedSound, KeepsItsChannelsWhileThereIsNoDevice)
{
    system.chooseDefault("surround");
    ASSERT_TRUE(system.waitForDefault("surround"));
    engine.emplace();
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "surround" }));
    const auto sink = nodeOf("brimsound");
    for (const auto* name : { "hw1", "hw2", "surround" })
        system.unplug(name);
    ASSERT_TRUE(system.waitForDefault("brimsound"));
    system.plugIn("surround");
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "surround" }));
    EXPECT_EQ(nodeOf("brimsound"), sink) << "the sink was replaced";
}

TEST_F(EqualizedSound, ChangesItsChannelsWithTheDeviceAndIsNeverLouder)
{
    start();
    const Recorder surround("surround", { "FL", "FR", "FC", "LFE", "RL", "RR" });
    EXPECT_EQ(engine->next("layout").size(), 2u);
    const auto start = hw1.position();
    for (int round = 0; round < 3; ++round) {
        system.chooseDefault("surround");
        EXPECT_EQ(engine->next("layout").size(), 6u);
        EXPECT_TRUE(comesTo(surround, equalizedLevel));
        system.chooseDefault("hw1");
        EXPECT_EQ(engine->next("layout").size(), 2u);
        EXPECT_TRUE(comesTo(hw1, equalizedLevel));
    }
    EXPECT_TRUE(comesTo(surround, 0));
    EXPECT_LT(loudest(hw1.samples(start)), equalizedLimit);
    EXPECT_LT(loudest(surround.samples()), equalizedLimit);
    EXPECT_TRUE(
        eventually([&] { return system.targetsOf("brimsound.output") == std::set<std::string> { "hw1" }; }));

    // Only the part of a new pair that differs is reported.
    system.setMetadata("settings", 0, "clock.force-rate", "44100", "");
    EXPECT_EQ(engine->next("rate"), 44100);
    ASSERT_TRUE(send(preamp(-3)));
    EXPECT_NEAR(engine->next("headroom").get<double>(), -3, 0.01);
}

} // namespace brimsound::tests
