#include "tests/support/sound/SoundFile.h"

#include <cmath>
#include <cstdint>
#include <fstream>
#include <numbers>

namespace brimsound::tests {

namespace {

template <typename Number> void put(std::ofstream& file, Number number)
{
    file.write(reinterpret_cast<const char*>(&number), sizeof number);
}

} // namespace

std::vector<float> sine(double seconds)
{
    std::vector<float> samples(static_cast<std::size_t>(seconds * 48000));
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = static_cast<float>(
            sineAmplitude * std::sin(2 * std::numbers::pi * static_cast<double>(i % 48) / 48));
    return samples;
}

void writeSound(
    const std::filesystem::path& path, const std::vector<float>& samples, unsigned channels, unsigned rate)
{
    std::vector<float> interleaved;
    for (const float sample : samples)
        interleaved.insert(interleaved.end(), channels, sample);
    writeInterleaved(path, interleaved, channels, rate);
}

void writeInterleaved(
    const std::filesystem::path& path, const std::vector<float>& samples, unsigned channels, unsigned rate)
{
    const auto bytes = static_cast<std::uint32_t>(samples.size() * sizeof(float));
    const auto frame = static_cast<std::uint32_t>(channels * sizeof(float));
    std::ofstream file(path, std::ios::binary);
    file << "RIFF";
    put<std::uint32_t>(file, 36 + bytes);
    file << "WAVEfmt ";
    put<std::uint32_t>(file, 16);
    // The format code for floating-point numbers.
    put<std::uint16_t>(file, 3);
    put(file, static_cast<std::uint16_t>(channels));
    put<std::uint32_t>(file, rate);
    put<std::uint32_t>(file, rate * frame);
    put(file, static_cast<std::uint16_t>(frame));
    put<std::uint16_t>(file, 32);
    file << "data";
    put(file, bytes);
    file.write(reinterpret_cast<const char*>(samples.data()), static_cast<std::streamsize>(bytes));
}

} // namespace brimsound::tests
