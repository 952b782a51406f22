#include "desktop/engine/pipewire/ChannelLayout.h"
#include "desktop/engine/pipewire/DeviceGraph.h"

#include <gmock/gmock.h>

namespace brimsound::engine {

using testing::ElementsAre;

namespace {

class AGraph : public testing::Test {
protected:
    void sink(std::uint32_t id, const std::string& name, const std::string& client = "30")
    {
        graph.nodeAdded(id,
            { { "media.class", "Audio/Sink" }, { "node.name", name }, { "client.id", client },
                { "object.serial", std::to_string(1000 + id) } });
    }

    void port(std::uint32_t id, std::uint32_t node, const std::string& number, const std::string& channel,
        const std::string& direction = "in")
    {
        graph.portAdded(id,
            { { "node.id", std::to_string(node) }, { "port.id", number }, { "port.direction", direction },
                { "audio.channel", channel } });
    }

    DeviceGraph graph;
};

} // namespace

TEST_F(AGraph, FindsTheDeviceThatANodeIsLinkedTo)
{
    sink(50, "hw1");
    sink(60, "hw2");
    graph.nodeAdded(41, { { "media.class", "Stream/Output/Audio" } });
    graph.linkAdded(80, { { "link.output.node", "42" }, { "link.input.node", "50" } });
    EXPECT_FALSE(graph.deviceOf(41));
    graph.linkAdded(90, { { "link.output.node", "41" }, { "link.input.node", "60" } });
    EXPECT_EQ(graph.deviceOf(41)->name, "hw2");
    graph.removed(90);
    EXPECT_FALSE(graph.deviceOf(41));
}

TEST_F(AGraph, IgnoresADeviceThatWasRemovedBeforeItsLinks)
{
    sink(60, "hw2");
    graph.linkAdded(90, { { "link.output.node", "41" }, { "link.input.node", "60" } });
    graph.removed(60);
    EXPECT_FALSE(graph.deviceOf(41));
}

TEST_F(AGraph, ReturnsADevicesChannelsInOrder)
{
    sink(50, "hw1");
    port(71, 50, "1", "FR");
    port(72, 50, "10", "RR");
    port(70, 50, "0", "FL");
    port(73, 50, "2", "FC");
    port(80, 50, "0", "FL", "out");
    port(81, 51, "0", "LFE");
    EXPECT_THAT(graph.sinkNamed("hw1")->channels, ElementsAre("FL", "FR", "FC", "RR"));
    EXPECT_FALSE(graph.sinkNamed("hw2"));
    graph.removed(72);
    EXPECT_THAT(graph.sinkNamed("hw1")->channels, ElementsAre("FL", "FR", "FC"));
}

TEST_F(AGraph, DoesNotMistakeOtherNodesForASink)
{
    graph.nodeAdded(50, { { "media.class", "Audio/Source" }, { "node.name", "hw1" } });
    EXPECT_FALSE(graph.sinkNamed("hw1"));
}

TEST_F(AGraph, FindsTheOlderSinkOfAnotherClient)
{
    EXPECT_FALSE(graph.hasOlderSink("brimsound", 30, ""));
    sink(50, "brimsound", "30");
    EXPECT_FALSE(graph.hasOlderSink("brimsound", 30, "1050")) << "its own";
    EXPECT_FALSE(graph.hasOlderSink("brimsound", 30, "1055")) << "its own earlier one";
    sink(60, "brimsound", "31");
    EXPECT_FALSE(graph.hasOlderSink("brimsound", 30, "1050"));
    EXPECT_TRUE(graph.hasOlderSink("brimsound", 30, "1070"));
    EXPECT_TRUE(graph.hasOlderSink("brimsound", 30, "")) << "it has none yet";
    EXPECT_TRUE(graph.hasOlderSink("brimsound", 31, "1060"));
}

TEST(ALayout, IsTheDevicesOwn)
{
    const ChannelNames surround { "FL", "FR", "FC", "LFE", "RL", "RR" };
    ASSERT_TRUE(layoutFor(surround));
    EXPECT_EQ(namesOf(*layoutFor(surround)), surround);
    EXPECT_EQ(namesOf(*layoutFor({ "MONO" })), ChannelNames { "MONO" });
    EXPECT_EQ(layoutFor({ "FL", "FR" }), stereo);
}

TEST(ALayout, IsStereoWithoutChannelPositionsOrWithTooManyChannels)
{
    EXPECT_EQ(layoutFor({ "AUX0", "AUX1", "AUX2" }), stereo);
    EXPECT_EQ(layoutFor({ "FL", "somewhere" }), stereo);
    EXPECT_EQ(layoutFor(ChannelNames(9, "FL")), stereo);
    EXPECT_EQ(layoutFor({}), std::nullopt) << "the channels are unknown";
}

} // namespace brimsound::engine
