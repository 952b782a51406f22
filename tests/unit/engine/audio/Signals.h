// Test signals and their analysis.
#pragma once

#include "desktop/engine/audio/EqualizerProcessor.h"

#include <complex>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace brimsound::audio::tests {

using Samples = std::vector<float>;

Samples sine(double frequency, double rate, double amplitude, std::size_t frames);

/// Evenly distributed between -amplitude and amplitude. The same seed gives the same samples.
Samples noise(std::uint32_t seed, float amplitude, std::size_t frames);

/// One channel processed in blocks of that many frames.
Samples processed(EqualizerProcessor&, const Samples&, std::size_t block = 1024);

/// The magnitude of the signal's Fourier transform at a frequency.
double magnitudeAt(const Samples&, double frequency, double rate);

/// The residue of a sound: what remains after tapering both ends and removing a band of frequencies.
struct Residue {
    /// In dB relative to full scale (an amplitude of 1).
    double rms;
    double peak;
};

/// The number of samples is a power of two. Frequencies in Hz; the band is inclusive.
Residue residue(const Samples&, double rate, double bandFrom, double bandTo);

/// Pink noise, decreasing by 3 dB per octave, between two frequencies, with an rms of 1. The number of frames
/// is a power of two.
Samples pinkNoise(std::uint32_t seed, double rate, double from, double to, std::size_t frames);

double decibels(double ratio);

/// The built-in presets: names and sliders.
std::vector<std::pair<std::string, BandGains>> presets();

} // namespace brimsound::audio::tests
