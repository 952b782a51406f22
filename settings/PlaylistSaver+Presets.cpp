// The panel's list of presets, and the changes that it writes to the preferences file.
#include "platform/CoreFoundation/CFNotificationCenter.h"
#include "settings/Log.h"
#include "settings/PlaylistSaver.h"
#include "settings/TenGains.h"
#include "settings/store/preferences.h"
#include "settings/store/presets.h"
#include "settings/tweak.h"

#include <algorithm>

namespace brimsound {

namespace {

constexpr auto dictionaryTypeName = "PropertyListDictionary";

bool haveTheSameNames(const PropertyList::Dictionary& a, const PropertyList::Dictionary& b)
{
    using Entry = PropertyListDictionary::Entry;
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
        [](const Entry& one, const Entry& other) { return one.key == other.key; });
}

/// Called once each time the panel is shown, not for each row.
void logShortPresets(const PropertyList::Dictionary& presets)
{
    for (const auto& [name, preset] : presets) {
        if (!hasTenGains(preset))
            logLine("preset \"" + name + "\" is not ten gains: 0 dB where one is missing");
    }
}

void writeAndAnnounce(PropertyList::Dictionary preferences)
{
    write_preferences(std::move(preferences));
    CFNotificationCenterPostNotification(
        CFNotificationCenterGetDarwinNotifyCenter(), settingsFinishedNotification, nullptr, nullptr, true);
}

} // namespace

const PropertyList* PlaylistSaver::getObjectAtIndexForDictKey(
    std::size_t index, const PropertyList::Dictionary& dictionary, std::optional<std::string>* key)
{
    std::size_t position = 0;
    for (const auto& entry : dictionary) {
        if (position++ != index)
            continue;
        if (key)
            *key = entry.key;
        return &entry.value;
    }
    if (key)
        key->reset();
    return nullptr;
}

std::size_t PlaylistSaver::tableViewNumberOfRowsInSection(UITableView&, std::size_t section)
{
    return section == 0 ? 1 : _presetDict.size();
}

bool PlaylistSaver::tableViewCanEditRowAtIndexPath(UITableView&, const NSIndexPath& indexPath)
{
    return indexPath.section != 0;
}

void PlaylistSaver::loadPresets()
{
    logLine("getting preferences");
    auto preferences = get_preferences();
    _presetDict = take_presets(preferences);
    const auto* name = stringForKey(preferences, selectedPresetKey);
    _selectedPreset = name ? std::optional(*name) : std::nullopt;
    logLine("/getting preferences: " + std::string(dictionaryTypeName) + ";");
    logShortPresets(_presetDict);
}

void PlaylistSaver::tableViewDidSelectRowAtIndexPath(UITableView& table, const NSIndexPath& indexPath)
{
    if (auto* cell = table.cellForRowAtIndexPath(indexPath))
        cell->setSelected(false, Animated::No);
    if (indexPath.section == 0)
        beginNameEntry();
    else
        choosePreset(indexPath.row);
}

void PlaylistSaver::choosePreset(std::size_t row)
{
    const auto* found = getObjectAtIndexForDictKey(row, _presetDict, &_selectedPreset);
    // A copy: the delegate may change the dictionary during the call below.
    auto preset = found ? *found : PropertyList();
    textFieldShouldReturn(nullptr);
    if (!_selectedPreset)
        return;
    const auto name = *_selectedPreset;

    const auto* selectedPreset
        = _delegate ? _delegate->methodForSelector("playlistSaver:selectedPreset:") : nullptr;
    if (selectedPreset) {
        if (!hasTenGains(preset)) {
            const auto gains = tenGains(preset);
            preset = PropertyList::Array(gains.begin(), gains.end());
        }
        const std::array<Argument, 2> arguments { static_cast<NSObject*>(this), &std::as_const(preset) };
        selectedPreset->invoke(*_delegate, arguments);
    }

    // Written after the delegate's band edits, each of which clears the selected preset.
    auto preferences = get_preferences();
    preferences.set(selectedPresetKey, name);
    writeAndAnnounce(std::move(preferences));
}

bool PlaylistSaver::textFieldShouldReturn(UITextField* field)
{
    if (field && !field->text().empty())
        saveUnderName(field->text());
    hideEverything();
    return false;
}

void PlaylistSaver::saveUnderName(const std::string& name)
{
    auto preferences = get_preferences();
    auto presets = take_presets(preferences);
    PropertyList::Array gains;
    gains.reserve(_sliders.size());
    for (const auto& slider : _sliders)
        gains.emplace_back(slider->value());
    presets.set(name, std::move(gains));
    preferences.set(selectedPresetKey, name);
    preferences.set(presetsKey, presets);
    writeAndAnnounce(std::move(preferences));
    _presetDict = std::move(presets);
    _selectedPreset = name;
}

void PlaylistSaver::tableViewCommitEditingStyleForRowAtIndexPath(
    UITableView& table, UITableViewCellEditingStyle style, const NSIndexPath& indexPath)
{
    if (style != UITableViewCellEditingStyle::Delete)
        return;
    std::optional<std::string> name;
    if (!getObjectAtIndexForDictKey(indexPath.row, _presetDict, &name))
        return;
    auto preferences = get_preferences();
    auto presets = take_presets(preferences);
    presets.remove(*name);
    preferences.set(presetsKey, presets);
    writeAndAnnounce(std::move(preferences));

    _presetDict.remove(*name);
    const bool othersStay = haveTheSameNames(_presetDict, presets);
    _presetDict = std::move(presets);
    if (othersStay)
        table.deleteRowsAtIndexPathsWithRowAnimation({ indexPath }, UITableViewRowAnimation::Automatic);
    else
        // Another process changed the file since the list was loaded, so the other rows show outdated
        // presets.
        table.reloadData();
}

} // namespace brimsound
