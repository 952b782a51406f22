#include "desktop/brimsound/PresetImport.h"

#include "desktop/presets/Import.h"
#include "desktop/presets/PresetStore.h"
#include "platform/desktop/effects/Effects.h"
#include "presets/Text.h"
#include "toolkit/alert/Alert.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace brimsound::desktop {

namespace {

using presets::Collision;
using presets::ImportedFile;
using presets::inQuotes;

using Outcome = presets::ImportedPreset::Outcome;
using Files = std::vector<ImportedFile>;
using Names = std::vector<std::string>;

/// What fits into a small window.
constexpr std::size_t mostNames = 8;
constexpr std::size_t mostProblems = 5;

void showAlert(PaneHost& host, const std::string& message, const std::vector<std::string>& buttons,
    std::function<void(std::size_t)> onAnswer = {})
{
    const auto alert = toolkit::make<toolkit::Alert>("", message, buttons);
    auto& shown = *alert;
    alert->onShown = [&shown] { effects().alertShown(shown.message(), shown.buttonTitles()); };
    alert->onAnswer = std::move(onAnswer);
    host.window().alerts().add(*alert);
}

/// The first of these texts, and how many more there are.
std::string joined(const std::vector<std::string>& texts, std::size_t most, const std::string& separator)
{
    std::string text;
    for (std::size_t i = 0; i < std::min(texts.size(), most); ++i)
        text += (i > 0 ? separator : "") + texts[i];
    if (texts.size() > most)
        text += separator + "and " + std::to_string(texts.size() - most) + " more";
    return text;
}

template <typename Predicate> Names namesOf(const Files& files, Predicate isWanted)
{
    Names names;
    for (const auto& file : files) {
        for (const auto& preset : file.presets) {
            if (isWanted(preset))
                names.push_back(preset.name);
        }
    }
    return names;
}

std::string capitalized(std::string text)
{
    if ('a' <= text.front() && text.front() <= 'z')
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    return text;
}

/// A finding without the file's name. `owner` is the preset in a file of several.
std::string textOf(const presets::Finding& finding, const std::string& owner)
{
    const bool isLine = !finding.place.empty() && std::ranges::all_of(finding.place, presets::isDigit);
    const auto place = isLine ? "Line " + finding.place : presets::printable(finding.place);
    const auto where = place.empty() ? owner : place;
    const auto text = where.empty() ? capitalized(finding.text) : where + ": " + finding.text;
    return finding.severity == presets::Severity::Error ? "Not imported. " + text : text;
}

/// The findings of this severity, below the name of each file.
std::vector<std::string> textsOf(const Files& files, presets::Severity severity)
{
    std::vector<std::string> texts;
    for (const auto& file : files) {
        auto heading = presets::printable(file.path.filename().string()) + "\n";
        for (const auto& preset : file.presets) {
            // Of a preset that is not imported, only the reason is of interest.
            if (severity != presets::Severity::Error && preset.findings.haveErrors())
                continue;
            const auto owner = file.presets.size() > 1 ? inQuotes(preset.name) : "";
            for (const auto& finding : preset.findings.all()) {
                if (finding.severity == severity)
                    texts.push_back(std::exchange(heading, "") + textOf(finding, owner));
            }
        }
    }
    return texts;
}

/// Errors come first, because there may be more warnings than fit. Notes are about what is left out of every
/// file.
std::vector<std::string> problemsOf(const Files& files)
{
    auto problems = textsOf(files, presets::Severity::Error);
    std::ranges::move(textsOf(files, presets::Severity::Warning), std::back_inserter(problems));
    return problems;
}

/// Does what a tap on the preset's row does.
void choose(BrimsoundSettingsListController& pane, const std::string& name)
{
    pane.showPresets();
    auto& panel = *pane.saver();
    const auto& presets = panel.presetDict();
    const auto row = std::ranges::find(presets, name, &PropertyListDictionary::Entry::key) - presets.begin();
    panel.tableViewDidSelectRowAtIndexPath(*panel.tableView(), { 1, static_cast<std::size_t>(row) });
}

void import(PaneHost&, Files, Collision);

void askAboutNames(PaneHost& host, Files files, const Names& taken)
{
    Names quoted;
    std::ranges::transform(taken, std::back_inserter(quoted), inQuotes);
    const auto answered = [&host, files = std::move(files)](std::size_t button) {
        if (button > 0)
            import(host, files, button == 1 ? Collision::Replace : Collision::Rename);
    };
    showAlert(host, "There are other presets with these names:\n" + joined(quoted, mostNames, "\n"),
        { "Cancel", "Replace", "Keep Both" }, answered);
}

/// Throws std::runtime_error when the preferences cannot be read or written.
void storeAndChoose(PaneHost& host, Files files, Collision collision)
{
    presets::PresetStore store;
    presets::store(files, store, collision);
    const auto taken
        = namesOf(files, [](const auto& preset) { return preset.outcome == Outcome::NameTaken; });
    if (!taken.empty()) {
        askAboutNames(host, std::move(files), taken);
        return;
    }
    store.save();

    const auto names = namesOf(files, [](const auto& preset) { return preset.isInStore(); });
    if (auto* pane = host.controller(); pane && names.size() == 1)
        choose(*pane, names.front());
    else if (pane && !names.empty())
        pane->showPresets();
    if (const auto problems = problemsOf(files); !problems.empty())
        showAlert(host, joined(problems, mostProblems, "\n\n"), { "OK" });
}

void import(PaneHost& host, Files files, Collision collision)
{
    try {
        storeAndChoose(host, std::move(files), collision);
    } catch (const std::runtime_error& error) {
        showAlert(host, error.what(), { "OK" });
    }
}

} // namespace

void importPresets(PaneHost& host, const std::vector<std::filesystem::path>& paths)
{
    Files files;
    for (const auto& path : paths)
        files.push_back(presets::readFile(path, {}));
    import(host, std::move(files), Collision::Refuse);
}

} // namespace brimsound::desktop
