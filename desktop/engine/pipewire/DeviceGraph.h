// The nodes of the graph, and the device that the equalizer plays to.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace brimsound::engine {

/// Channel names in their order, such as { "FL", "FR" }.
using ChannelNames = std::vector<std::string>;

/// Keeps track of the nodes, ports and links in the registry; other objects are ignored. Properties are those
/// of the registry, such as "node.name".
class DeviceGraph {
public:
    struct Device {
        std::string name;
        /// The channels by which the node is linked.
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
    /// Whether another client has a sink of that name that is older than this client's. This client has none
    /// when its serial number is empty.
    bool hasOlderSink(const std::string& name, std::uint32_t client, const std::string& serial) const;

private:
    Device device(std::uint32_t node) const;

    std::map<std::uint32_t, Properties> _nodes;
    std::map<std::uint32_t, Properties> _ports;
    std::map<std::uint32_t, Properties> _links;
};

} // namespace brimsound::engine
