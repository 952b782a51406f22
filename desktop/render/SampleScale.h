// How a file's samples relate to full scale.
#pragma once

#include <sndfile.h>

#include <span>

namespace brimsound::render {

/// Between samples as libsndfile hands them over and samples at which full scale is 1. libsndfile's own
/// conversion scales by 32768 in one direction and by 32767 in the other, so that integers come out changed;
/// with this one they do not.
class SampleScale {
public:
    /// Prepares the file, which is open, for samples in its own scale.
    explicit SampleScale(SNDFILE*, int format);

    void toFullScale(std::span<float>) const;
    /// Clips to what the format can hold: an integer that is too large would wrap around.
    void fromFullScale(std::span<float>) const;

private:
    // What the file calls full scale.
    float _unit = 1;
    // The limits of a sample in the file's own scale.
    float _lowest;
    float _highest;
};

} // namespace brimsound::render
