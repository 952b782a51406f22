#include "desktop/engine/pipewire/DeviceGraph.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace brimsound::engine {

namespace {

std::string valueOf(const DeviceGraph::Properties& properties, const char* key)
{
    const auto found = properties.find(key);
    return found == properties.end() ? std::string() : found->second;
}

std::uint64_t number(const std::string& text)
{
    std::uint64_t value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

bool isSink(const DeviceGraph::Properties& node, const std::string& name)
{
    return valueOf(node, "media.class") == "Audio/Sink" && valueOf(node, "node.name") == name;
}

} // namespace

void DeviceGraph::nodeAdded(std::uint32_t id, Properties properties)
{
    _nodes[id] = std::move(properties);
}

void DeviceGraph::portAdded(std::uint32_t id, Properties properties)
{
    _ports[id] = std::move(properties);
}

void DeviceGraph::linkAdded(std::uint32_t id, Properties properties)
{
    _links[id] = std::move(properties);
}

void DeviceGraph::removed(std::uint32_t id)
{
    _nodes.erase(id);
    _ports.erase(id);
    _links.erase(id);
}

DeviceGraph::Device DeviceGraph::device(std::uint32_t node) const
{
    Device device { valueOf(_nodes.at(node), "node.name"), {} };
    std::vector<std::pair<std::uint64_t, std::string>> channels;
    for (const auto& [id, port] : _ports) {
        if (number(valueOf(port, "node.id")) == node && valueOf(port, "port.direction") == "in")
            channels.emplace_back(number(valueOf(port, "port.id")), valueOf(port, "audio.channel"));
    }
    std::ranges::sort(channels);
    for (auto& [id, channel] : channels)
        device.channels.push_back(std::move(channel));
    return device;
}

std::optional<DeviceGraph::Device> DeviceGraph::deviceOf(std::uint32_t outputNode) const
{
    for (const auto& [id, link] : _links) {
        const auto input = static_cast<std::uint32_t>(number(valueOf(link, "link.input.node")));
        if (number(valueOf(link, "link.output.node")) == outputNode && _nodes.contains(input))
            return device(input);
    }
    return std::nullopt;
}

std::optional<DeviceGraph::Device> DeviceGraph::sinkNamed(const std::string& name) const
{
    const auto found
        = std::ranges::find_if(_nodes, [&](const auto& node) { return isSink(node.second, name); });
    return found == _nodes.end() ? std::nullopt : std::optional(device(found->first));
}

std::string DeviceGraph::serialOf(std::uint32_t node) const
{
    const auto found = _nodes.find(node);
    return found == _nodes.end() ? std::string() : valueOf(found->second, "object.serial");
}

bool DeviceGraph::hasOlderSink(const std::string& name, std::uint32_t client, const std::string& serial) const
{
    return std::ranges::any_of(_nodes, [&](const auto& entry) {
        const auto& node = entry.second;
        return isSink(node, name) && number(valueOf(node, "client.id")) != client
            && (serial.empty() || number(valueOf(node, "object.serial")) < number(serial));
    });
}

} // namespace brimsound::engine
