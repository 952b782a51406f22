#pragma once

#include <vector>

namespace brimsound::presets {

struct CurvePoint {
    /// In Hz.
    double frequency = 0;
    /// In dB.
    double gain = 0;

    bool operator==(const CurvePoint&) const = default;
};

/// A response given by points. Their frequencies ascend, each is above the one before.
using Curve = std::vector<CurvePoint>;

/// The gain in dB at a frequency in Hz: linear over the logarithm of the frequency between two points,
/// constant below the first and above the last. The curve must not be empty.
double gainAt(const Curve&, double frequency);

} // namespace brimsound::presets
