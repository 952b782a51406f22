#include "desktop/presets/Import.h"

#include "desktop/presets/PresetStore.h"
#include "platform/desktop/Foundation/FileContents.h"
#include "presets/Text.h"

#include <array>
#include <string_view>

namespace brimsound::presets {

namespace {

namespace fs = std::filesystem;

using Outcome = ImportedPreset::Outcome;

std::string whyUnreadable(const fs::path& path)
{
    std::error_code error;
    const auto status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found)
        return "there is no such file";
    if (status.type() != fs::file_type::regular)
        return "it is no regular file";
    if (fs::file_size(path, error) > largestFile)
        return "it is larger than 1 MiB";
    return "it cannot be read";
}

ForeignPresets presetsOf(const fs::path& path, const Options& options)
{
    const auto bytes = desktop::readRegularFile(path, largestFile);
    if (!bytes)
        return refusedFile({}, whyUnreadable(path));
    const std::string_view contents(reinterpret_cast<const char*>(bytes->data()), bytes->size());
    return readPresets(contents, options.format, options.reading);
}

/// The file's name without its extension and without what AutoEq adds.
std::string nameOf(const fs::path& path)
{
    constexpr std::array<std::string_view, 3> kinds { " GraphicEQ", " ParametricEQ", " FixedBandEQ" };
    auto name = path.stem().string();
    for (const auto kind : kinds) {
        if (name.size() > kind.size() && name.ends_with(kind))
            name.resize(name.size() - kind.size());
    }
    return name;
}

std::string chooseName(const ForeignPreset& preset, const fs::path& path, const Options& options)
{
    if (options.name)
        return *options.name;
    return preset.name.empty() ? nameOf(path) : preset.name;
}

ImportedPreset convertPreset(ForeignPreset preset, const fs::path& path, const Options& options)
{
    ImportedPreset imported;
    imported.name = chooseName(preset, path, options);
    imported.findings = std::move(preset.findings);
    auto& findings = imported.findings;
    if (!findings.haveErrors() && !isName(imported.name))
        findings.refuse({}, inQuotes(imported.name) + " cannot be a name; give one with --name");
    if (!findings.haveErrors())
        imported.conversion = convert(preset.target, options.copying, findings);
    if (!findings.haveErrors() && options.strict && findings.haveWarnings())
        findings.refuse({}, "not imported because of the warnings");
    return imported;
}

std::string unusedName(const std::string& name, const PresetStore& store)
{
    for (int number = 2;; ++number) {
        const auto numbered = name + " (" + std::to_string(number) + ")";
        if (!store.contains(numbered))
            return numbered;
    }
}

} // namespace

std::vector<ImportedPreset> readFile(const fs::path& path, const Options& options)
{
    auto presets = presetsOf(path, options);
    if (presets.size() > 1 && options.name)
        presets = refusedFile(
            {}, "there are " + std::to_string(presets.size()) + " presets in it, so --name cannot be used");
    std::vector<ImportedPreset> imported;
    for (auto& preset : presets)
        imported.push_back(convertPreset(std::move(preset), path, options));
    return imported;
}

void store(std::vector<ImportedPreset>& presets, PresetStore& store, Collision collision)
{
    for (auto& preset : presets) {
        if (preset.findings.haveErrors())
            continue;
        const auto& gains = preset.conversion.gains;
        if (store.contains(preset.name, gains)) {
            preset.outcome = Outcome::AlreadyThere;
            continue;
        }
        if (store.contains(preset.name) && collision == Collision::Refuse) {
            preset.findings.refuse(
                {}, "there is another preset " + inQuotes(preset.name) + "; see --replace and --rename");
            continue;
        }
        if (store.contains(preset.name) && collision == Collision::Rename)
            preset.name = unusedName(preset.name, store);
        store.set(preset.name, gains);
        preset.outcome = Outcome::Stored;
    }
}

std::string lineFor(const Finding& finding, const fs::path& path)
{
    constexpr std::array<std::string_view, 3> severities { "note", "warning", "error" };
    auto line = path.string() + ":";
    if (!finding.place.empty())
        line += printable(finding.place) + ":";
    return line + " " + std::string(severities[static_cast<std::size_t>(finding.severity)]) + ": "
        + finding.text;
}

} // namespace brimsound::presets
