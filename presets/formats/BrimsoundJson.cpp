#include "presets/formats/BrimsoundJson.h"

#include "presets/Text.h"
#include "presets/formats/Json.h"

#include <cmath>

namespace brimsound::presets {

namespace {

using nlohmann::json;
using nlohmann::ordered_json;

constexpr auto formatName = "brimsound-presets";
constexpr int version = 1;

void readPreset(const json& entry, const std::string& path, ForeignPreset& preset)
{
    if (const auto* name = entry.is_object() && entry.contains("name")
            ? entry["name"].get_ptr<const json::string_t*>()
            : nullptr)
        preset.name = *name;
    const auto* gains = entry.is_object() && entry.contains("gains")
        ? entry["gains"].get_ptr<const json::array_t*>()
        : nullptr;
    if (!gains || gains->size() != audio::bandCount) {
        preset.findings.refuse(path + ".gains", "there are no ten gains");
        return;
    }
    Positions positions;
    for (std::size_t band = 0; band < audio::bandCount; ++band) {
        const auto& gain = (*gains)[band];
        if (!gain.is_number() || !std::isfinite(gain.get<double>())) {
            preset.findings.refuse(path + ".gains[" + std::to_string(band) + "]", "this is no gain");
            return;
        }
        positions.gains[band] = gain.get<double>();
    }
    preset.target = positions;
}

} // namespace

bool isBrimsoundJson(const json& file)
{
    return file.is_object() && file.contains("format") && file["format"] == formatName;
}

ForeignPresets readBrimsoundJson(std::string_view text)
{
    ForeignPresets presets(1);
    const auto file = parseJson(text, presets.front().findings);
    if (!file)
        return presets;
    if (!isBrimsoundJson(*file))
        return refusedFile("format", "it is not \"brimsound-presets\"");
    if (!file->contains("version") || (*file)["version"] != version)
        return refusedFile("version", "only version 1 is known");
    const auto* entries
        = file->contains("presets") ? (*file)["presets"].get_ptr<const json::array_t*>() : nullptr;
    if (!entries || entries->empty())
        return refusedFile("presets", "there is no list of presets");
    if (entries->size() > mostItems)
        return refusedFile("presets", "more than " + std::to_string(mostItems) + " presets");
    presets.clear();
    for (const auto& entry : *entries) {
        const auto path = "presets[" + std::to_string(presets.size()) + "]";
        readPreset(entry, path, presets.emplace_back());
    }
    return presets;
}

std::string writeBrimsoundJson(std::span<const OwnPreset> presets)
{
    auto list = ordered_json::array();
    for (const auto& preset : presets)
        list.push_back({ { "name", preset.name }, { "gains", preset.gains } });
    const ordered_json file { { "format", formatName }, { "version", version }, { "presets", list } };
    constexpr int indent = 2;
    // Names in the preferences may have halves of surrogate pairs, which JSON text cannot have.
    return file.dump(indent, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}

} // namespace brimsound::presets
