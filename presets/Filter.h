#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace brimsound::presets {

/// The sampling rate in Hz at which filters of other programs and the equalizer's own are compared. Both
/// sides use the bilinear transform at the same rate, so its warping cancels.
constexpr double comparisonRate = 48000;

enum class FilterShape {
    // R. Bristow-Johnson, "Cookbook formulae for audio EQ biquad filter coefficients" (W3C Audio EQ
    // Cookbook).
    Peak,
    LowShelf,
    HighShelf,
    LowPass,
    HighPass,
    BandPass,
    Notch,
    // The analog filters that EasyEffects calls RLC.
    RlcPeak,
    RlcLowShelf,
    RlcHighShelf,
};

/// A filter of another program.
struct Filter {
    FilterShape shape = FilterShape::Peak;
    /// Of the center, or the corner of a pass filter, in Hz; above 0 and below half the comparison rate.
    double frequency = 1000;
    /// In dB; pass filters and notches have none.
    double gain = 0;
    /// Above 0.
    double q = 1;
    /// How many equal filters an RLC peak consists of, each with an equal part of the gain.
    int stages = 1;
    /// Where the file has it: see Finding. Filters at different places are equal.
    std::string place {};

    bool operator==(const Filter&) const;
};

/// The response in dB at a frequency in Hz below half the comparison rate. Never below -120 dB.
double responseOf(const Filter&, double frequency);
/// Adds the responses at all these frequencies to the gains. Faster than one by one.
void addResponse(const Filter&, std::span<const double> frequencies, std::span<double> gains);

/// The Q of a shelf with the slope S of the cookbook: 1/Q^2 = (A + 1/A) (1/S - 1) + 2 with A = 10^(gain/40).
double shelfQ(double gain, double slope);
/// The slope S of a shelf with that Q: the inverse of shelfQ.
double shelfSlope(double gain, double q);

/// The reason why the equalizer cannot use such a filter at all; nothing when it can. Numbers that are not
/// finite, and frequencies and Qs that are not above 0, have no meaning: see `isMeaningless`.
std::optional<std::string_view> unusable(const Filter&);
/// Whether a number is not finite, or the frequency or the Q is not above 0.
bool isMeaningless(const Filter&);

} // namespace brimsound::presets
