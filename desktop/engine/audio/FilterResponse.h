// What filters do to each frequency.
#pragma once

#include "desktop/engine/audio/FilterTargets.h"

namespace brimsound::audio {

/// The gain in dB of one bell filter, and how it changes with the filter's gain.
struct BellResponse {
    double decibels = 0;
    /// The derivative with respect to the filter's gain, in dB per dB.
    double slope = 0;
};

/// How far a frequency is from a bell's center: (w - 1/w)^2 with w = tan(pi f / rate) / tan(pi center /
/// rate). 0 at the center, infinite at 0 Hz.
double detuning(double frequency, double rate, double centerTangent);

/// The response of a bell at a detuning x:
///     H = 10 log10((x + G / Q^2) / (x + 1 / (G Q^2))),   G = 10^(gain / 20)
/// which is the magnitude of the peaking filter in R. Bristow-Johnson, "Cookbook formulae for audio EQ biquad
/// filter coefficients" (W3C Audio EQ Cookbook). At x = 1 / Q^2 it is gain / 2 for every gain.
BellResponse bellResponse(double detuning, double gain, double inverseQ);

/// The gain in dB at a frequency in Hz, without the preamp.
double responseAt(const FilterTargets&, double frequency);

/// The highest gain in dB at the centers and at 200 frequencies between them, evenly spaced on a logarithmic
/// scale from 20 Hz to 20 kHz or half the rate. Without the preamp: the headroom that is left is -(preamp +
/// maximum).
double maximumResponse(const FilterTargets&);

} // namespace brimsound::audio
