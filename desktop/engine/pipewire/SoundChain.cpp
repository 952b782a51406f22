#include "desktop/engine/pipewire/SoundChain.h"

#include "desktop/engine/audio/EqualizerDesign.h"
#include "desktop/engine/audio/FilterResponse.h"

#include <algorithm>

namespace brimsound::engine {

double SoundChain::set(const Settings& settings, double rate)
{
    const auto filters = audio::EqualizerDesign(rate).solve(settings.sliders, settings.preamp);
    _handover.write({ filters, settings.limits });
    return filters.preamp + audio::maximumResponse(filters);
}

void SoundChain::process(
    const float* const* in, float* const* out, unsigned channels, std::size_t frames) noexcept
{
    if (const auto* targets = _handover.read()) {
        _equalizer.set(targets->filters);
        if (targets->filters.rate != _rate) {
            _rate = targets->filters.rate;
            _limiter = audio::Limiter(_rate);
        }
        _limits = targets->limits;
    }
    if (_rate == 0 || _muted.load(std::memory_order_relaxed)) {
        for (unsigned channel = 0; channel < channels; ++channel)
            std::fill_n(out[channel], frames, 0.0F);
        return;
    }
    _equalizer.process(in, out, channels, frames);
    if (_limits && _limiter.process(out, channels, frames))
        _limitedBlocks.fetch_add(1, std::memory_order_relaxed);
}

} // namespace brimsound::engine
