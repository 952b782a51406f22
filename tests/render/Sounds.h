// Sound files as tests see them.
#pragma once

#include <sndfile.h>

#include <filesystem>
#include <string>
#include <vector>

namespace brimsound::render {

struct Sound {
    int rate = 0;
    int channels = 0;
    /// libsndfile's.
    int format = 0;
    /// Interleaved, full scale is 1.
    std::vector<float> samples;
    std::string title {};
    /// Which channel is which, libsndfile's numbers; empty when the file does not tell.
    std::vector<int> order {};
};

void write(const std::filesystem::path&, const Sound&);
/// Without samples when it cannot be read.
Sound read(const std::filesystem::path&);

/// One second of one channel.
std::vector<float> sine(double frequency, double rate, float amplitude);
std::vector<float> noise(int count);

/// Of the second half, where a filter has settled.
double rms(const Sound&);
float peak(const Sound&);

} // namespace brimsound::render
