#include "presets/Curve.h"

#include <algorithm>
#include <cmath>

namespace brimsound::presets {

double gainAt(const Curve& curve, double frequency)
{
    const auto above = std::ranges::lower_bound(curve, frequency, {}, &CurvePoint::frequency);
    if (above == curve.begin())
        return curve.front().gain;
    if (above == curve.end())
        return curve.back().gain;
    const auto below = std::prev(above);
    // Not the logarithm of a quotient, which overflows when a frequency is extremely low.
    const double start = std::log(below->frequency);
    const double part = (std::log(frequency) - start) / (std::log(above->frequency) - start);
    return std::lerp(below->gain, above->gain, part);
}

} // namespace brimsound::presets
