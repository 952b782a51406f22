#include "tests/end_to_end/render/Sounds.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace brimsound::render {

void write(const std::filesystem::path& path, const Sound& sound)
{
    SF_INFO info {};
    info.samplerate = sound.rate;
    info.channels = sound.channels;
    info.format = sound.format;
    auto* file = sf_open(path.c_str(), SFM_WRITE, &info);
    if (!sound.title.empty())
        sf_set_string(file, SF_STR_TITLE, sound.title.c_str());
    if (auto order = sound.order; !order.empty())
        sf_command(
            file, SFC_SET_CHANNEL_MAP_INFO, order.data(), static_cast<int>(order.size() * sizeof(int)));
    sf_command(file, SFC_SET_CLIPPING, nullptr, SF_TRUE);
    sf_write_float(file, sound.samples.data(), static_cast<sf_count_t>(sound.samples.size()));
    sf_close(file);
}

Sound read(const std::filesystem::path& path)
{
    SF_INFO info {};
    auto* file = sf_open(path.c_str(), SFM_READ, &info);
    if (!file)
        return {};
    Sound sound { .rate = info.samplerate, .channels = info.channels, .format = info.format, .samples = {} };
    sound.samples.resize(static_cast<std::size_t>(info.frames * info.channels));
    const auto read = sf_read_float(file, sound.samples.data(), info.frames * info.channels);
    sound.samples.resize(static_cast<std::size_t>(read));
    if (const char* title = sf_get_string(file, SF_STR_TITLE))
        sound.title = title;
    sound.order.resize(static_cast<std::size_t>(info.channels));
    const int size = static_cast<int>(sound.order.size() * sizeof(int));
    if (sf_command(file, SFC_GET_CHANNEL_MAP_INFO, sound.order.data(), size) != SF_TRUE)
        sound.order.clear();
    sf_close(file);
    return sound;
}

std::vector<float> sine(double frequency, double rate, float amplitude)
{
    std::vector<float> samples(static_cast<std::size_t>(rate));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double angle = 2 * std::numbers::pi * frequency / rate * static_cast<double>(i);
        samples[i] = amplitude * static_cast<float>(std::sin(angle));
    }
    return samples;
}

std::vector<float> noise(int count)
{
    std::mt19937 generator(1);
    std::uniform_real_distribution<float> distribution(-0.98f, 0.98f);
    std::vector<float> samples(static_cast<std::size_t>(count));
    std::ranges::generate(samples, [&] { return distribution(generator); });
    return samples;
}

double rms(const Sound& sound)
{
    double energy = 0;
    const auto half = sound.samples.size() / 2;
    for (std::size_t i = half; i < sound.samples.size(); ++i)
        energy += static_cast<double>(sound.samples[i]) * static_cast<double>(sound.samples[i]);
    return std::sqrt(energy / static_cast<double>(sound.samples.size() - half));
}

float peak(const Sound& sound)
{
    float peak = 0;
    for (const float sample : sound.samples)
        peak = std::max(peak, std::abs(sample));
    return peak;
}

} // namespace brimsound::render
