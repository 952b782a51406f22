#pragma once

#include "desktop/engine/audio/FilterTargets.h"

namespace brimsound::audio {

/// Designs the filters whose response matches the sliders, for one sampling rate.
///
/// Each band is a bell (W3C Audio EQ Cookbook). Neighboring bells overlap, so filters with the sliders' own
/// gains would be wrong by many dB. V. Valimaki and J. Liski, "Accurate cascade graphic equalizer", IEEE
/// Signal Processing Letters 24(2), 2017, solve for the gains instead. Their bands are evenly spaced and one
/// linear step is enough. These bands are not, so Newton's method is used, which takes two or three steps.
///
/// A bell's bandwidth follows from its neighbors' distance, B = k / 2 * log2(next / previous) octaves, and by
/// the cookbook 1/Q = 2 sinh(ln 2 / 2 * B * w / sin w), w = 2 pi center / rate. k is 1.2 up to 6 kHz, which
/// fills the dips between the wide bands, and 1 above.
class EqualizerDesign {
public:
    /// `rate` is in Hz and should be 8 to 384 kHz. Bands at or above half the rate are omitted.
    explicit EqualizerDesign(double rate);

    /// The filters whose response is within 0.01 dB of every slider; sliders are in dB from 60 Hz up. Sliders
    /// and preamp are limited to 12 dB in either direction; NaN counts as 0 dB. Takes some microseconds, so
    /// it must not run on the audio thread.
    FilterTargets solve(const BandGains& sliders, double preamp) const;

private:
    // A flat response, with everything that does not depend on the sliders.
    FilterTargets _flat;
    // The detuning of each center with respect to each bell.
    std::array<std::array<double, bandCount>, bandCount> _detunings {};
};

} // namespace brimsound::audio
