// One band of the cascade.
#pragma once

#include <cmath>
#include <numbers>

namespace brimsound::audio {

/// The coefficients of a bell with a gain: A. Simper, "Solving the continuous SVF equations using trapezoidal
/// integration and equivalent currents", Cytomic, 2013. With t = tan(pi center / rate), A = 10^(gain / 40)
/// and k = 1 / (Q A), they are
///     a1 = 1 / (1 + t (t + k)),   mix = k (A^2 - 1)
/// and the response is exactly that of the peaking filter in the W3C Audio EQ Cookbook. Simper's a2 and a3
/// are t a1 and t^2 a1, so any a1 between two good ones makes a stable filter too: coefficients may be
/// interpolated.
struct BellCoefficients {
    double a1 = 1;
    double mix = 0;

    BellCoefficients() = default;
    /// `gain` in dB. 0 dB makes a filter that passes everything unchanged, to the bit.
    BellCoefficients(double gain, double tangent, double inverseQ)
    {
        const double amplitude = std::exp(gain * (std::numbers::ln10 / 40));
        const double damping = inverseQ / amplitude;
        a1 = 1 / (1 + tangent * (tangent + damping));
        mix = damping * (amplitude * amplitude - 1);
    }
};

/// A bell's memory. `Sample` is a double or a vector of them, one a channel.
template <typename Sample> struct BellFilter {
    Sample s1 {};
    Sample s2 {};

    /// The next output. v1 and v2 are Simper's band-pass and low-pass; a2 and a3 are written out:
    ///     v1 = a1 (s1 + t (x - s2)),   v2 = s2 + t v1,   s1 = 2 v1 - s1,   s2 = 2 v2 - s2
    Sample next(Sample x, double a1, double mix, double tangent)
    {
        const Sample v1 = a1 * (s1 + tangent * (x - s2));
        s1 = 2.0 * v1 - s1;
        s2 = s2 + (2 * tangent) * v1;
        return x + mix * v1;
    }
};

} // namespace brimsound::audio
