// The nodes of the graph, and what the equalizer's output plays to.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace brimsound::engine {

/// Channel names in their order, such as { "FL", "FR" }.
using ChannelNames = std::vector<std::string>;

/// Remembers what the registry tells. Properties are those of the registry, such as "node.name"; what is
/// neither a node, nor a port, nor a link is not remembered.
class DeviceGraph {
public:
    struct Device {
        std::string name;
        /// The channels that it is linked by.
        ChannelNames channels;
    };

    using Properties = std::map<std::string, std::string>;

    void nodeAdded(std::uint32_t id, Properties);
    void portAdded(std::uint32_t id, Properties);
    void linkAdded(std::uint32_t id, Properties);
    void removed(std::uint32_t id);

    /// The device that the node's ports are linked to.
    std::optional<Device> deviceOf(std::uint32_t outputNode) const;
    /// The sink with that node name.
    std::optional<Device> sinkNamed(const std::string& name) const;
    /// The registry's serial number of a node; empty when there is no such node.
    std::string serialOf(std::uint32_t node) const;
    /// Whether another client has had a sink of that name for longer than this one, which has none when its
    /// serial number is empty.
    bool hasOlderSink(const std::string& name, std::uint32_t client, const std::string& serial) const;

private:
    Device device(std::uint32_t node) const;

    std::map<std::uint32_t, Properties> _nodes;
    std::map<std::uint32_t, Properties> _ports;
    std::map<std::uint32_t, Properties> _links;
};

} // namespace brimsound::engine
