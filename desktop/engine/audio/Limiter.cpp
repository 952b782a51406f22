#include "desktop/engine/audio/Limiter.h"

#include "desktop/engine/audio/FlushDenormals.h"

#include <algorithm>
#include <cmath>

namespace brimsound::audio {

namespace {

constexpr double releaseTime = 0.2;
// -0.1 dBFS.
constexpr double ceiling = 0.98855309465693886;
// The release ends when the remaining change is 100 dB below the signal.
constexpr double nearOne = 1e-5;

} // namespace

Limiter::Limiter(double rate)
    : _release(1 - std::exp(-1 / (rate * releaseTime)))
{
}

bool Limiter::process(float* const* channels, unsigned count, std::size_t frames) noexcept
{
    const FlushDenormals flushDenormals;
    bool limited = false;
    for (std::size_t frame = 0; frame < frames; ++frame) {
        double peak = 0;
        for (unsigned channel = 0; channel < count; ++channel) {
            float& sample = channels[channel][frame];
            if (!std::isfinite(sample))
                sample = 0;
            peak = std::max(peak, static_cast<double>(std::abs(sample)));
        }
        limited = limited || peak > ceiling;
        if (peak * _gain > ceiling)
            _gain = ceiling / peak;
        if (_gain == 1)
            continue;
        for (unsigned channel = 0; channel < count; ++channel)
            channels[channel][frame] = static_cast<float>(channels[channel][frame] * _gain);
        _gain += _release * (1 - _gain);
        if (1 - _gain < nearOne)
            _gain = 1;
    }
    return limited;
}

} // namespace brimsound::audio
