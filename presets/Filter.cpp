#include "presets/Filter.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <tuple>

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

/// A polynomial of the complex frequency.
struct AnalogPolynomial {
    double s0;
    double s1;
    double s2;

    /// The squared magnitude at that squared frequency.
    double power(double squaredFrequency) const
    {
        const double real = s0 - s2 * squaredFrequency;
        return real * real + s1 * s1 * squaredFrequency;
    }
};

/// One stage of an analog filter whose frequency is 1.
struct AnalogFilter {
    AnalogPolynomial numerator;
    AnalogPolynomial denominator;
    double factor;
};

AnalogFilter analog(const Filter& filter)
{
    if (filter.shape == FilterShape::RlcPeak) {
        const double stages = filter.stages;
        const double g = std::pow(10, filter.gain / (20 * stages));
        const double k = 2 * (g + 1 / g) / (1 + 2 * filter.q / stages);
        const double theta = std::atan(g);
        return { { 1, k * std::sin(theta), 1 }, { 1, k * std::cos(theta), 1 }, 1 };
    }
    const double h = std::pow(10, filter.gain / 80);
    const double inside = filter.shape == FilterShape::RlcLowShelf ? h : 1 / h;
    const double k = 2 / (1 + filter.q);
    return { { inside, k, 1 / inside }, { 1 / inside, k, inside }, h * h * h * h };
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

bool Filter::operator==(const Filter& other) const
{
    return std::tie(shape, frequency, gain, q, stages)
        == std::tie(other.shape, other.frequency, other.gain, other.q, other.stages);
}

double responseOf(const Filter& filter, double frequency)
{
    double gain = 0;
    addResponse(filter, { &frequency, 1 }, { &gain, 1 });
    return gain;
}

void addResponse(const Filter& filter, std::span<const double> frequencies, std::span<double> gains)
{
    constexpr double halfStep = std::numbers::pi / comparisonRate;
    if (isRlc(filter.shape)) {
        const auto [numerator, denominator, factor] = analog(filter);
        const double center = std::tan(halfStep * filter.frequency);
        for (std::size_t i = 0; i < frequencies.size(); ++i) {
            const double frequency = std::tan(halfStep * frequencies[i]) / center;
            const double square = frequency * frequency;
            gains[i]
                += filter.stages * decibels(factor * numerator.power(square) / denominator.power(square));
        }
        return;
    }
    const auto [numerator, denominator] = cookbook(filter);
    for (std::size_t i = 0; i < frequencies.size(); ++i) {
        const double sine = std::sin(halfStep * frequencies[i]);
        const double phi = sine * sine;
        gains[i] += decibels(numerator.power(phi) / denominator.power(phi));
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
