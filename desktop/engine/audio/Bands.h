// The ten bands of the equalizer.
#pragma once

#include <array>
#include <cstddef>

namespace brimsound::audio {

constexpr std::size_t bandCount = 10;

/// The bands' center frequencies in Hz.
constexpr std::array<double, bandCount> centers { 60, 170, 310, 600, 1000, 3000, 6000, 12000, 14000, 16000 };

/// Gains in dB, one per band, from 60 Hz up.
using BandGains = std::array<double, bandCount>;

/// Sliders go from -12 to +12 dB.
constexpr double sliderLimit = 12;

} // namespace brimsound::audio
