// The decision which streams play through the equalizer.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace brimsound::engine {

/// A change of the session manager's metadata "default". Without a value the key is deleted.
struct MetadataWrite {
    std::uint32_t subject = 0;
    std::string key;
    std::string type;
    std::optional<std::string> value;

    bool operator==(const MetadataWrite&) const = default;
};

/// The properties of a stream.
struct StreamProperties {
    /// Properties of the node, such as "media.class".
    std::map<std::string, std::string> values;
    /// Whether it only offers encoded formats, which only a device can play.
    bool encoded = false;
};

/// Decides where streams play. Receives events and returns changes of the metadata; it performs none itself.
///
/// Streams are moved; the default device is not changed. Streams that play get the target "brimsound", and
/// the equalizer's output follows the default device. A stream is not moved when its program asked for a
/// device, when it is part of a filter, when it carries encoded sound, or while the user has moved it to
/// another device. When the user moves it back to "brimsound", it is handled as before.
class StreamRouting {
public:
    /// The ids of the equalizer's sink and output in the graph; nothing while they do not exist.
    struct OwnNodes {
        std::uint32_t sink = 0;
        std::string sinkSerial;
        std::uint32_t output = 0;
    };
    void setOwnNodes(const std::optional<OwnNodes>&);

    /// A playing stream appeared, or its properties changed.
    void streamChanged(std::uint32_t id, const StreamProperties&);
    void streamRemoved(std::uint32_t id);

    /// The metadata is available, and its initial contents have been reported.
    void metadataReady();
    /// The metadata was removed with all its contents.
    void metadataRemoved();
    /// A key was changed, perhaps by this program. Without a value the key was deleted; without a key, all
    /// keys of the subject were.
    void metadataChanged(std::uint32_t subject, const std::optional<std::string>& key,
        const std::optional<std::string>& value);
    /// The name of the session manager's default sink; empty when there is none.
    void defaultSinkChanged(const std::string& name);

    /// The changes to write now, in this order. They are assumed to be written after this call.
    std::vector<MetadataWrite> takeWrites();
    /// The changes that move all streams back. No stream is moved after this call.
    std::vector<MetadataWrite> release();

private:
    struct Targets {
        std::optional<std::string> object;
        std::optional<std::string> node;
    };
    /// Where a stream's metadata sends it.
    enum class Wish { None, Equalizer, RestoredElsewhere, Elsewhere };

    Wish wishOf(const Targets&) const;
    bool isEqualizer(const std::string& target) const;
    void write(std::uint32_t subject, const char* key, const char* type, std::optional<std::string> value);
    void route(std::uint32_t stream);
    void routeOutput();

    std::optional<OwnNodes> _own;
    std::map<std::uint32_t, StreamProperties> _streams;
    std::map<std::uint32_t, Targets> _targets;
    bool _ready = false;
    bool _released = false;
    std::string _defaultSink;
    std::string _lastDevice;
    /// The device that the output was sent to, because the equalizer itself is the default.
    std::optional<std::string> _outputTarget;
    std::vector<MetadataWrite> _writes;
};

} // namespace brimsound::engine
