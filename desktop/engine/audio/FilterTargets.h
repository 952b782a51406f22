// What the filters are to become.
#pragma once

#include "desktop/engine/audio/Bands.h"

#include <type_traits>

namespace brimsound::audio {

/// The numbers that a cascade of bell filters and a preamp are made of. A plain value, so that it can be
/// handed from one thread to another as bytes. The default is a flat response at no rate.
struct FilterTargets {
    /// Sampling rate in Hz.
    double rate = 0;
    /// How many bands lie below half the rate. These are the first ones; the others have no filter.
    std::size_t bands = 0;
    /// The gain of each filter in dB. Neighbors overlap, so this is not the slider's position.
    BandGains gains {};
    /// In dB, for all frequencies alike.
    double preamp = 0;
    /// tan(pi * center / rate) of each band.
    std::array<double, bandCount> tangents {};
    /// 1 / Q of each band.
    std::array<double, bandCount> inverseQ {};
};

static_assert(std::is_trivially_copyable_v<FilterTargets>);

} // namespace brimsound::audio
