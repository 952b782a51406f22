#include "desktop/engine/pipewire/StreamRouting.h"

#include <gmock/gmock.h>

namespace brimsound::engine {

using testing::ElementsAre;
using testing::IsEmpty;

// Prints a write in failure messages.
void PrintTo(const MetadataWrite& write, std::ostream* out)
{
    *out << write.subject << " " << write.key << " = " << write.value.value_or("(deleted)") << " ("
         << write.type << ")";
}

namespace {

constexpr std::uint32_t sink = 40;
constexpr std::uint32_t output = 41;
constexpr std::uint32_t stream = 70;

MetadataWrite move(std::uint32_t subject)
{
    return { subject, "target.object", "Spa:String", "brimsound" };
}

MetadataWrite deletion(std::uint32_t subject, const std::string& key)
{
    return { subject, key, "", std::nullopt };
}

class Routing : public testing::Test {
protected:
    Routing()
    {
        routing.setOwnNodes(StreamRouting::OwnNodes { sink, "1040", output });
        routing.metadataReady();
        routing.defaultSinkChanged("hw1");
    }

    static StreamProperties plain()
    {
        return { { { "media.class", "Stream/Output/Audio" }, { "node.autoconnect", "true" } }, false };
    }

    static StreamProperties with(const std::string& key, const std::string& value)
    {
        auto properties = plain();
        properties.values[key] = value;
        return properties;
    }

    void appears(const StreamProperties& properties) { routing.streamChanged(stream, properties); }
    void targets(const char* key, const std::optional<std::string>& value)
    {
        routing.metadataChanged(stream, key, value);
    }
    /// Adds a stream that plays through the equalizer.
    void isRouted()
    {
        appears(plain());
        ASSERT_THAT(routing.takeWrites(), ElementsAre(move(stream)));
        targets("target.object", "brimsound");
    }

