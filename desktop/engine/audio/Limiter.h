// The last step before the output: nothing beyond full scale.
#pragma once

#include <cstddef>

namespace brimsound::audio {

/// Turns all channels down together while any of them would exceed -0.1 dBFS. It attacks at once, so that it
/// adds no latency, and lets go with a time constant of 0.2 s. While it has nothing to do it changes no bit.
class Limiter {
public:
    /// `rate` in Hz.
    explicit Limiter(double rate);

    /// In place, `frames` samples of each channel. Samples that are no finite number become 0. True when a
    /// sample in this block was above -0.1 dBFS. Takes neither memory nor locks.
    bool process(float* const* channels, unsigned count, std::size_t frames) noexcept;

private:
    // What is covered of the distance to 1 in each sample.
    double _release;
    double _gain = 1;
};

} // namespace brimsound::audio
