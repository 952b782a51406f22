// The frequency response of filters.
#pragma once

#include "desktop/engine/audio/FilterTargets.h"

namespace brimsound::audio {

/// The effect of one bell filter at a frequency.
struct BellResponse {
    /// The factor for the power.
    double power = 1;
    /// The derivative of the response in dB by the filter's gain, in dB per dB.
    double slope = 0;
};

/// The distance of a frequency from a bell's center: (w - 1/w)^2 with w = tan(pi f / rate) / tan(pi center /
/// rate). 0 at the center, infinite at 0 Hz.
double detuning(double frequency, double rate, double centerTangent);

/// The factor for a gain in dB: G = 10^(gain / 20).
double amplitude(double gain);

/// The response of a bell of gain G at a detuning x:
///     power = (x + G / Q^2) / (x + 1 / (G Q^2))
/// which is that of the peaking filter in R. Bristow-Johnson, "Cookbook formulae for audio EQ biquad filter
/// coefficients" (W3C Audio EQ Cookbook). At x = 1 / Q^2 it is half the gain in dB, for every gain.
BellResponse bellResponse(double detuning, double amplitude, double inverseQ);

/// The gain in dB at a frequency in Hz, without the preamp.
double responseAt(const FilterTargets&, double frequency);

/// The highest gain in dB at the centers and at 200 frequencies between them, evenly spaced on a logarithmic
/// scale from 20 Hz to 20 kHz or half the rate. Does not include the preamp: the remaining headroom is
/// -(preamp + maximum).
double maximumResponse(const FilterTargets&);

} // namespace brimsound::audio
