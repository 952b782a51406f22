#include "desktop/render/Gains.h"

#include "settings/TenGains.h"
#include "settings/store/preferences.h"
#include "settings/store/presets.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace brimsound::render {

namespace {

PropertyList::Dictionary allPresets()
{
    auto preferences = get_preferences();
    return take_presets(preferences);
}

} // namespace

std::vector<std::string> presetNames()
{
    std::vector<std::string> names;
    for (const auto& preset : allPresets())
        names.push_back(preset.key);
    return names;
}

audio::BandGains gainsOfPreset(const std::string& name)
{
    const auto presets = allPresets();
    const auto* preset = presets.find(name);
    if (!preset)
        throw std::runtime_error("there is no preset \"" + name + "\"");
    if (!hasTenGains(*preset))
        throw std::runtime_error("preset \"" + name + "\" is not ten gains");

    audio::BandGains gains {};
    std::ranges::transform(tenGains(*preset), gains.begin(), [](float gain) {
        // A slider does the same.
        return std::isnan(gain) ? 0.0 : std::clamp<double>(gain, -audio::sliderLimit, audio::sliderLimit);
    });
    return gains;
}

double autoPreamp(const audio::BandGains& gains)
{
    return -std::max(-audio::sliderLimit, *std::ranges::max_element(gains));
}

} // namespace brimsound::render
