#include "presets/formats/Xmms.h"

#include "presets/Text.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace brimsound::presets {

namespace {

constexpr double lowestOctave = 31.25;

struct Value {
    std::string_view text;
    std::string place;
};

struct Section {
    /// The line of its heading.
    std::string place;
    std::map<std::string_view, Value> values;
};

struct File {
    std::map<std::string_view, Section> sections;
    /// The values of "Preset0=" and so on in the order of the file.
    std::vector<Value> names;
};

File sectionsOf(std::string_view text)
{
    File file;
    Section* section = nullptr;
    bool isList = false;
    std::size_t number = 0;
    for (const auto whole : linesOf(text)) {
        const auto line = trimmed(whole);
        const auto place = std::to_string(++number);
        if (line.starts_with('[') && line.ends_with(']')) {
            const auto name = trimmed(line.substr(1, line.size() - 2));
            // Of several sections of a name the first one counts.
            const auto [entry, isNew] = file.sections.try_emplace(name, Section { place, {} });
            section = isNew ? &entry->second : nullptr;
            isList = name == "Presets";
            continue;
        }
        const auto equals = line.find('=');
        if (!section || equals == std::string_view::npos)
            continue;
        const auto key = trimmed(line.substr(0, equals));
        const Value value { trimmed(line.substr(equals + 1)), place };
        if (isList && key.starts_with("Preset"))
            file.names.push_back(value);
        else
            section->values.emplace(key, value);
    }
    return file;
}

/// Programs that follow the locale write a decimal comma.
std::optional<double> readGain(std::string_view text)
{
    std::string digits(text);
    std::ranges::replace(digits, ',', '.');
    return numberFrom(digits);
}

Target targetOf(const audio::BandGains& gains, const ReadingOptions& options)
{
    if (!options.bandsAreOctaves)
        return Positions { gains };
    Curve curve;
    for (std::size_t band = 0; band < gains.size(); ++band)
        curve.push_back({ std::ldexp(lowestOctave, static_cast<int>(band)), gains[band] });
    return Response { {}, { curve }, true };
}

void readSection(const Section& section, ForeignPreset& preset, const ReadingOptions& options)
{
    audio::BandGains gains {};
    for (std::size_t band = 0; band < gains.size(); ++band) {
        const auto key = "Band" + std::to_string(band);
        const auto value = section.values.find(key);
        if (value == section.values.end()) {
            preset.findings.refuse(section.place, "there is no \"" + key + "\"");
            return;
        }
        const auto gain = readGain(value->second.text);
        if (!gain || !std::isfinite(*gain)) {
            preset.findings.refuse(value->second.place, inQuotes(value->second.text) + " is no gain");
            return;
        }
        gains[band] = *gain;
    }
    preset.target = targetOf(gains, options);
    if (const auto preamp = section.values.find("Preamp"); preamp != section.values.end()) {
        const auto gain = readGain(preamp->second.text);
        if (gain && std::isfinite(*gain))
            preset.findings.notePreamp(preamp->second.place, *gain);
    }
}

} // namespace

ForeignPresets readXmms(std::string_view text, const ReadingOptions& options)
{
    const auto file = sectionsOf(text);
    ForeignPresets presets;
    if (const auto single = file.sections.find("Equalizer preset"); single != file.sections.end())
        readSection(single->second, presets.emplace_back(), options);
    if (file.names.size() > mostItems)
        return refusedFile(
            file.names[mostItems].place, "more than " + std::to_string(mostItems) + " presets");
    for (const auto& name : file.names) {
        auto& preset = presets.emplace_back();
        preset.name = utf8From(name.text);
        const auto section = file.sections.find(name.text);
        if (section == file.sections.end())
            preset.findings.refuse(name.place, "there is no section " + inQuotes(name.text));
        else
            readSection(section->second, preset, options);
    }
    if (presets.empty())
        return refusedFile({}, R"(there is no section "Equalizer preset" and no list "Presets")");
    return presets;
}

} // namespace brimsound::presets
