#include "desktop/presets/Import.h"

#include "desktop/presets/PresetStore.h"
#include "platform/desktop/Foundation/FileContents.h"
#include "presets/Text.h"

#include <array>
#include <map>
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

ForeignPresets presetsOf(const fs::path& path, const ImportOptions& options)
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

std::string chooseName(const ForeignPreset& preset, const fs::path& path, const ImportOptions& options)
{
    if (options.name)
        return *options.name;
    return preset.name.empty() ? nameOf(path) : preset.name;
}

ImportedPreset convertPreset(
    ForeignPreset preset, const fs::path& path, bool isOnly, const ImportOptions& options)
{
    ImportedPreset imported;
    imported.name = chooseName(preset, path, options);
    imported.findings = std::move(preset.findings);
    auto& findings = imported.findings;
    if (!findings.haveErrors() && !isName(imported.name))
        findings.refuse({},
            inQuotes(imported.name) + " cannot be a name"
                + (isOnly ? "; give one with brimsound-presets import --name" : ""));
    if (!findings.haveErrors())
        imported.conversion = convert(preset.target, options.copying, findings);
    if (!findings.haveErrors() && options.strict && findings.haveWarnings())
        findings.refuse({}, "not imported because of the warnings");
    return imported;
}

/// The next number to try for each name. It only grows, so that a file of thousands of presets of one name
/// takes no quadratic time.
using Numbers = std::map<std::string, int>;

/// The name, or a numbered one, that is not taken by a preset with other gains.
std::string freeName(
    const std::string& name, const audio::BandGains& gains, const PresetStore& store, Numbers& numbers)
{
    constexpr int first = 2;
    auto& number = numbers.try_emplace(name, first).first->second;
    auto numbered = name;
    while (store.contains(numbered) && !store.contains(numbered, gains))
        numbered = name + " (" + std::to_string(number++) + ")";
    return numbered;
}

void store(ImportedPreset& preset, PresetStore& store, Collision collision, Numbers& numbers)
{
    if (preset.findings.haveErrors()) {
        preset.outcome = Outcome::Refused;
        return;
    }
    const auto& gains = preset.conversion.gains;
    if (collision == Collision::Rename)
        preset.name = freeName(preset.name, gains, store, numbers);
    if (store.contains(preset.name, gains)) {
        preset.outcome = Outcome::AlreadyThere;
    } else if (store.contains(preset.name) && collision == Collision::Refuse) {
        preset.outcome = Outcome::NameTaken;
    } else {
        store.set(preset.name, gains);
        preset.outcome = Outcome::Stored;
    }
}

} // namespace

ImportedFile readFile(const fs::path& path, const ImportOptions& options)
{
    auto presets = presetsOf(path, options);
    if (presets.size() > 1 && options.name)
        presets = refusedFile(
            {}, "there are " + std::to_string(presets.size()) + " presets in it, so --name cannot be used");
    ImportedFile file { path, {} };
    for (auto& preset : presets)
        file.presets.push_back(convertPreset(std::move(preset), path, presets.size() == 1, options));
    return file;
}

void store(std::vector<ImportedFile>& files, PresetStore& presets, Collision collision)
{
    Numbers numbers;
    for (auto& file : files) {
        for (auto& preset : file.presets)
            store(preset, presets, collision, numbers);
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
