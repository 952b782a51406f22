// The relation of a file's samples to full scale.
#pragma once

#include <sndfile.h>

#include <span>

namespace brimsound::render {

/// Converts between libsndfile's samples and samples with full scale 1. libsndfile's own conversion
/// multiplies by 32768 in one direction and by 32767 in the other, which changes integers. This conversion
/// does not.
class SampleScale {
public:
    /// Makes the open file use samples in its own scale.
    explicit SampleScale(SNDFILE*, int format);

    void toFullScale(std::span<float>) const;
    /// Clips to the range of the format: an integer that is too large would wrap around.
    void fromFullScale(std::span<float>) const;

private:
    // Full scale in the file's own unit.
    float _unit = 1;
    // The limits of a sample in the file's own unit.
    float _lowest;
    float _highest;
};

} // namespace brimsound::render
