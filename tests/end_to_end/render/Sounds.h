// Sound files for tests.
#pragma once

#include <sndfile.h>

#include <filesystem>
#include <string>
#include <vector>

namespace brimsound::render {

struct Sound {
    int rate = 0;
    int channels = 0;
    /// The format code of libsndfile.
    int format = 0;
    /// Interleaved, full scale is 1.
    std::vector<float> samples;
    std::string title {};
    /// The channel positions, as libsndfile's numbers; empty when the file has none.
    std::vector<int> order {};
};

void write(const std::filesystem::path&, const Sound&);
/// Has no samples when the file cannot be read.
Sound read(const std::filesystem::path&);

/// One second of one channel.
std::vector<float> sine(double frequency, double rate, float amplitude);
std::vector<float> noise(int count);

/// The rms of the second half, where the filters have settled.
double rms(const Sound&);
float peak(const Sound&);

} // namespace brimsound::render
