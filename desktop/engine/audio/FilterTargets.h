#pragma once

#include "desktop/engine/audio/Bands.h"

#include <type_traits>

namespace brimsound::audio {

/// The target parameters of a cascade of bell filters and a preamp. A plain value that can be copied between
/// threads as bytes. The default is a flat response without a rate.
struct FilterTargets {
    /// Sampling rate in Hz.
    double rate = 0;
    /// The number of bands below half the rate. They are the first ones; the others have no filter.
    std::size_t bands = 0;
    /// The gain of each filter in dB. Neighbors overlap, so it differs from the slider's position.
    BandGains gains {};
    /// In dB, for all frequencies.
    double preamp = 0;
    /// tan(pi * center / rate) of each band.
    std::array<double, bandCount> tangents {};
    /// 1 / Q of each band.
    std::array<double, bandCount> inverseQ {};
};

static_assert(std::is_trivially_copyable_v<FilterTargets>);

} // namespace brimsound::audio
