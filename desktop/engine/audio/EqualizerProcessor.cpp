#include "desktop/engine/audio/EqualizerProcessor.h"

#include "desktop/engine/audio/FlushDenormals.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace brimsound::audio {

namespace {

// In seconds, for each of the two poles.
constexpr double timeConstant = 0.01;
// In samples.
constexpr std::size_t stepLength = 16;
// Full scale is 1.
constexpr float largestSample = 1e6f;
constexpr double largestState = 1e12;

// Null means silence.
float sampleAt(const float* samples, std::size_t frame)
{
    if (!samples)
        return 0;
    const float sample = samples[frame];
    // The condition is false for NaN.
    return std::abs(sample) <= largestSample ? sample : 0;
}

// Unfiltered samples keep their bits, including the sign of zero and numbers that the arithmetic rounds to
// zero.
float outputFor(float input, double x, double y)
{
    return y == x ? input : static_cast<float>(y);
}

} // namespace

/// The arrays of a pair of channels. The second output is null when there is no second channel.
struct EqualizerProcessor::Channels {
    std::array<const float*, 2> in;
    std::array<float*, 2> out;

    std::array<float, 2> inputs(std::size_t frame) const
    {
        return { sampleAt(in[0], frame), sampleAt(in[1], frame) };
    }

    void write(std::size_t frame, const std::array<float, 2>& inputs, Pair x, Pair y) const
    {
        out[0][frame] = outputFor(inputs[0], x[0], y[0]);
        if (out[1])
            out[1][frame] = outputFor(inputs[1], x[1], y[1]);
    }
};

EqualizerProcessor::EqualizerProcessor() noexcept
{
    settle();
}

void EqualizerProcessor::set(const FilterTargets& targets) noexcept
{
    const bool otherRate = targets.rate != _targets.rate;
    _targets = targets;
    if (otherRate) {
        _share = 1 - std::exp(-static_cast<double>(stepLength) / (timeConstant * targets.rate));
        settle();
        return;
    }
    if (!_settled)
        return;
    _end = _coefficients;
    _position = stepLength;
    _settled = false;
}

void EqualizerProcessor::settle() noexcept
{
    for (std::size_t band = 0; band < bandCount; ++band)
        _gains[band].jumpTo(_targets.gains[band]);
    _preamp.jumpTo(_targets.preamp);
    _coefficients = coefficientsOfSmoothers();
    _settled = true;
    _cascades = {};
}

EqualizerProcessor::Coefficients EqualizerProcessor::coefficientsOfSmoothers() const noexcept
{
    Coefficients coefficients;
    for (std::size_t band = 0; band < bandCount; ++band) {
        const auto bell
            = bellCoefficients(_gains[band].value(), _targets.tangents[band], _targets.inverseQ[band]);
        coefficients.bells[band] = {
            .tangent = pair(bell.tangent),
            .feedback = pair(bell.feedback),
            .mix = pair(bell.mix),
            .through = pair(bell.through),
        };
    }
    coefficients.preamp = pair(std::exp(_preamp.value() * (std::numbers::ln10 / 20)));
    return coefficients;
}

EqualizerProcessor::Coefficients EqualizerProcessor::difference(
    const Coefficients& end, const Coefficients& begin) noexcept
{
    Coefficients difference;
    for (std::size_t band = 0; band < bandCount; ++band) {
        difference.bells[band] = {
            .feedback = end.bells[band].feedback - begin.bells[band].feedback,
            .mix = end.bells[band].mix - begin.bells[band].mix,
            .through = end.bells[band].through - begin.bells[band].through,
        };
    }
    difference.preamp = end.preamp - begin.preamp;
    return difference;
}

void EqualizerProcessor::beginStep() noexcept
{
    _coefficients = _end;
    _position = 0;
    _settled = _preamp.isAt(_targets.preamp);
    _preamp.stepToward(_targets.preamp, _share);
    for (std::size_t band = 0; band < bandCount; ++band) {
        _settled = _settled && _gains[band].isAt(_targets.gains[band]);
        _gains[band].stepToward(_targets.gains[band], _share);
    }
    if (!_settled)
        _end = coefficientsOfSmoothers();
}

void EqualizerProcessor::process(
    const float* const* in, float* const* out, unsigned channels, std::size_t frames) noexcept
{
    const FlushDenormals flushDenormals;
    for (std::size_t done = 0; done < frames;) {
        if (!_settled && _position == stepLength)
            beginStep();
        const auto length = _settled ? frames - done : std::min(frames - done, stepLength - _position);
        for (unsigned channel = 0; channel < channels; channel += 2) {
            const bool two = channel + 1 < channels;
            const auto* second = two ? in[channel + 1] : nullptr;
            const Channels pair {
                .in = { in[channel] ? in[channel] + done : nullptr, second ? second + done : nullptr },
                .out = { out[channel] + done, two ? out[channel + 1] + done : nullptr },
            };
            auto& cascade = _cascades[channel / 2];
            if (_settled)
                processStill(cascade, pair, length);
            else
                processMoving(cascade, pair, length);
        }
        done += length;
        _position += length;
    }
    clearPoison();
}

void EqualizerProcessor::processStill(
    Cascade& cascade, const Channels& channels, std::size_t frames) const noexcept
{
    // Copies, so that the compiler knows that no output array overlaps them.
    auto filters = cascade;
    const auto coefficients = _coefficients;
    for (std::size_t frame = 0; frame < frames; ++frame) {
        const auto input = channels.inputs(frame);
        const Pair x { input[0], input[1] };
        Pair y = x;
        for (std::size_t band = 0; band < bandCount; ++band)
            y = filters[band].next(y, coefficients.bells[band]);
        channels.write(frame, input, x, coefficients.preamp * y);
    }
    cascade = filters;
}

void EqualizerProcessor::processMoving(
    Cascade& cascade, const Channels& channels, std::size_t frames) const noexcept
{
    auto filters = cascade;
    const auto begin = _coefficients;
    const auto change = difference(_end, begin);
    for (std::size_t frame = 0; frame < frames; ++frame) {
        const auto share = pair(static_cast<double>(_position + frame + 1) / stepLength);
        const auto input = channels.inputs(frame);
        const Pair x { input[0], input[1] };
        Pair y = x;
        for (std::size_t band = 0; band < bandCount; ++band) {
            const auto& bell = begin.bells[band];
            const auto& bellChange = change.bells[band];
            y = filters[band].next(y,
                {
                    .tangent = bell.tangent,
                    .feedback = bell.feedback + share * bellChange.feedback,
                    .mix = bell.mix + share * bellChange.mix,
                    .through = bell.through + share * bellChange.through,
                });
        }
        channels.write(frame, input, x, (begin.preamp + share * change.preamp) * y);
    }
    cascade = filters;
}

void EqualizerProcessor::clearPoison() noexcept
{
    for (auto& cascade : _cascades) {
        for (auto& filter : cascade) {
            for (const int lane : { 0, 1 }) {
                // The condition is negated so that NaN is cleared too.
                if (!(std::abs(filter.s1[lane]) < largestState && std::abs(filter.s2[lane]) < largestState))
                    filter.s1[lane] = filter.s2[lane] = 0;
            }
        }
    }
}

} // namespace brimsound::audio
