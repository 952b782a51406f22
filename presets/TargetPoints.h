#pragma once

#include "presets/Target.h"

#include <vector>

namespace brimsound::presets {

/// The range in which the response matters most and in which errors are reported, in Hz.
constexpr double lowestReported = 40;
constexpr double highestReported = 16000;

/// A point of a wanted response.
struct TargetPoint {
    /// In Hz.
    double frequency = 0;
    /// In dB.
    double gain = 0;
    /// The part of the logarithmic frequency range that the point stands for, a tenth of that outside the
    /// reported range.
    double weight = 0;

    bool isReported() const { return lowestReported <= frequency && frequency <= highestReported; }
};

/// The response at 240 frequencies from 20 Hz to 20 kHz, evenly spaced on a logarithmic scale; but a single
/// curve of more than 60 points, nowhere more than half an octave apart, at its own points, because
/// interpolating would add errors. When the level is not known, their median is 0 dB. Gains are limited to
/// 24 dB in either direction, beyond which no slider reaches.
std::vector<TargetPoint> pointsOf(const Response&);

} // namespace brimsound::presets
