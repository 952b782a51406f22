#include "presets/Exporting.h"

#include "desktop/engine/audio/EqualizerDesign.h"
#include "desktop/engine/audio/FilterResponse.h"
#include "presets/Curve.h"
#include "presets/Filter.h"
#include "presets/Text.h"
#include "presets/formats/BrimsoundJson.h"
#include "presets/formats/Eqf.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <vector>

namespace brimsound::presets {

namespace {

using nlohmann::ordered_json;

audio::FilterTargets filtersOf(const OwnPreset& preset)
{
    return audio::EqualizerDesign(comparisonRate).solve(preset.gains, 0);
}

/// What keeps the sound within full scale: minus the highest response, rounded down to 0.1 dB.
double preampFor(const audio::FilterTargets& filters)
{
    // A difference, so that there is no "-0.0" in the file.
    return 0 - std::ceil(std::max(0.0, audio::maximumResponse(filters)) * 10) / 10;
}

/// PipeWire's reader takes at most six characters of a gain or a Q.
std::string sixCharacters(double number)
{
    constexpr std::size_t widest = 6;
    constexpr int mostDecimals = 4;
    auto text = fixed(number, mostDecimals);
    for (int decimals = mostDecimals; text.size() > widest && decimals > 1;)
        text = fixed(number, --decimals);
    return text;
}

/// PipeWire's reader takes the first line as the preamp whatever it is, and needs the filters' numbers.
std::string equalizerApo(const OwnPreset& preset)
{
    const auto filters = filtersOf(preset);
    auto text = "Preamp: " + fixed(preampFor(filters), 1) + " dB\n";
    for (std::size_t band = 0; band < filters.bands; ++band) {
        text += "Filter " + std::to_string(band + 1) + ": ON PK Fc " + fixed(audio::centers[band], 0)
            + " Hz Gain " + sixCharacters(filters.gains[band]) + " dB Q "
            + sixCharacters(1 / filters.inverseQ[band]) + "\n";
    }
    return text;
}

/// AutoEq's frequencies, which Wavelet requires: 20 times powers of 1.0563, cut to integers, each once.
std::vector<double> graphicEqFrequencies()
{
    constexpr double first = 20;
    constexpr double ratio = 1.0563;
    constexpr double last = 20000;
    std::vector<double> frequencies;
    double frequency = first;
    while (frequency < last) {
        const double whole = std::floor(frequency);
        if (frequencies.empty() || whole != frequencies.back())
            frequencies.push_back(whole);
        frequency *= ratio;
    }
    return frequencies;
}

/// The response, shifted so that it nowhere amplifies. One line without an end, as AutoEq writes it.
std::string graphicEq(const OwnPreset& preset)
{
    const auto filters = filtersOf(preset);
    Curve curve;
    for (const double frequency : graphicEqFrequencies())
        curve.push_back({ frequency, audio::responseAt(filters, frequency) });
    const double highest = std::ranges::max(curve, {}, &CurvePoint::gain).gain;
    std::string text = "GraphicEQ: ";
    for (const auto& [frequency, gain] : curve) {
        text += frequency == curve.front().frequency ? "" : "; ";
        text += fixed(frequency, 0) + " " + fixed(gain - highest, 1);
    }
    return text;
}

std::string easyEffects(const OwnPreset& preset)
{
    const auto filters = filtersOf(preset);
    auto bands = ordered_json::object();
    for (std::size_t band = 0; band < filters.bands; ++band) {
        bands["band" + std::to_string(band)] = { { "type", "Bell" }, { "mode", "APO (DR)" },
            { "slope", "x1" }, { "solo", false }, { "mute", false }, { "gain", filters.gains[band] },
            { "frequency", audio::centers[band] }, { "q", 1 / filters.inverseQ[band] }, { "width", 4.0 } };
    }
    const ordered_json equalizer { { "bypass", false }, { "input-gain", preampFor(filters) },
        { "output-gain", 0.0 }, { "mode", "IIR" }, { "split-channels", false }, { "balance", 0.0 },
        { "pitch-left", 0.0 }, { "pitch-right", 0.0 }, { "num-bands", filters.bands }, { "left", bands },
        { "right", bands } };
    const ordered_json file { { "output",
        { { "blocklist", ordered_json::array() }, { "plugins_order", ordered_json::array({ "equalizer#0" }) },
            { "equalizer#0", equalizer } } } };
    constexpr int indent = 4;
    return file.dump(indent) + "\n";
}

} // namespace

bool canExport(Format format)
{
    return format != Format::Xmms && format != Format::TenNumbers;
}

bool holdsSeveral(Format format)
{
    return format == Format::Eqf || format == Format::BrimsoundJson;
}

std::string exported(std::span<const OwnPreset> presets, Format format, Findings& findings)
{
    switch (format) {
    case Format::EqualizerApo:
        return equalizerApo(presets.front());
    case Format::GraphicEq:
        return graphicEq(presets.front());
    case Format::EasyEffects:
        return easyEffects(presets.front());
    case Format::Eqf:
        return writeEqf(presets, findings);
    default:
        return writeBrimsoundJson(presets);
    }
}

} // namespace brimsound::presets
