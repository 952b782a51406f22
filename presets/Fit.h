// Slider gains whose sound is a wanted response.
#pragma once

#include "desktop/engine/audio/Bands.h"
#include "presets/TargetPoints.h"

#include <span>

namespace brimsound::presets {

/// Whether the absolute level of a wanted response counts, or only its shape.
enum class Level { Counts, IsFree };

/// The difference between a wanted response and that of the equalizer, from 40 Hz to 16 kHz.
struct Difference {
    /// The root mean square in dB, over the logarithm of the frequency.
    double rms = 0;
    /// The largest absolute value in dB.
    double largest = 0;
    /// Where it is, in Hz.
    double frequency = 0;
};

/// The sliders, in dB from -12 to 12, whose response in the equalizer's own design is closest to the points:
/// the weighted mean square of the difference is the smallest. The points are not empty.
///
/// The design makes the response equal to the sliders at the bands' centers, so sliders that sample the
/// target there are already close, and few steps of the Gauss-Newton method lead to the minimum. No penalty
/// keeps neighboring bands from working against each other: that would show at the centers.
audio::BandGains fit(std::span<const TargetPoint>, Level);

/// The sliders that are equal to the target at the bands' centers: where `fit` starts.
audio::BandGains sampleAtCenters(std::span<const TargetPoint>);

/// What is heard with these sliders, compared with the points. When the level is free, the mean difference
/// does not count.
Difference compare(std::span<const TargetPoint>, Level, const audio::BandGains& sliders);

} // namespace brimsound::presets
