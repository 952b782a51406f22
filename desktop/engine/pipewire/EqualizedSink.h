// The sink that programs play to, and its output to the device.
#pragma once

#include "desktop/engine/SoundEngine.h"
#include "desktop/engine/pipewire/ChannelLayout.h"
#include "desktop/engine/pipewire/Pointers.h"
#include "desktop/engine/pipewire/SoundChain.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>

namespace brimsound::engine {

/// Two streams, an Audio/Sink and a Stream/Output/Audio, that PipeWire runs within one cycle, so that the
/// sound is not delayed. The output follows the default device and lets it suspend.
class EqualizedSink {
public:
    /// Called on the loop's thread.
    struct Changes {
        /// The new sampling rate in Hz, called before sound of that rate arrives.
        std::function<void(unsigned)> rate;
        std::function<void(double)> headroom;
    };

    /// Throws std::runtime_error when PipeWire rejects the streams.
    EqualizedSink(pw_core*, ChannelLayout, const Settings&, Changes);
    EqualizedSink(const EqualizedSink&) = delete;
    EqualizedSink& operator=(const EqualizedSink&) = delete;
    ~EqualizedSink();

    /// The nodes' ids in the graph; SPA_ID_INVALID until they are assigned.
    std::uint32_t sinkNode() const { return pw_stream_get_node_id(_input.stream.get()); }
    std::uint32_t outputNode() const { return pw_stream_get_node_id(_output.stream.get()); }
    const ChannelLayout& layout() const { return _layout; }
    /// 0 until the first sound is expected.
    unsigned rate() const { return _rate; }
    std::uint64_t limitedBlocks() const { return _chain.limitedBlocks(); }

    void set(const Settings&);
    /// Resets the controls that the session manager restored. Must not be called from PipeWire's callbacks.
    void resetControls();
    /// Plays silence from now on.
    void mute() { _chain.mute(); }

private:
    struct Side {
        EqualizedSink* owner = nullptr;
        Stream stream;
        Hook listener;
        Side* other = nullptr;
        bool hasPlayed = false;
        /// The restored volume and mute controls, with the number of values of each.
        std::map<std::uint32_t, std::uint32_t> restored;
    };

    /// Held by the audio thread during a cycle. The streams exist while a turn exists and its mayPlay() is
    /// true.
    class Turn;

    void open(Side&, pw_core*, const char* name, pw_properties*);
    void connect(Side&, pw_direction, unsigned flags, const pw_stream_events&);
    void design();
    void stopPlaying();

    static void inputProcess(void* side);
    static void outputProcess(void* side);
    static void parameterChanged(void* side, std::uint32_t id, const spa_pod*);
    static void controlInfo(void* side, std::uint32_t id, const pw_stream_control*);
    static void stateChanged(void* side, pw_stream_state before, pw_stream_state now, const char* error);

    const ChannelLayout _layout;
    Settings _settings;
    Changes _changes;
    unsigned _rate = 0;
    const std::chrono::steady_clock::time_point _made = std::chrono::steady_clock::now();
    SoundChain _chain;
    std::atomic<bool> _mayPlay = false;
    std::atomic<int> _turns = 0;
    Side _output;
    Side _input;
};

} // namespace brimsound::engine
