#include "tests/unit/engine/audio/Signals.h"

#include "settings/TenGains.h"
#include "settings/store/presets.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <random>

namespace brimsound::audio::tests {

namespace {

using Complex = std::complex<double>;
using Spectrum = std::vector<Complex>;

// In place, unscaled. J. W. Cooley and J. W. Tukey, "An algorithm for the machine calculation of complex
// Fourier series", Mathematics of Computation 19, 1965.
void transform(Spectrum& values, double direction)
{
    const auto size = values.size();
    for (std::size_t i = 1, reversed = 0; i < size; ++i) {
        auto bit = size / 2;
        for (; reversed & bit; bit /= 2)
            reversed ^= bit;
        reversed ^= bit;
        if (i < reversed)
            std::swap(values[i], values[reversed]);
    }
    for (std::size_t length = 2; length <= size; length *= 2) {
        const auto half = length / 2;
        Spectrum turns(half);
        for (std::size_t i = 0; i < half; ++i) {
            turns[i] = std::polar(
                1.0, direction * 2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(length));
        }
        for (std::size_t start = 0; start < size; start += length) {
            for (std::size_t i = 0; i < half; ++i) {
                auto& low = values[start + i];
                auto& high = values[start + i + half];
                const Complex turned(high.real() * turns[i].real() - high.imag() * turns[i].imag(),
                    high.real() * turns[i].imag() + high.imag() * turns[i].real());
                high = low - turned;
                low += turned;
            }
        }
    }
}

double frequencyOf(std::size_t bin, double rate, std::size_t size)
{
    return static_cast<double>(std::min(bin, size - bin)) * rate / static_cast<double>(size);
}

} // namespace

Samples sine(double frequency, double rate, double amplitude, std::size_t frames)
{
    Samples samples(frames);
    for (std::size_t frame = 0; frame < frames; ++frame) {
        const double angle = 2 * std::numbers::pi * frequency / rate * static_cast<double>(frame);
        samples[frame] = static_cast<float>(amplitude * std::sin(angle));
    }
    return samples;
}

Samples noise(std::uint32_t seed, float amplitude, std::size_t frames)
{
    std::mt19937 generator(seed);
    std::uniform_real_distribution<float> distribution(-amplitude, amplitude);
    Samples samples(frames);
    std::generate(samples.begin(), samples.end(), [&] { return distribution(generator); });
    return samples;
}

Samples processed(EqualizerProcessor& processor, const Samples& input, std::size_t block)
{
    Samples output(input.size());
    for (std::size_t start = 0; start < input.size(); start += block) {
        const float* in = input.data() + start;
        float* out = output.data() + start;
        processor.process(&in, &out, 1, std::min(block, input.size() - start));
    }
    return output;
}

double magnitudeAt(const Samples& samples, double frequency, double rate)
{
    const auto turn = std::polar(1.0, -2 * std::numbers::pi * frequency / rate);
    // Horner's method, from the last sample to the first.
    double real = 0;
    double imaginary = 0;
    std::for_each(samples.rbegin(), samples.rend(), [&](float sample) {
        const double next = real * turn.real() - imaginary * turn.imag() + static_cast<double>(sample);
        imaginary = real * turn.imag() + imaginary * turn.real();
        real = next;
    });
    return std::hypot(real, imaginary);
}

Residue residue(const Samples& samples, double rate, double bandFrom, double bandTo)
{
    const auto size = samples.size();
    Spectrum spectrum(size);
    double taperEnergy = 0;
    for (std::size_t i = 0; i < size; ++i) {
        // The side lobes of a Hann window to the fourth power decrease by 54 dB per octave.
        const double hann = std::sin(std::numbers::pi * static_cast<double>(i) / static_cast<double>(size));
        const double taper = std::pow(hann, 8);
        taperEnergy += taper * taper;
        spectrum[i] = taper * static_cast<double>(samples[i]);
    }
    transform(spectrum, -1);
    for (std::size_t bin = 0; bin < size; ++bin) {
        const double frequency = frequencyOf(bin, rate, size);
        if (bandFrom <= frequency && frequency <= bandTo)
            spectrum[bin] = 0;
    }
    transform(spectrum, 1);
    double energy = 0;
    double peak = 0;
    for (const auto& value : spectrum) {
        const double remaining = value.real() / static_cast<double>(size);
        energy += remaining * remaining;
        peak = std::max(peak, std::abs(remaining));
    }
    return { .rms = decibels(std::sqrt(energy / taperEnergy)), .peak = decibels(peak) };
}

Samples pinkNoise(std::uint32_t seed, double rate, double from, double to, std::size_t frames)
{
    std::mt19937 generator(seed);
    std::uniform_real_distribution<double> angle(0, 2 * std::numbers::pi);
    Spectrum spectrum(frames);
    double energy = 0;
    for (std::size_t bin = 1; bin < frames / 2; ++bin) {
        const double frequency = frequencyOf(bin, rate, frames);
        if (frequency < from || frequency > to)
            continue;
        const double magnitude = 1 / std::sqrt(frequency);
        spectrum[bin] = std::polar(magnitude, angle(generator));
        // The real part of a complex oscillation has half its energy.
        energy += magnitude * magnitude / 2;
    }
    transform(spectrum, 1);
    Samples samples(frames);
    for (std::size_t frame = 0; frame < frames; ++frame)
        samples[frame] = static_cast<float>(spectrum[frame].real() / std::sqrt(energy));
    return samples;
}

double decibels(double ratio)
{
    return 20 * std::log10(ratio);
}

std::vector<std::pair<std::string, BandGains>> presets()
{
    std::vector<std::pair<std::string, BandGains>> presets;
    for (const auto& [name, preset] : builtin_presets()) {
        BandGains sliders {};
        std::ranges::copy(tenGains(preset), sliders.begin());
        presets.emplace_back(name, sliders);
    }
    return presets;
}

} // namespace brimsound::audio::tests
