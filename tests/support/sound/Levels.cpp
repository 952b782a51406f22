#include "tests/support/sound/Levels.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

namespace brimsound::tests {

namespace {

constexpr std::size_t window = 480;
constexpr double windowSeconds = 0.01;
constexpr double rate = 48000;

} // namespace

std::vector<double> levels(const Samples& samples)
{
    std::vector<double> levels;
    for (std::size_t begin = 0; begin + window <= samples.size(); begin += window) {
        double sum = 0;
        for (std::size_t i = begin; i < begin + window; ++i)
            sum += static_cast<double>(samples[i]) * static_cast<double>(samples[i]);
        levels.push_back(std::sqrt(sum / window));
    }
    return levels;
}

double level(const Samples& samples)
{
    auto all = levels(samples);
    if (all.empty())
        return 0;
    const auto middle = all.begin() + static_cast<std::ptrdiff_t>(all.size() / 2);
    std::ranges::nth_element(all, middle);
    return *middle;
}

double loudest(const Samples& samples)
{
    const auto all = levels(samples);
    return all.empty() ? 0 : std::ranges::max(all);
}

double longestGap(const Samples& samples, double level)
{
    std::size_t longest = 0;
    std::size_t current = 0;
    for (const auto windowLevel : levels(samples)) {
        current = windowLevel < level / 10 ? current + 1 : 0;
        longest = std::max(longest, current);
    }
    return static_cast<double>(longest) * windowSeconds;
}

double amplitudeAt(const Samples& samples, double frequency)
{
    // A Hann window suppresses other frequencies.
    std::complex<double> sum;
    const auto count = static_cast<double>(samples.size());
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const auto n = static_cast<double>(i);
        const double weight = 1 - std::cos(2 * std::numbers::pi * n / count);
        sum += weight * static_cast<double>(samples[i])
            * std::polar(1.0, -2 * std::numbers::pi * frequency * n / rate);
    }
    return samples.empty() ? 0 : 2 * std::abs(sum) / count;
}

double decibels(double factor)
{
    return 20 * std::log10(factor);
}

} // namespace brimsound::tests
