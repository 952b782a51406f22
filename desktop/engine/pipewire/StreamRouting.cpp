#include "desktop/engine/pipewire/StreamRouting.h"

#include "desktop/engine/pipewire/NodeNames.h"

#include <algorithm>
#include <utility>

namespace brimsound::engine {

namespace {

constexpr auto targetObject = "target.object";
constexpr auto targetNode = "target.node";
constexpr auto stringType = "Spa:String";
constexpr auto idType = "Spa:Id";
/// The target that stands for the default device.
constexpr auto followsDefault = "-1";

bool mayBeMoved(const StreamProperties& stream)
{
    const auto& values = stream.values;
    const auto is = [&](const char* key, const char* value) {
        const auto found = values.find(key);
        return found != values.end() && found->second == value;
    };
    const auto has = [&](const char* key) { return values.contains(key); };
    return is("media.class", "Stream/Output/Audio") && is("node.autoconnect", "true") && !stream.encoded
        && !has("target.object") && !has("node.target") && !has("node.link-group")
        && !is("node.dont-reconnect", "true") && !is("stream.capture.sink", "true");
}

} // namespace

void StreamRouting::setOwnNodes(const std::optional<OwnNodes>& own)
{
    _own = own;
}

void StreamRouting::streamChanged(std::uint32_t id, const StreamProperties& properties)
{
    _streams[id] = properties;
}

void StreamRouting::streamRemoved(std::uint32_t id)
{
    _streams.erase(id);
    // The session manager deletes a stream's keys without an event, and the id may be reused soon.
    _targets.erase(id);
}

void StreamRouting::metadataReady()
{
    _ready = true;
}

void StreamRouting::metadataRemoved()
{
    _ready = false;
    _targets.clear();
    _defaultSink.clear();
}

void StreamRouting::metadataChanged(
    std::uint32_t subject, const std::optional<std::string>& key, const std::optional<std::string>& value)
{
    auto& targets = _targets[subject];
    if (!key || *key == targetObject)
        targets.object = value;
    if (!key || *key == targetNode)
        targets.node = value;
}

void StreamRouting::defaultSinkChanged(const std::string& name)
{
    _defaultSink = name;
    if (!name.empty() && name != sinkName)
        _lastDevice = name;
}

bool StreamRouting::isEqualizer(const std::string& target) const
{
    return target == sinkName || (_own && target == _own->sinkSerial);
}

StreamRouting::Wish StreamRouting::wishOf(const Targets& targets) const
{
    // The session manager itself sets this key to -1, which has no meaning.
    const bool hasNode = targets.node && *targets.node != followsDefault;
    const bool nodeIsEqualizer = hasNode && _own && *targets.node == std::to_string(_own->sink);
    if (targets.object && !isEqualizer(*targets.object))
        return Wish::Elsewhere;
    // The session manager restores the user's choice with this key alone.
    if (hasNode && !nodeIsEqualizer)
        return Wish::RestoredElsewhere;
    return targets.object || nodeIsEqualizer ? Wish::Equalizer : Wish::None;
}

void StreamRouting::write(
    std::uint32_t subject, const char* key, const char* type, std::optional<std::string> value)
{
    metadataChanged(subject, key, value);
    _writes.push_back({ subject, key, type, std::move(value) });
}

void StreamRouting::route(std::uint32_t stream)
{
    const auto found = _targets.find(stream);
    const auto targets = found == _targets.end() ? Targets {} : found->second;
    switch (wishOf(targets)) {
    case Wish::Elsewhere:
        return;
    case Wish::RestoredElsewhere:
        // The stream was moved before its own target was restored. Deleting a key also deletes what the
        // session manager stored, so the restored target is written again.
        if (targets.object) {
            write(stream, targetObject, "", std::nullopt);
            write(stream, targetNode, "", std::nullopt);
            write(stream, targetNode, idType, targets.node);
        }
        return;
    case Wish::None:
    case Wish::Equalizer:
        // By name, because the name stays valid when this sink is replaced.
        if (targets.node && *targets.node != followsDefault)
            write(stream, targetNode, "", std::nullopt);
        if (targets.object != sinkName)
            write(stream, targetObject, stringType, sinkName);
        return;
    }
}

void StreamRouting::routeOutput()
{
    const auto output = _own->output;
    const auto found = _targets.find(output);
    const auto targets = found == _targets.end() ? Targets {} : found->second;

    // A target from an earlier run, which some session managers restore for every stream.
    if (targets.node && !targets.object)
        write(output, targetNode, "", std::nullopt);

    // The equalizer cannot play to itself. Without a target it would play to the device with the highest
    // priority.
    const bool isDefault = _defaultSink == sinkName;
    if (isDefault && !targets.object && !_lastDevice.empty()) {
        write(output, targetObject, stringType, _lastDevice);
        _outputTarget = _lastDevice;
    } else if (!isDefault && _outputTarget) {
        if (targets.object == _outputTarget)
            write(output, targetObject, "", std::nullopt);
        _outputTarget.reset();
    }
}

std::vector<MetadataWrite> StreamRouting::takeWrites()
{
    if (_ready && _own && !_released) {
        routeOutput();
        for (const auto& [id, properties] : _streams) {
            if (mayBeMoved(properties))
                route(id);
        }
    }
    return std::exchange(_writes, {});
}

std::vector<MetadataWrite> StreamRouting::release()
{
    // Without a sink this equalizer has moved nothing: the targets are another equalizer's.
    if (_own) {
        for (const auto& [id, properties] : _streams) {
            const auto found = _targets.find(id);
            if (found == _targets.end() || wishOf(found->second) != Wish::Equalizer)
                continue;
            for (const auto* key : { targetObject, targetNode })
                write(id, key, "", std::nullopt);
        }
    }
    _released = true;
    return std::exchange(_writes, {});
}

} // namespace brimsound::engine
