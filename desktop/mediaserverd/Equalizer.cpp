#include "desktop/mediaserverd/Equalizer.h"

#include "settings/tweak.h"

#include <algorithm>
#include <cmath>

namespace brimsound::mediaserver {

namespace {

/// In dB, the limit of the sliders.
constexpr float largestGain = 12;

float finiteOrZero(float gain)
{
    return std::isfinite(gain) ? gain : 0;
}

} // namespace

std::optional<Gains> gainsOfMessage(const PropertyList::Dictionary& userInfo)
{
    const auto* vals = arrayForKey(userInfo, valsKey);
    Gains gains;
    if (!vals || vals->size() != gains.size())
        return std::nullopt;
    for (std::size_t i = 0; i < gains.size(); ++i) {
        const auto& val = (*vals)[i];
        gains[i] = val.floatValue();
        if (!(val.asReal() || val.asInteger()) || !std::isfinite(gains[i]))
            return std::nullopt;
    }
    return gains;
}

Gains gainsOfPreferences(const PropertyList::Dictionary& preferences)
{
    Gains gains {};
    gains[0] = finiteOrZero(floatForKey(preferences, preampKey));
    if (const auto* bands = arrayForKey(preferences, peakingEqValuesKey)) {
        const auto count = std::min(bands->size(), gains.size() - 1);
        for (std::size_t band = 0; band < count; ++band)
            gains[band + 1] = finiteOrZero((*bands)[band].floatValue());
    }
    return gains;
}

void Equalizer::setGains(Gains gains)
{
    for (auto& gain : gains)
        gain = std::clamp(gain, -largestGain, largestGain);
    if (gains == _gains)
        return;
    _gains = gains;
    if (onChange)
        onChange(_gains);
}

} // namespace brimsound::mediaserver
