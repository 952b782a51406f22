#include "desktop/presets/Printing.h"

#include "desktop/engine/audio/EqualizerDesign.h"
#include "desktop/engine/audio/FilterResponse.h"
#include "desktop/presets/PresetStore.h"
#include "presets/Filter.h"
#include "presets/Text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>

namespace brimsound::presets {

namespace {

using nlohmann::ordered_json;

double peakOf(const OwnPreset& preset)
{
    return audio::maximumResponse(audio::EqualizerDesign(comparisonRate).solve(preset.gains, 0));
}

std::string withSign(double gain)
{
    const auto text = fixed(gain, 1);
    return gain > 0 && text != "0.0" ? "+" + text : text;
}

std::string padded(const std::string& text, std::size_t width)
{
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

/// One column per dB to either side of the middle.
std::string barOf(double gain)
{
    constexpr auto half = static_cast<std::size_t>(audio::sliderLimit);
    const auto length = static_cast<std::size_t>(std::lround(std::abs(gain)));
    if (gain < 0)
        return std::string(half - length, ' ') + std::string(length, '#') + "|";
    return std::string(half, ' ') + "|" + std::string(length, '#');
}

/// Names in the preferences may have halves of surrogate pairs, which JSON text cannot have.
std::string textOf(const ordered_json& value)
{
    return value.dump(2, ' ', false, ordered_json::error_handler_t::replace);
}

} // namespace

std::string tableOf(const OwnPreset& preset)
{
    constexpr std::size_t captionWidth = 8;
    constexpr std::size_t gainWidth = 8;
    auto table = preset.name + "\n";
    for (std::size_t band = 0; band < audio::bandCount; ++band) {
        table += padded(frequencyText(audio::centers[band]), captionWidth)
            + padded(withSign(preset.gains[band]), gainWidth) + " dB  " + barOf(preset.gains[band]) + "\n";
    }
    return table + "The highest gain of the response is " + withSign(peakOf(preset)) + " dB.";
}

std::string presetInJson(const OwnPreset& preset)
{
    return textOf({ { "name", preset.name }, { "gains", preset.gains }, { "peak", peakOf(preset) } });
}

std::string listInJson(const PresetStore& store)
{
    auto presets = ordered_json::array();
    for (const auto& name : store.names()) {
        ordered_json gains;
        try {
            gains = store.gainsOf(name);
        } catch (const std::runtime_error&) {
            // Null marks a preset that is not ten gains.
        }
        presets.push_back({ { "name", name }, { "gains", gains } });
    }
    ordered_json selected;
    if (const auto name = store.selected())
        selected = *name;
    return textOf({ { "selected", selected }, { "presets", presets } });
}

std::string resultOf(const ImportedPreset& preset)
{
    auto text = inQuotes(preset.name);
    const auto& difference = preset.conversion.difference;
    if (!difference)
        return text + ", positions copied";
    return text + ", off by " + fixed(difference->rms, 2) + " dB rms, at most "
        + fixed(difference->largest, 1) + " dB, at " + frequencyText(difference->frequency);
}

std::string gainsInLine(const audio::BandGains& gains)
{
    std::string line;
    for (const double gain : gains)
        line += (line.empty() ? "" : " ") + withSign(gain);
    return line;
}

} // namespace brimsound::presets
