// The equalizer at work on one connection to PipeWire.
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

/// Watches the graph, keeps the sink fitting to the device, and has streams moved. PipeWire's events are only
/// noted; what follows from them is done in `update`.
class Session {
public:
    /// Takes over a connection that was just made; the rest outlives this object. Throws std::runtime_error
    /// when PipeWire does not take part.
    Session(Core, sd_event*, PipeWireLoop&, const Settings&, const Reports&);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    void set(const Settings&);
    /// Does what the events since the last call make necessary. Not from within PipeWire's own calls.
    void update();
    /// Whether PipeWire has answered.
    bool works() const { return _answered >= 0; }
    /// Whether the connection is of no use any more.
    bool lost() const { return _lost; }
    /// Gives every stream back that was moved, and waits at most half a second until PipeWire knows.
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
    std::unique_ptr<EqualizedSink> _sink;
    /// Takes the place of `_sink` once the graph knows it.
    std::unique_ptr<EqualizedSink> _nextSink;
    /// A session manager that came back may not care for streams that were there before.
    bool _mayStayUnlinked = false;
    bool _yields = false;
    bool _lost = false;

    // The number of the last question to PipeWire, and of the last one answered: when they are the same,
    // everything that was there at the time of the question is known.
    int _asked = 0;
    int _answered = -1;
    /// The question whose answer means that the metadata has told all it held.
    std::optional<int> _metadataAsked;

    std::string _reportedOutput;
    unsigned _reportedRate = 0;
    std::optional<double> _reportedHeadroom;
    /// By sinks that were replaced.
    std::uint64_t _limitedBefore = 0;
    std::uint64_t _reportedLimited = 0;
    EventTimer _limitedTimer;
    EventTimer _unlinkedTimer;
    Hook _coreListener;
    Hook _registryListener;
};

} // namespace brimsound::engine
