#include "presets/Filter.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

namespace brimsound::presets {

namespace {

constexpr double lowestPower = 1e-12;

struct Polynomial {
    double z0;
    double z1;
    double z2;

    /// The squared magnitude where phi is the squared sine of half the angular frequency. Written this way it
    /// keeps its precision at low frequencies.
    double power(double phi) const
    {
        const double sum = z0 + z1 + z2;
        return sum * sum - 4 * (z0 * z1 + 4 * z0 * z2 + z1 * z2) * phi + 16 * z0 * z2 * phi * phi;
    }
};

struct Biquad {
    Polynomial numerator;
    Polynomial denominator;
};

Biquad lowShelf(double a, double c, double root)
{
    return { { a * ((a + 1) - (a - 1) * c + root), 2 * a * ((a - 1) - (a + 1) * c),
                 a * ((a + 1) - (a - 1) * c - root) },
        { (a + 1) + (a - 1) * c + root, -2 * ((a - 1) + (a + 1) * c), (a + 1) + (a - 1) * c - root } };
}

Biquad highShelf(double a, double c, double root)
{
    return { { a * ((a + 1) + (a - 1) * c + root), -2 * a * ((a - 1) + (a + 1) * c),
                 a * ((a + 1) + (a - 1) * c - root) },
        { (a + 1) - (a - 1) * c + root, 2 * ((a - 1) - (a + 1) * c), (a + 1) - (a - 1) * c - root } };
}

Biquad cookbook(const Filter& filter)
{
    const double a = std::pow(10, filter.gain / 40);
    const double omega = 2 * std::numbers::pi * filter.frequency / comparisonRate;
    const double c = std::cos(omega);
    const double alpha = std::sin(omega) / (2 * filter.q);
    const double root = 2 * std::sqrt(a) * alpha;
    const Polynomial plain { 1 + alpha, -2 * c, 1 - alpha };
    switch (filter.shape) {
    case FilterShape::LowShelf:
        return lowShelf(a, c, root);
    case FilterShape::HighShelf:
        return highShelf(a, c, root);
    case FilterShape::LowPass:
        return { { (1 - c) / 2, 1 - c, (1 - c) / 2 }, plain };
    case FilterShape::HighPass:
        return { { (1 + c) / 2, -(1 + c), (1 + c) / 2 }, plain };
    case FilterShape::BandPass:
        return { { alpha, 0, -alpha }, plain };
    case FilterShape::Notch:
        return { { 1, -2 * c, 1 }, plain };
    default:
        return { { 1 + alpha * a, -2 * c, 1 - alpha * a }, { 1 + alpha / a, -2 * c, 1 - alpha / a } };
    }
}

/// The power of an analog filter where the normalized complex frequency is s.
double rlcPower(const Filter& filter, std::complex<double> s)
{
    const auto square = s * s;
    if (filter.shape == FilterShape::RlcPeak) {
        const double stages = filter.stages;
        const double g = std::pow(10, filter.gain / (20 * stages));
        const double k = 2 * (g + 1 / g) / (1 + 2 * filter.q / stages);
        const double theta = std::atan(g);
        const auto stage
            = (square + k * std::sin(theta) * s + 1.0) / (square + k * std::cos(theta) * s + 1.0);
        return std::pow(std::norm(stage), stages);
    }
    const double h = std::pow(10, filter.gain / 80);
    const double inside = filter.shape == FilterShape::RlcLowShelf ? h : 1 / h;
    const double k = 2 / (1 + filter.q);
    const auto fraction = (inside + k * s + square / inside) / (1 / inside + k * s + square * inside);
    return h * h * h * h * std::norm(fraction);
}

bool isRlc(FilterShape shape)
{
    return shape == FilterShape::RlcPeak || shape == FilterShape::RlcLowShelf
        || shape == FilterShape::RlcHighShelf;
}

double decibels(double power)
{
    // Also when rounding makes the power of a notch negative.
    return 10 * std::log10(power > lowestPower ? power : lowestPower);
}

double amplitudeSum(double gain)
{
    const double a = std::pow(10, gain / 40);
    return a + 1 / a;
}

} // namespace

double responseOf(const Filter& filter, double frequency)
{
    double gain = 0;
    addResponse(filter, { &frequency, 1 }, { &gain, 1 });
    return gain;
}

void addResponse(const Filter& filter, std::span<const double> frequencies, std::span<double> gains)
{
    constexpr double halfStep = std::numbers::pi / comparisonRate;
    const auto biquad = cookbook(filter);
    const double center = std::tan(halfStep * filter.frequency);
    for (std::size_t i = 0; i < frequencies.size(); ++i) {
        const double angle = halfStep * frequencies[i];
        if (isRlc(filter.shape)) {
            gains[i] += decibels(rlcPower(filter, { 0, std::tan(angle) / center }));
            continue;
        }
        const double phi = std::sin(angle) * std::sin(angle);
        gains[i] += decibels(biquad.numerator.power(phi) / biquad.denominator.power(phi));
    }
}

double shelfQ(double gain, double slope)
{
    // The slope of a shelf that is steeper than its gain allows gives a negative number.
    return 1 / std::sqrt(std::max(amplitudeSum(gain) * (1 / slope - 1) + 2, 1e-4));
}

double shelfSlope(double gain, double q)
{
    return 1 / ((1 / (q * q) - 2) / amplitudeSum(gain) + 1);
}

bool isMeaningless(const Filter& filter)
{
    return !std::isfinite(filter.frequency) || !std::isfinite(filter.gain) || !std::isfinite(filter.q)
        || filter.frequency <= 0 || filter.q <= 0;
}

std::optional<std::string_view> unusable(const Filter& filter)
{
    constexpr double lowestFrequency = 1;
    constexpr double largestGain = 100;
    constexpr double lowestQ = 0.01;
    constexpr double highestQ = 1000;
    if (filter.frequency < lowestFrequency)
        return "its frequency is below 1 Hz";
    if (filter.frequency >= comparisonRate / 2)
        return "its frequency is not below 24 kHz";
    if (std::abs(filter.gain) > largestGain)
        return "its gain is beyond 100 dB";
    if (filter.q < lowestQ || filter.q > highestQ)
        return "its Q is not from 0.01 to 1000";
    return std::nullopt;
}

} // namespace brimsound::presets
