// The last stage before the output. It keeps samples below full scale.
#pragma once

#include <cstddef>

namespace brimsound::audio {

/// Reduces all channels by the same factor while any of them would exceed -0.1 dBFS. The attack is immediate,
/// so there is no latency; the release has a time constant of 0.2 s. While no sample exceeds the limit,
/// samples pass bit-identical.
class Limiter {
public:
    /// `rate` in Hz.
    explicit Limiter(double rate);

    /// Processes `frames` samples of each channel in place. Samples that are not finite become 0. Returns
    /// true when a sample in this block was above -0.1 dBFS. Neither allocates nor locks.
    bool process(float* const* channels, unsigned count, std::size_t frames) noexcept;

private:
    // The fraction of the distance to 1 that each sample covers.
    double _release;
    double _gain = 1;
};

} // namespace brimsound::audio
