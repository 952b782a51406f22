// The equalizer's work on one connection to PipeWire.
#pragma once

#include "desktop/engine/SoundEngine.h"
#include "desktop/engine/pipewire/DefaultMetadata.h"
#include "desktop/engine/pipewire/DeviceGraph.h"
#include "desktop/engine/pipewire/EqualizedSink.h"
#include "desktop/engine/pipewire/EventTimer.h"
#include "desktop/engine/pipewire/PipeWireLoop.h"
#include "desktop/engine/pipewire/PlayingStream.h"
#include "desktop/engine/pipewire/Pointers.h"
#include "desktop/engine/pipewire/StreamRouting.h"

#include <map>
#include <memory>
#include <optional>

namespace brimsound::engine {

/// Watches the graph, adapts the sink to the device, and moves streams. PipeWire's callbacks only record
/// changes; `update` acts on them.
class Session {
public:
    /// Takes ownership of a new connection; the other arguments must outlive this object. Throws
    /// std::runtime_error when PipeWire refuses.
    Session(Core, sd_event*, PipeWireLoop&, const Settings&, const Reports&);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    void set(const Settings&);
    /// Acts on the changes since the last call. Must not be called from PipeWire's callbacks.
    void update();
    /// Whether PipeWire has replied.
    bool works() const { return _answered >= 0; }
    /// Whether the connection was lost.
    bool lost() const { return _lost; }
    /// Moves all streams back, and waits for PipeWire to confirm for at most half a second.
    void release();

private:
    static void coreDone(void* self, std::uint32_t id, int sequence);
    static void coreError(void* self, std::uint32_t id, int sequence, int result, const char* message);
    static void globalAdded(void* self, std::uint32_t id, std::uint32_t permissions, const char* type,
        std::uint32_t version, const spa_dict* dictionary);
    static void globalRemoved(void* self, std::uint32_t id);

    void addNode(std::uint32_t id, std::map<std::string, std::string> properties);
    void bindMetadata(std::uint32_t id, std::uint32_t version);
    void sync();
    bool yieldToAnother();
    void fitSink();
    void makeSink(const ChannelLayout&);
    void writeMetadata();
    void report();
    void tellLimited();
    bool hasDefaultDevice() const;
    void expectDefault();
    void readMetadataAgain();
    void remakeUnlinkedSink();

    PipeWireLoop& _loop;
    Settings _settings;
    const Reports& _reports;

    Core _core;
    Proxy _registry;
    DeviceGraph _graph;
    StreamRouting _routing;
    std::map<std::uint32_t, std::unique_ptr<PlayingStream>> _streams;
    std::unique_ptr<DefaultMetadata> _metadata;
    std::uint32_t _metadataId = SPA_ID_INVALID;
    std::uint32_t _metadataVersion = 0;
    /// The sink that the user chose last.
    std::string _expectedDefault;
    std::unique_ptr<EqualizedSink> _sink;
    /// Replaces `_sink` once it appears in the graph.
    std::unique_ptr<EqualizedSink> _nextSink;
    /// A restarted session manager may not link streams that existed before.
    bool _mayStayUnlinked = false;
    bool _yields = false;
    bool _lost = false;

    // The numbers of the last request to PipeWire and of the last reply. When they are equal, everything that
    // existed at the time of the request is known.
    int _asked = 0;
    int _answered = -1;
    /// The request whose reply marks the end of the metadata's initial contents.
    std::optional<int> _metadataAsked;

    std::string _reportedOutput;
    unsigned _reportedRate = 0;
    std::optional<double> _reportedHeadroom;
    /// The count of earlier sinks.
    std::uint64_t _limitedBefore = 0;
    std::uint64_t _reportedLimited = 0;
    EventTimer _limitedTimer;
    EventTimer _unlinkedTimer;
    EventTimer _defaultTimer;
    Hook _coreListener;
    Hook _registryListener;
};

} // namespace brimsound::engine
