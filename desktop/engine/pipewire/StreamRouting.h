// Which streams play through the equalizer.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace brimsound::engine {

/// One change of the session manager's metadata "default"; without a value the key is deleted.
struct MetadataWrite {
    std::uint32_t subject = 0;
    std::string key;
    std::string type;
    std::optional<std::string> value;

    bool operator==(const MetadataWrite&) const = default;
};

/// What a stream says of itself.
struct StreamProperties {
    /// Properties of the node, such as "media.class".
    std::map<std::string, std::string> values;
    /// Whether it offers encoded formats alone, which only a device can take.
    bool encoded = false;
};

/// Decides where streams go. Events come in, changes of the metadata come out; nothing is done here.
///
/// Streams are moved, the default is not: programs that play get the target "brimsound", and the equalizer's
/// own output follows the default device by itself. A stream is left alone when its program asked for a
/// device, when it is part of a filter, when it carries encoded sound, and while the user has it somewhere
/// else. Moved back to "brimsound" by the user, it is treated as before.
class StreamRouting {
public:
    /// The equalizer's sink and its output, as the graph numbers them; nothing while they are not there.
    struct OwnNodes {
        std::uint32_t sink = 0;
        std::string sinkSerial;
        std::uint32_t output = 0;
    };
    void setOwnNodes(const std::optional<OwnNodes>&);

    /// A playing stream was found, or changed its properties.
    void streamChanged(std::uint32_t id, const StreamProperties&);
    void streamRemoved(std::uint32_t id);

    /// The metadata is there and all that it held was told.
    void metadataReady();
    /// The metadata went away, with all that it held.
    void metadataRemoved();
    /// Somebody, perhaps this program, changed a key; without a value it was deleted, without a key all keys
    /// of that subject were.
    void metadataChanged(std::uint32_t subject, const std::optional<std::string>& key,
        const std::optional<std::string>& value);
    /// The name of the sink that the session manager plays to by default; empty when there is none.
    void defaultSinkChanged(const std::string& name);

    /// What has to be written now, in this order. It counts as written afterward.
    std::vector<MetadataWrite> takeWrites();
    /// What gives every stream back. Nothing is moved from then on.
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
    /// The device that the output was sent to, because the equalizer itself was made the default.
    std::optional<std::string> _outputTarget;
    std::vector<MetadataWrite> _writes;
};

} // namespace brimsound::engine
