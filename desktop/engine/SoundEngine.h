// The equalizer for the desktop's sound.
#pragma once

#include "desktop/engine/audio/Bands.h"

#include <systemd/sd-event.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace brimsound::engine {

/// The settings of the equalizer.
struct Settings {
    /// Slider positions in dB, from 60 Hz up.
    audio::BandGains sliders {};
    /// In dB.
    double preamp = 0;
    /// Whether the limiter keeps the output below full scale.
    bool limits = true;

    bool operator==(const Settings&) const = default;
};

/// Callbacks on the thread of the event loop. Each may be empty.
struct Reports {
    /// PipeWire was reached, or the connection was lost.
    std::function<void(bool)> connected;
    /// The node name of the output device; empty when there is none.
    std::function<void(const std::string&)> output;
    /// The channels of the equalizer, such as "FL", in their order.
    std::function<void(const std::vector<std::string>&)> layout;
    /// Sampling rate in Hz.
    std::function<void(unsigned)> rate;
    /// The preamp plus the response's maximum, in dB: how far a full-scale sound may exceed full scale.
    std::function<void(double)> headroom;
    /// The number of blocks limited since the start. Reported at most once a second.
    std::function<void(std::uint64_t)> limited;
    /// A line for the user about a problem that prevents equalizing.
    std::function<void(const std::string&)> problem;
};

/// Inserts an equalizer between the programs that play sound and the user's output device: a sink
/// "brimsound", to which their streams are moved. Tries to connect to PipeWire until it is available, and
/// again after the connection was lost.
class SoundEngine {
public:
    /// Runs on the loop, which must outlive this object. Creates threads, so the signals that end the program
    /// must be blocked before. Throws std::runtime_error when it cannot run at all.
    SoundEngine(sd_event*, const Settings&, Reports);
    SoundEngine(const SoundEngine&) = delete;
    SoundEngine& operator=(const SoundEngine&) = delete;
    /// Moves all streams back, and waits for that for at most half a second.
    ~SoundEngine();

    /// The change is free of clicks.
    void set(const Settings&);

private:
    class Implementation;
    std::unique_ptr<Implementation> _implementation;
};

} // namespace brimsound::engine
