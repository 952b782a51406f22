// One bell filter of the cascade, for one band.
#pragma once

#include <cmath>
#include <numbers>

namespace brimsound::audio {

/// The coefficients of a bell filter, after A. Simper, "Solving the continuous SVF equations using
/// trapezoidal integration and equivalent currents", Cytomic, 2013. With t = tan(pi center / rate), A =
/// 10^(gain / 40) and k = 1 / (Q A) his coefficients are
///     a1 = 1 / (1 + t (t + k)),   a2 = t a1,   a3 = t a2,   m1 = k (A^2 - 1)
/// and the response equals that of the peaking filter in the W3C Audio EQ Cookbook. Coefficients may be
/// interpolated: any a1 between two stable ones is stable too.
///
/// `Number` is a double or a vector of doubles, one per channel.
template <typename Number> struct BellCoefficients {
    /// t
    Number tangent {};
    /// 2 a1
    Number feedback {};
    /// m1 a1. It is 0 at 0 dB, so that samples pass bit-identical.
    Number mix {};
    /// 1 + m1 a2
    Number through {};
};

/// `gain` in dB.
inline BellCoefficients<double> bellCoefficients(double gain, double tangent, double inverseQ)
{
    const double amplitude = std::exp(gain * (std::numbers::ln10 / 40));
    const double k = inverseQ / amplitude;
    const double a1 = 1 / (1 + tangent * (tangent + k));
    const double mix = k * (amplitude * amplitude - 1) * a1;
    return { .tangent = tangent, .feedback = 2 * a1, .mix = mix, .through = 1 + mix * tangent };
}

/// The state of a bell filter.
template <typename Number> struct BellFilter {
    Number s1 {};
    Number s2 {};

    /// Returns the next output sample. In Simper's notation:
    ///     v1 = a1 (s1 + t (x - s2)),   v2 = s2 + t v1,   s1 = 2 v1 - s1,   s2 = 2 v2 - s2,   y = x + m1 v1
    /// The operations are ordered so that y needs only one product and one sum after x: the next bell waits
    /// for y.
    Number next(Number x, const BellCoefficients<Number>& bell)
    {
        const Number rest = s1 - bell.tangent * s2;
        const Number twiceV1 = bell.feedback * (rest + bell.tangent * x);
        s1 = twiceV1 - s1;
        s2 = s2 + bell.tangent * twiceV1;
        return bell.through * x + bell.mix * rest;
    }
};

} // namespace brimsound::audio
