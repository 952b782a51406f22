#include "desktop/presets/Commands.h"

#include "desktop/presets/Import.h"
#include "desktop/presets/PresetFile.h"
#include "desktop/presets/PresetStore.h"
#include "desktop/presets/Printing.h"
#include "presets/Exporting.h"
#include "presets/Text.h"

#include <cstdio>
#include <cstdlib>

namespace brimsound::presets {

namespace {

using Outcome = ImportedPreset::Outcome;

void printLine(const std::string& line)
{
    std::fputs((line + "\n").c_str(), stdout);
}

void report(const std::string& line)
{
    std::fputs((line + "\n").c_str(), stderr);
}

int list(const Options& options)
{
    const PresetStore store;
    if (options.json) {
        printLine(listInJson(store));
        return EXIT_SUCCESS;
    }
    for (const auto& name : store.names())
        printLine(name);
    return EXIT_SUCCESS;
}

int show(const Options& options)
{
    const auto& name = options.arguments.front();
    const OwnPreset preset { name, PresetStore().gainsOf(name) };
    printLine(options.json ? presetInJson(preset) : tableOf(preset));
    return EXIT_SUCCESS;
}

void reportFindings(const ImportedFile& file, ImportedPreset preset)
{
    if (preset.outcome == Outcome::NameTaken)
        preset.findings.refuse(
            {}, "there is another preset " + inQuotes(preset.name) + "; see --replace and --rename");
    for (auto finding : preset.findings.all()) {
        if (finding.place.empty() && file.presets.size() > 1)
            finding.text = "preset " + inQuotes(preset.name) + ": " + finding.text;
        report(lineFor(finding, file.path));
    }
    if (const auto omitted = preset.findings.omitted())
        report(file.path.string() + ": note: " + std::to_string(omitted) + " more messages");
}

/// Returns whether all presets were imported.
bool printOutcomes(const ImportedFile& file, const Options& options)
{
    bool isComplete = true;
    for (const auto& preset : file.presets) {
        reportFindings(file, preset);
        if (!preset.isInStore()) {
            isComplete = false;
            continue;
        }
        if (preset.outcome == Outcome::Stored)
            printLine((options.dryRun ? "Would import " : "Imported ") + resultOf(preset));
        else
            printLine("Already there: " + inQuotes(preset.name));
        if (options.dryRun)
            printLine("  " + gainsInLine(preset.conversion.gains));
    }
    return isComplete;
}

int import(const Options& options)
{
    std::vector<ImportedFile> files;
    for (const auto& path : options.arguments)
        files.push_back(readFile(path, options.importing));
    // Read after the files, so that little time passes until it is written.
    PresetStore presets;
    store(files, presets, options.collision);
    if (!options.dryRun)
        presets.save();
    bool isComplete = true;
    for (const auto& file : files)
        isComplete = printOutcomes(file, options) && isComplete;
    return isComplete ? EXIT_SUCCESS : EXIT_FAILURE;
}

int exportPresets(const Options& options)
{
    const PresetStore store;
    std::vector<OwnPreset> presets;
    for (const auto& name : options.arguments)
        presets.push_back({ name, store.gainsOf(name) });
    Findings findings;
    const auto contents = exported(presets, options.format, findings);
    if (options.output)
        writePresetFile(*options.output, contents, options.force ? Existing::Replaced : Existing::Kept);
    else
        std::fwrite(contents.data(), 1, contents.size(), stdout);
    for (const auto& finding : findings.all())
        report("brimsound-presets: warning: " + finding.text);
    return EXIT_SUCCESS;
}

int rename(const Options& options)
{
    const auto& oldName = options.arguments[0];
    const auto& newName = options.arguments[1];
    PresetStore store;
    if (!store.contains(oldName))
        throw std::runtime_error("there is no preset \"" + oldName + "\"");
    if (!isName(newName))
        throw std::runtime_error(inQuotes(newName) + " cannot be a name");
    if (store.contains(newName))
        throw std::runtime_error("there is a preset \"" + newName + "\" already");
    store.rename(oldName, newName);
    store.save();
    return EXIT_SUCCESS;
}

int deletePresets(const Options& options)
{
    PresetStore store;
    int status = EXIT_SUCCESS;
    for (const auto& name : options.arguments) {
        if (store.contains(name)) {
            store.remove(name);
            continue;
        }
        report("brimsound-presets: there is no preset \"" + name + "\"");
        status = EXIT_FAILURE;
    }
    store.save();
    return status;
}

} // namespace

int run(const Options& options)
{
    switch (options.command) {
    case Command::List:
        return list(options);
    case Command::Show:
        return show(options);
    case Command::Import:
        return import(options);
    case Command::Export:
        return exportPresets(options);
    case Command::Rename:
        return rename(options);
    case Command::Delete:
        return deletePresets(options);
    }
    return EXIT_FAILURE;
}

} // namespace brimsound::presets
