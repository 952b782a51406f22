#pragma once

#include "desktop/engine/audio/BellFilter.h"
#include "desktop/engine/audio/FilterTargets.h"
#include "desktop/engine/audio/GainSmoother.h"
#include "desktop/engine/audio/Pair.h"

#include <array>
#include <cstddef>

namespace brimsound::audio {

constexpr unsigned maximumChannels = 8;

/// Applies ten bells and a preamp to up to eight channels of single-precision samples. Computes in double
/// precision.
///
/// Gains change smoothly: each passes, in dB, through two one-pole low-passes of 10 ms, with a step every 16
/// samples. Coefficients are interpolated between steps. When all gains have reached 0 dB, samples pass
/// bit-identical. The output does not depend on how the stream is divided into blocks.
///
/// set, settle and process neither allocate nor lock. They must be called on one thread.
class EqualizerProcessor {
public:
    /// Passes samples unchanged until targets are set.
    EqualizerProcessor() noexcept;

    /// From the next step on, gains move to these targets. The first targets, and targets for another rate,
    /// take effect at once.
    void set(const FilterTargets&) noexcept;

    /// Jumps to the targets and clears the filters' state. For a stream that starts, or resumes after a
    /// pause.
    void settle() noexcept;

    /// Whether all gains have reached their targets.
    bool isSettled() const noexcept { return _settled; }

    /// `in` and `out` point to `channels` (at most eight) arrays of `frames` samples. An input array may be
    /// the output array of the same channel; null means silence. Samples that are NaN or exceed a million
    /// times full scale count as 0.
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
    // The fraction of the remaining distance that each pole covers in a step.
    double _share = 1;
    bool _settled = true;

    // At the start of the step and, unless settled, at its end.
    Coefficients _coefficients;
    Coefficients _end;
    // The number of samples processed in the step.
    std::size_t _position = 0;

    std::array<Cascade, maximumChannels / 2> _cascades;
};

} // namespace brimsound::audio
