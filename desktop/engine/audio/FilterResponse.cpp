#include "desktop/engine/audio/FilterResponse.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace brimsound::audio {

double detuning(double frequency, double rate, double centerTangent)
{
    const double ratio = std::tan(std::numbers::pi * frequency / rate) / centerTangent;
    const double difference = ratio - 1 / ratio;
    return difference * difference;
}

double amplitude(double gain)
{
    return std::exp(gain * (std::numbers::ln10 / 20));
}

BellResponse bellResponse(double detuning, double amplitude, double inverseQ)
{
    const double width = inverseQ * inverseQ;
    const double numerator = width * amplitude;
    const double denominator = width / amplitude;
    return {
        .power = (detuning + numerator) / (detuning + denominator),
        .slope = 0.5 * (numerator / (detuning + numerator) + denominator / (detuning + denominator)),
    };
}

double responseAt(const FilterTargets& targets, double frequency)
{
    double power = 1;
    for (std::size_t band = 0; band < targets.bands; ++band) {
        const double x = detuning(frequency, targets.rate, targets.tangents[band]);
        // A bell has no effect at 0 Hz and at half the rate.
        if (std::isfinite(x))
            power *= bellResponse(x, amplitude(targets.gains[band]), targets.inverseQ[band]).power;
    }
    return 10 * std::log10(power);
}

double maximumResponse(const FilterTargets& targets)
{
    constexpr int points = 200;
    constexpr double lowest = 20;
    const double highest = std::min(20000.0, targets.rate / 2);
    double maximum = responseAt(targets, lowest);
    for (std::size_t band = 0; band < targets.bands; ++band)
        maximum = std::max(maximum, responseAt(targets, centers[band]));
    for (int point = 1; point < points; ++point) {
        const double frequency = lowest * std::pow(highest / lowest, point / (points - 1.0));
        maximum = std::max(maximum, responseAt(targets, frequency));
    }
    return maximum;
}

} // namespace brimsound::audio
