// The filters at work on a stream of samples.
#pragma once

#include "desktop/engine/audio/BellFilter.h"
#include "desktop/engine/audio/FilterTargets.h"
#include "desktop/engine/audio/GainSmoother.h"
#include "desktop/engine/audio/Pair.h"

#include <array>
#include <cstddef>

namespace brimsound::audio {

constexpr unsigned maximumChannels = 8;

/// Ten bells and a preamp for up to eight channels of single-precision samples; inside it counts in double
/// precision.
///
/// Gains glide: each goes in dB through two one-pole low-passes of 10 ms, a step every 16 samples, and
/// coefficients are interpolated between steps. A gain of 0 dB everywhere, once reached, passes samples to
/// the bit. What comes out does not depend on how the stream is cut into blocks.
///
/// set, settle and process take neither memory nor locks, and belong on one thread.
class EqualizerProcessor {
public:
    /// Passes samples unchanged until targets are set.
    EqualizerProcessor() noexcept;

    /// From the next step on the gains glide to these. The first targets, and those for another rate, are
    /// settled at once.
    void set(const FilterTargets&) noexcept;

    /// Jumps to the targets and forgets the sound so far: for a stream that begins, or begins again after a
    /// pause.
    void settle() noexcept;

    /// Whether no gain is moving any more.
    bool isSettled() const noexcept { return _settled; }

    /// `in` and `out` point to `channels` (at most eight) arrays of `frames` samples. An input array may be
    /// the output array of the same channel, and null stands for silence. Samples that are no number, or
    /// beyond a million times full scale, count as 0.
    void process(const float* const* in, float* const* out, unsigned channels, std::size_t frames) noexcept;

private:
    using Cascade = std::array<BellFilter<Pair>, bandCount>;

    struct Coefficients {
        std::array<BellCoefficients<Pair>, bandCount> bells;
        Pair preamp {};
    };
    struct Channels;

    void beginStep() noexcept;
    Coefficients coefficientsOfSmoothers() const noexcept;
    static Coefficients difference(const Coefficients& end, const Coefficients& begin) noexcept;
    void processStill(Cascade&, const Channels&, std::size_t frames) const noexcept;
    void processMoving(Cascade&, const Channels&, std::size_t frames) const noexcept;
    void clearPoison() noexcept;

    FilterTargets _targets;
    std::array<GainSmoother, bandCount> _gains;
    GainSmoother _preamp;
    // What each pole covers of its distance in a step.
    double _share = 1;
    bool _settled = true;

    // Where the step began, and unless settled where it ends.
    Coefficients _coefficients;
    Coefficients _end;
    // How many samples of the step are done.
    std::size_t _position = 0;

    std::array<Cascade, maximumChannels / 2> _cascades;
};

} // namespace brimsound::audio
