#include "tests/fuzz/PresetFile.h"

#include "presets/Conversion.h"
#include "presets/Exporting.h"
#include "presets/TargetPoints.h"
#include "presets/Text.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace brimsound::tests {

using namespace presets;

namespace {

void require(bool condition, const char* what)
{
    if (!condition)
        throw std::logic_error(what);
}

bool areFinite(const audio::BandGains& gains)
{
    return std::ranges::all_of(gains, [](double gain) { return std::isfinite(gain); });
}

void tryTarget(const Target& target)
{
    if (const auto* positions = std::get_if<Positions>(&target)) {
        require(areFinite(positions->gains), "a position is not finite");
        return;
    }
    const auto& response = std::get<Response>(target);
    for (const auto& filter : response.filters)
        require(!isMeaningless(filter) && !unusable(filter), "a filter cannot be used");
    // Evaluating thousands of filters would only slow the search for other inputs.
    constexpr std::size_t many = 50;
    if (response.filters.size() > many || response.curves.size() > many)
        return;
    for (const auto& point : pointsOf(response)) {
        require(std::isfinite(point.gain) && std::isfinite(point.weight), "the response is not finite");
        require(std::abs(point.gain) <= 24, "the response is not limited");
    }
}

void tryExport(const audio::BandGains& gains)
{
    for (const auto format : { Format::EqualizerApo, Format::GraphicEq, Format::EasyEffects, Format::Eqf,
             Format::BrimsoundJson }) {
        const OwnPreset preset { "Preset", gains };
        Findings findings;
        const auto file = exported({ &preset, 1 }, format, findings);
        require(!readPresets(file, {}, {}).front().findings.haveErrors(), "an export cannot be imported");
    }
}

} // namespace

void tryPresetFile(std::string_view bytes, std::optional<Format> format)
{
    const auto presets = readPresets(bytes, format, {});
    require(!presets.empty(), "there is neither a preset nor a reason");
    for (const auto& preset : presets) {
        for (const auto& finding : preset.findings.all())
            require(isName(finding.text), "a message is no text");
        if (!preset.findings.haveErrors())
            tryTarget(preset.target);
    }
}

void tryConversion(std::string_view bytes)
{
    const auto presets = readPresets(bytes, {}, {});
    const auto& preset = presets.front();
    const auto* response = std::get_if<Response>(&preset.target);
    constexpr std::size_t many = 20;
    if (preset.findings.haveErrors() || (response && response->filters.size() > many))
        return;
    Findings findings;
    const auto gains = convert(preset.target, Copying::Allowed, findings).gains;
    require(areFinite(gains), "a gain is not finite");
    require(std::ranges::all_of(gains, [](double gain) { return std::abs(gain) <= audio::sliderLimit; }),
        "a gain is beyond its limits");
    tryExport(gains);
}

} // namespace brimsound::tests
