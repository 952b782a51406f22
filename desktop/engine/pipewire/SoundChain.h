// The processing of each block of sound.
#pragma once

#include "desktop/engine/SoundEngine.h"
#include "desktop/engine/audio/EqualizerProcessor.h"
#include "desktop/engine/audio/FilterTargets.h"
#include "desktop/engine/audio/Limiter.h"
#include "desktop/engine/audio/TripleBuffer.h"

#include <atomic>
#include <cstdint>

namespace brimsound::engine {

/// The equalizer followed by the limiter. One thread processes blocks and another changes the settings;
/// neither waits for the other.
class SoundChain {
public:
    /// For the controlling thread. Designs the filters for a sampling rate in Hz and passes them to the audio
    /// thread. The first ones apply from the first sample on, later ones take effect without a click. Returns
    /// the preamp plus the response's maximum, in dB.
    double set(const Settings&, double rate);
    /// For the controlling thread. Plays silence from now on.
    void mute() { _muted.store(true, std::memory_order_relaxed); }
    /// For the controlling thread. The number of blocks limited so far.
    std::uint64_t limitedBlocks() const { return _limitedBlocks.load(std::memory_order_relaxed); }

    /// For the audio thread; see EqualizerProcessor. Silence until the first filters are set.
    void process(const float* const* in, float* const* out, unsigned channels, std::size_t frames) noexcept;

private:
    struct Targets {
        audio::FilterTargets filters;
        bool limits = true;
    };

    audio::TripleBuffer<Targets> _handover;
    std::atomic<bool> _muted = false;
    std::atomic<std::uint64_t> _limitedBlocks = 0;

    // Used by the audio thread only.
    audio::EqualizerProcessor _equalizer;
    audio::Limiter _limiter { 48000 };
    double _rate = 0;
    bool _limits = true;
};

} // namespace brimsound::engine
