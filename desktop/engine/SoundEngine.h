// The desktop's sound, equalized.
#pragma once

#include "desktop/engine/audio/Bands.h"

#include <systemd/sd-event.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace brimsound::engine {

/// What is done to the sound.
struct Settings {
    /// Slider positions in dB, from 60 Hz up.
    audio::BandGains sliders {};
    /// In dB.
    double preamp = 0;
    /// Whether what would exceed full scale is turned down.
    bool limits = true;

    bool operator==(const Settings&) const = default;
};

/// Called on the thread of the event loop. Any of them may be empty.
struct Reports {
    /// PipeWire was reached, or went away.
    std::function<void(bool)> connected;
    /// The node name of the device that the sound goes to; empty when there is none.
    std::function<void(const std::string&)> output;
    /// Channels of the equalizer, such as "FL", in their order.
    std::function<void(const std::vector<std::string>&)> layout;
    /// Sampling rate in Hz.
    std::function<void(unsigned)> rate;
    /// The preamp plus the response's maximum, in dB: how far a full-scale sound may go beyond full scale.
    std::function<void(double)> headroom;
    /// How many blocks were limited since the start. At most once a second.
    std::function<void(std::uint64_t)> limited;
    /// A line for the user about what keeps the sound from being equalized.
    std::function<void(const std::string&)> problem;
};

/// Puts an equalizer between the programs that play and the device that the user chose: a sink "brimsound",
/// to which their streams are moved. It looks for PipeWire until there is one, and again when it went away.
class SoundEngine {
public:
    /// Runs on the loop, which outlives this object. The signals that end the program have to be blocked
    /// already: threads are made here. Throws std::runtime_error when it cannot run at all.
    SoundEngine(sd_event*, const Settings&, Reports);
    SoundEngine(const SoundEngine&) = delete;
    SoundEngine& operator=(const SoundEngine&) = delete;
    /// Gives every stream back that was moved, and waits at most half a second until that is done.
    ~SoundEngine();

    /// Takes effect without a click.
    void set(const Settings&);

private:
    class Implementation;
    std::unique_ptr<Implementation> _implementation;
};

} // namespace brimsound::engine
