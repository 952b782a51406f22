// Where streams play, measured by the sound at the devices.
#include "tests/end_to_end/sound/Desktop.h"
#include "tests/support/sound/EncodedStream.h"

#include <csignal>

namespace brimsound::tests {
namespace {

using Targets = std::set<std::string>;

class APlayingDesktop : public ADesktop {
protected:
    /// Starts a stream that plays through the equalizer to hw1.
    void playEqualized()
    {
        engine.emplace();
        player.emplace(playTone);
        ASSERT_TRUE(comesTo(hw1, equalizedLevel));
    }

    Recorder hw1 { "hw1" };
    Recorder hw2 { "hw2" };
    std::optional<Engine> engine;
    std::optional<Player> player;
};

} // namespace

TEST_F(APlayingDesktop, EqualizesANewStreamFromTheStart)
{
    engine.emplace();
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
    for (const auto* program : { "pw-play", "paplay" }) {
        const auto start = hw1.position();
        const Player playing({ program, tone });
        ASSERT_TRUE(comesTo(hw1, equalizedLevel)) << program;
        EXPECT_LT(loudest(hw1.samples(start)), equalizedLimit) << program;
    }
    EXPECT_EQ(loudest(hw2.samples()), 0);
}

TEST_F(APlayingDesktop, IsEqualizedWhileItPlays)
{
    player.emplace(playTone);
    ASSERT_TRUE(comesTo(hw1, sineLevel));
    engine.emplace();
    ASSERT_TRUE(comesTo(hw1, equalizedLevel));
    EXPECT_EQ(system.defaultSink(), "hw1");
    EXPECT_LE(longestGap(hw1.samples(), sineLevel), 0.2);
}

TEST_F(APlayingDesktop, PlaysToTheOutputThatTheUserPicks)
{
    playEqualized();
    const auto start1 = hw1.position();
    for (auto* device : { &hw2, &hw1 }) {
        const auto* name = device == &hw2 ? "hw2" : "hw1";
        system.chooseDefault(name);
        EXPECT_TRUE(comesTo(*device, equalizedLevel)) << name;
        EXPECT_TRUE(comesTo(device == &hw2 ? hw1 : hw2, 0)) << name;
        EXPECT_EQ(system.defaultSink(), name);
    }
    EXPECT_LT(loudest(hw1.samples(start1)), equalizedLimit);
    EXPECT_LT(loudest(hw2.samples()), equalizedLimit);
}

TEST_F(APlayingDesktop, PlaysToTheNextOutputWhenOneIsUnpluggedAndBack)
{
    // Not pw-play: some versions of it assume that the file has ended when a device returns.
    engine.emplace();
    player.emplace(std::vector<std::string> { "paplay", tone });
    ASSERT_TRUE(comesTo(hw1, equalizedLevel));
    const auto before = hw1.position();
    system.unplug("hw1");
    EXPECT_TRUE(comesTo(hw2, equalizedLevel));
    EXPECT_LT(loudest(hw1.samples(before)), equalizedLimit);
    system.plugIn("hw1");
    ASSERT_TRUE(system.waitForDefault("hw1"));
    const Recorder returned("hw1");
    EXPECT_TRUE(comesTo(returned, equalizedLevel));
    EXPECT_TRUE(comesTo(hw2, 0));
    EXPECT_LT(loudest(returned.samples()), equalizedLimit);
    EXPECT_LT(loudest(hw2.samples()), equalizedLimit);
}

TEST_F(APlayingDesktop, KeepsPlayingAfterTheEngineIsKilledAndWithTheNextOne)
{
    playEqualized();
    auto start = hw1.position();
    engine->kill();
    EXPECT_TRUE(comesTo(hw1, sineLevel)) << "as it is";
    EXPECT_LE(longestGap(hw1.samples(start), equalizedLevel), 0.2);
    start = hw1.position();
    engine.emplace();
    EXPECT_TRUE(comesTo(hw1, equalizedLevel));
    EXPECT_LE(longestGap(hw1.samples(start), equalizedLevel), 0.2);
}

TEST_F(APlayingDesktop, HasAllStreamsMovedBackWhenTheEngineEnds)
{
    playEqualized();
    const auto stream = nodeOf("pw-play");
    ASSERT_EQ(system.metadata(stream, "target.object"), "brimsound");
    for (const int signal : { SIGTERM, SIGINT }) {
        const auto start = hw1.position();
        engine->process().signal(signal);
        EXPECT_EQ(engine->process().exitStatus(std::chrono::seconds(10)), 0);
        EXPECT_TRUE(comesTo(hw1, sineLevel));
        EXPECT_EQ(system.metadata(stream, "target.object"), std::nullopt);
        EXPECT_EQ(system.metadata(stream, "target.node"), std::nullopt);
        EXPECT_FALSE(system.node("brimsound"));
        EXPECT_LE(longestGap(hw1.samples(start), equalizedLevel), 0.2);
        engine.emplace();
        EXPECT_TRUE(comesTo(hw1, equalizedLevel));
    }
}

TEST_F(APlayingDesktop, KeepsTheVolumeKeysOnTheDevice)
{
    playEqualized();
    outputOf({ "pactl", "set-sink-volume", "@DEFAULT_SINK@", "50%" });
    EXPECT_THAT(outputOf({ "pactl", "get-sink-volume", "hw1" }), testing::HasSubstr(" 50%"));
    EXPECT_THAT(outputOf({ "pactl", "get-sink-volume", "brimsound" }), testing::HasSubstr("100%"));
}

TEST_F(APlayingDesktop, LeavesAStreamAloneThatTheUserMovedUntilItIsMovedBack)
{
    playEqualized();
    const auto stream = nodeOf("pw-play");
    system.moveStream(stream, "hw2");
    EXPECT_TRUE(comesTo(hw2, sineLevel));
    EXPECT_TRUE(comesTo(hw1, 0));
    engine->stop();
    engine.emplace();
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
    EXPECT_TRUE(comesTo(hw2, sineLevel)) << "the next engine moved it";
    system.moveStream(stream, "brimsound");
    EXPECT_TRUE(comesTo(hw1, equalizedLevel));
    EXPECT_TRUE(eventually([&] { return system.metadata(stream, "target.object") == "brimsound"; }));
}

TEST_F(APlayingDesktop, LeavesAStreamAloneThatTheUserMovedToTheDefault)
{
    playEqualized();
    const auto stream = nodeOf("pw-play");
    system.moveStreamToDefault(stream);
    EXPECT_TRUE(comesTo(hw1, sineLevel));
    EXPECT_EQ(system.metadata(stream, "target.object"), "-1");
}

TEST_F(APlayingDesktop, LeavesAStreamAloneThatAMixerMoved)
{
    engine.emplace();
    player.emplace(std::vector<std::string> { "paplay", tone });
    ASSERT_TRUE(comesTo(hw1, equalizedLevel));
    std::string input;
    // paplay's stream is the only one that is not a filter's.
    for (const auto& object : system.graph()) {
        if (object.value("type", "") == "PipeWire:Interface:Node"
            && object.at("info").at("props").value("node.name", "") == "paplay")
            input = object.at("info").at("props").at("object.serial").dump();
    }
    // The server ignores a move if it has not noticed the previous one.
    const auto move = [&](const std::string& sink) {
        return eventually([&] {
            outputOf({ "pactl", "move-sink-input", input, sink });
            return system.targetsOf("paplay") == Targets { sink };
        });
    };
    EXPECT_TRUE(move("hw2"));
    EXPECT_TRUE(comesTo(hw2, sineLevel));
    EXPECT_TRUE(move("brimsound"));
    EXPECT_TRUE(comesTo(hw1, equalizedLevel));
    EXPECT_TRUE(move("hw1"));
    EXPECT_TRUE(comesTo(hw1, sineLevel));
}

TEST_F(APlayingDesktop, LeavesStreamsAloneThatAskForADevice)
{
    engine.emplace();
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
    const std::vector<std::string> commands[] = { { "pw-play", "--target", "hw2", tone },
        { "paplay", "--device=hw2", tone }, { "paplay", "--device=hw1", tone } };
    for (const auto& command : commands) {
        const Player playing(command);
        const auto& device = command[1].ends_with("hw1") ? hw1 : hw2;
        EXPECT_TRUE(comesTo(device, sineLevel)) << command[0] << " " << command[1];
        const auto stream = nodeOf(command[0]);
        EXPECT_NE(system.metadata(stream, "target.object"), "brimsound");
    }
}

TEST_F(APlayingDesktop, LeavesFiltersOfOtherProgramsAlone)
{
    engine.emplace();
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
    const Player loopback({ "pw-loopback", "-n", "other", "--capture-props",
        "media.class=Audio/Sink node.name=other.sink", "--playback-props", "node.name=other.output" });
    ASSERT_TRUE(eventually([&] { return system.node("other.sink") && system.node("other.output"); }));
    const auto output = *system.node("other.output");
    ASSERT_TRUE(system.waitForTargets("other.output", { "hw1" }));
    const Player playing({ "pw-play", "--target", "other.sink", tone });
    EXPECT_TRUE(comesTo(hw1, sineLevel));
    EXPECT_EQ(system.metadata(output, "target.object"), std::nullopt);
}

TEST_F(APlayingDesktop, LeavesEncodedStreamsAlone)
{
    engine.emplace();
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
    const EncodedStream encoded(EncodedStream::Offers::EncodedAlone);
    const auto stream = nodeOf("encoded");
    // A stream that is started after it is also handled after it.
    player.emplace(playTone);
    ASSERT_TRUE(comesTo(hw1, equalizedLevel));
    EXPECT_EQ(system.metadata(stream, "target.object"), std::nullopt);
}

TEST_F(APlayingDesktop, EqualizesStreamsThatAlsoSupportDecodedSound)
{
    engine.emplace();
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
    const EncodedStream decoded(EncodedStream::Offers::RawToo);
    const auto stream = nodeOf("encoded");
    EXPECT_TRUE(eventually([&] { return system.metadata(stream, "target.object") == "brimsound"; }));
}

TEST_F(APlayingDesktop, PlaysToTheLastDeviceWhenTheUserChoosesTheEqualizer)
{
    playEqualized();
    system.chooseDefault("hw2");
    ASSERT_TRUE(comesTo(hw2, equalizedLevel));
    const auto start = hw2.position();
    system.chooseDefault("brimsound");
    ASSERT_TRUE(system.waitForDefault("brimsound"));
    // Otherwise it would play to hw1, which has the higher priority.
    EXPECT_TRUE(
        eventually([&] { return system.metadata(nodeOf("brimsound.output"), "target.object") == "hw2"; }));
    EXPECT_TRUE(system.waitForTargets("brimsound.output", { "hw2" }));
    EXPECT_TRUE(comesTo(hw2, equalizedLevel));
    EXPECT_TRUE(comesTo(hw1, 0));
    EXPECT_EQ(system.defaultSink(), "brimsound");
    EXPECT_LT(loudest(hw2.samples(start)), equalizedLimit);
    EXPECT_LT(loudest(hw1.samples()), equalizedLimit) << "feedback";

    system.chooseDefault("hw1");
    EXPECT_TRUE(comesTo(hw1, equalizedLevel));
    EXPECT_TRUE(comesTo(hw2, 0));
}

TEST_F(APlayingDesktop, HasNoFeedbackWhateverTheOutputsTargetIs)
{
    playEqualized();
    system.setMetadata("default", nodeOf("brimsound.output"), "target.object", "brimsound", "Spa:String");
    system.chooseDefault("brimsound");
    ASSERT_TRUE(system.waitForDefault("brimsound"));
    const auto start = hw1.position();
    hw1.next(48000);
    EXPECT_FALSE(system.targetsOf("brimsound.output").contains("brimsound"));
    EXPECT_LT(loudest(hw1.samples(start)), equalizedLimit);
}

namespace {

class ADesktopWithoutDevices : public ADesktop {
protected:
    ADesktopWithoutDevices()
        : ADesktop(SoundSystem::Devices::None)
    {
    }
};

} // namespace

TEST_F(ADesktopWithoutDevices, PlaysWhenOneIsPluggedIn)
{
    Engine engine;
    ASSERT_TRUE(system.waitForDefault("brimsound"));
    Player playing(playTone);
    ASSERT_TRUE(system.waitForTargets("pw-play", { "brimsound" }));
    EXPECT_EQ(system.targetsOf("brimsound.output"), Targets {});
    system.plugIn("hw1");
    ASSERT_TRUE(system.waitForDefault("hw1"));
    const Recorder hw1("hw1");
    EXPECT_TRUE(comesTo(hw1, equalizedLevel));
    EXPECT_EQ(engine.next("output"), "hw1");
    EXPECT_TRUE(playing.running());
    EXPECT_TRUE(engine.process().running());
}

TEST_F(ADesktopWithoutDevices, LetsOneSuspendWhenNothingPlays)
{
    const auto stateOf = [this](const std::string& name) {
        std::string state;
        const auto id = system.node(name);
        for (const auto& object : system.graph()) {
            if (object.at("id") == id)
                state = object.at("info").value("state", "");
        }
        return state;
    };
    system.plugIn("hw1");
    const Engine engine;
    ASSERT_TRUE(system.waitForTargets("brimsound.output", { "hw1" }));
    for (int round = 0; round < 2; ++round) {
        const auto player = std::make_unique<Player>(playTone);
        ASSERT_TRUE(eventually([&] { return stateOf("hw1") == "running"; }));
        ASSERT_TRUE(eventually([&] { return stateOf("brimsound") == "running"; }));
        player->signal(SIGTERM);
        EXPECT_TRUE(eventually([&] { return stateOf("hw1") != "running"; }));
    }
}

TEST_F(APlayingDesktop, KeepsPlayingWhileThereIsNoDevice)
{
    const auto threeSeconds = system.folder() / "three.wav";
    writeSound(threeSeconds, sine(3));
    playEqualized();
    for (const auto* name : { "surround", "hw2", "hw1" })
        system.unplug(name);
    ASSERT_TRUE(system.waitForDefault("brimsound"));
    EXPECT_EQ(system.targetsOf("brimsound.output"), Targets {});
    // Programs keep playing at the normal speed.
    const auto start = std::chrono::steady_clock::now();
    Player playing({ "pw-play", threeSeconds });
    EXPECT_EQ(playing.exitStatus(std::chrono::seconds(20)), 0);
    EXPECT_GT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(2500));
    system.plugIn("hw1");
    ASSERT_TRUE(system.waitForDefault("hw1"));
    const Recorder returned("hw1");
    EXPECT_TRUE(comesTo(returned, equalizedLevel));
    EXPECT_LT(loudest(returned.samples()), equalizedLimit);
}

} // namespace brimsound::tests