    StreamRouting routing;
};

} // namespace

TEST_F(Routing, MovesANewStreamOnceAndByName)
{
    appears(plain());
    EXPECT_THAT(routing.takeWrites(), ElementsAre(move(stream)));
    EXPECT_THAT(routing.takeWrites(), IsEmpty()) << "before the metadata is reported";
    targets("target.object", "brimsound");
    appears(plain());
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
}

TEST_F(Routing, MovesStreamsThatWereThereBeforeTheSink)
{
    StreamRouting late;
    late.streamChanged(stream, plain());
    late.metadataReady();
    EXPECT_THAT(late.takeWrites(), IsEmpty()) << "there is no sink yet";
    late.setOwnNodes(StreamRouting::OwnNodes { sink, "1040", output });
    EXPECT_THAT(late.takeWrites(), ElementsAre(move(stream)));
}

TEST_F(Routing, WaitsUntilItKnowsWhereTheUserHasStreams)
{
    StreamRouting late;
    late.setOwnNodes(StreamRouting::OwnNodes { sink, "1040", output });
    late.streamChanged(stream, plain());
    EXPECT_THAT(late.takeWrites(), IsEmpty());
    late.metadataChanged(stream, "target.object", "55");
    late.metadataReady();
    EXPECT_THAT(late.takeWrites(), IsEmpty());
}

TEST_F(Routing, LeavesTheDefaultAloneAndFollowsIt)
{
    isRouted();
    routing.defaultSinkChanged("hw2");
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
    routing.defaultSinkChanged("hw1");
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
}

TEST_F(Routing, LeavesStreamsAloneThatAreNotForAnyDevice)
{
    auto encoded = plain();
    encoded.encoded = true;
    const StreamProperties others[] = {
        with("target.object", "hw1"),
        with("node.target", "55"),
        with("node.link-group", "another-filter"),
        with("node.dont-reconnect", "true"),
        with("stream.capture.sink", "true"),
        with("media.class", "Stream/Input/Audio"),
        with("node.autoconnect", "false"),
        encoded,
    };
    for (const auto& properties : others) {
        appears(properties);
        EXPECT_THAT(routing.takeWrites(), IsEmpty());
    }
    auto unconnected = plain();
    unconnected.values.erase("node.autoconnect");
    appears(unconnected);
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
}

TEST_F(Routing, LeavesAStreamAloneThatTheUserMovedUntilItIsMovedBack)
{
    isRouted();
    targets("target.node", "55");
    targets("target.object", "1055");
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
    appears(plain());
    EXPECT_THAT(routing.takeWrites(), IsEmpty());

    // A mixer uses the serial number, which becomes invalid when the sink is replaced.
    targets("target.node", "40");
    targets("target.object", "1040");
    EXPECT_THAT(routing.takeWrites(), ElementsAre(deletion(stream, "target.node"), move(stream)));
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
}

TEST_F(Routing, LeavesAStreamAloneThatTheUserMovedToTheDefault)
{
    isRouted();
    targets("target.node", "-1");
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
    targets("target.object", "-1");
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
    EXPECT_THAT(routing.release(), IsEmpty());
}

TEST_F(Routing, IgnoresTargetsThatTheSessionManagerSetsItself)
{
    targets("target.node", "-1");
    appears(plain());
    EXPECT_THAT(routing.takeWrites(), ElementsAre(move(stream)));
}

TEST_F(Routing, LeavesAStreamWhereItWasInAnEarlierSession)
{
    targets("target.node", "55");
    appears(plain());
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
}

TEST_F(Routing, RestoresAnEarlierTargetThatArrivesLate)
{
    isRouted();
    targets("target.node", "55");
    EXPECT_THAT(routing.takeWrites(),
        ElementsAre(deletion(stream, "target.object"), deletion(stream, "target.node"),
            MetadataWrite { stream, "target.node", "Spa:Id", "55" }));
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
}

TEST_F(Routing, MovesAStreamAgainWhenItsTargetIsDeleted)
{
    isRouted();
    targets("target.object", std::nullopt);
    EXPECT_THAT(routing.takeWrites(), ElementsAre(move(stream)));
}

TEST_F(Routing, ForgetsStreamsThatEnded)
{
    isRouted();
    routing.streamRemoved(stream);
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
    appears(plain());
    EXPECT_THAT(routing.takeWrites(), ElementsAre(move(stream))) << "another stream with the same id";
}

TEST_F(Routing, MovesAStreamAgainWhoseKeysWereAllDeleted)
{
    isRouted();
    routing.metadataChanged(stream, std::nullopt, std::nullopt);
    EXPECT_THAT(routing.takeWrites(), ElementsAre(move(stream)));
    targets("target.object", "1055");
    targets("target.node", "55");
    ASSERT_THAT(routing.takeWrites(), IsEmpty());
    routing.metadataChanged(stream, std::nullopt, std::nullopt);
    EXPECT_THAT(routing.takeWrites(), ElementsAre(move(stream)));
}

TEST_F(Routing, MovesAllAgainWhenTheSessionManagerCameBack)
{
    isRouted();
    routing.metadataRemoved();
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
    routing.metadataReady();
    EXPECT_THAT(routing.takeWrites(), ElementsAre(move(stream)));
}

TEST_F(Routing, KeepsStreamsThatAnotherRunHadMoved)
{
    targets("target.object", "brimsound");
    appears(plain());
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
    EXPECT_THAT(
        routing.release(), ElementsAre(deletion(stream, "target.object"), deletion(stream, "target.node")));
}

TEST_F(Routing, MovesAllStreamsBackAtTheEndAndNoneAfterward)
{
    isRouted();
    routing.streamChanged(71, with("target.object", "hw2"));
    routing.streamChanged(72, plain());
    routing.metadataChanged(72, "target.object", "1055");
    ASSERT_THAT(routing.takeWrites(), IsEmpty());
    EXPECT_THAT(
        routing.release(), ElementsAre(deletion(stream, "target.object"), deletion(stream, "target.node")));
    routing.streamChanged(73, plain());
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
    EXPECT_THAT(routing.release(), IsEmpty());
}

TEST_F(Routing, DoesNotMoveBackStreamsOfAnotherEqualizer)
{
    isRouted();
    routing.setOwnNodes(std::nullopt);
    EXPECT_THAT(routing.release(), IsEmpty());
}

TEST_F(Routing, SendsTheOutputToTheLastDeviceWhenTheUserChoosesTheEqualizer)
{
    routing.defaultSinkChanged("hw2");
    routing.defaultSinkChanged("brimsound");
    EXPECT_THAT(
        routing.takeWrites(), ElementsAre(MetadataWrite { output, "target.object", "Spa:String", "hw2" }));
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
    routing.defaultSinkChanged("hw1");
    EXPECT_THAT(routing.takeWrites(), ElementsAre(deletion(output, "target.object")));
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
}

TEST_F(Routing, RemembersTheLastDeviceWhileThereIsNone)
{
    routing.defaultSinkChanged("hw2");
    routing.defaultSinkChanged("");
    routing.defaultSinkChanged("brimsound");
    EXPECT_THAT(
        routing.takeWrites(), ElementsAre(MetadataWrite { output, "target.object", "Spa:String", "hw2" }));
}

TEST_F(Routing, ForgetsTheDefaultWithTheSessionManager)
{
    routing.defaultSinkChanged("brimsound");
    ASSERT_EQ(routing.takeWrites().size(), 1u);
    routing.metadataRemoved();
    routing.metadataReady();
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
}

TEST_F(Routing, LetsTheSessionManagerChooseWithoutAKnownDevice)
{
    StreamRouting fresh;
    fresh.setOwnNodes(StreamRouting::OwnNodes { sink, "1040", output });
    fresh.metadataReady();
    fresh.defaultSinkChanged("brimsound");
    EXPECT_THAT(fresh.takeWrites(), IsEmpty());
}

TEST_F(Routing, LeavesTheOutputWhereTheUserMovedIt)
{
    routing.metadataChanged(output, "target.node", "55");
    routing.metadataChanged(output, "target.object", "1055");
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
    routing.defaultSinkChanged("brimsound");
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
    routing.defaultSinkChanged("hw1");
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
}

TEST_F(Routing, LeavesTheOutputWhereTheUserMovedItWhileTheEqualizerWasTheDefault)
{
    routing.defaultSinkChanged("brimsound");
    ASSERT_EQ(routing.takeWrites().size(), 1u);
    routing.metadataChanged(output, "target.object", "1055");
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
    routing.defaultSinkChanged("hw2");
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
    // The target of an earlier move.
    routing.metadataChanged(output, "target.object", "hw1");
    EXPECT_THAT(routing.takeWrites(), IsEmpty());
}

TEST_F(Routing, DropsTheOutputsTargetOfAnEarlierRun)
{
    routing.metadataChanged(output, "target.node", "55");
    EXPECT_THAT(routing.takeWrites(), ElementsAre(deletion(output, "target.node")));
}

TEST_F(Routing, SendsANewOutputToTheLastDeviceToo)
{
    routing.defaultSinkChanged("brimsound");
    ASSERT_EQ(routing.takeWrites().size(), 1u);
    routing.setOwnNodes(StreamRouting::OwnNodes { 50, "1050", 51 });
    EXPECT_THAT(
        routing.takeWrites(), ElementsAre(MetadataWrite { 51, "target.object", "Spa:String", "hw1" }));
}

} // namespace brimsound::engine
