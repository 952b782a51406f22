// Sound files for programs to play.
#pragma once

#include <filesystem>
#include <vector>

namespace brimsound::tests {

/// The amplitude of `sine`, and its rms level.
inline constexpr double sineAmplitude = 0.25;
inline constexpr double sineLevel = 0.1767767;

/// A sine of 1 kHz, 48,000 samples per second.
std::vector<float> sine(double seconds);

/// Writes samples, the same for each channel, as a WAV file of 32-bit floating-point numbers.
void writeSound(
    const std::filesystem::path&, const std::vector<float>&, unsigned channels = 2, unsigned rate = 48000);
/// Writes interleaved channels.
void writeInterleaved(
    const std::filesystem::path&, const std::vector<float>&, unsigned channels, unsigned rate);

} // namespace brimsound::tests
