#include "desktop/presets/PresetStore.h"

#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "platform/desktop/bus/DarwinNotifyPost.h"
#include "settings/TenGains.h"
#include "settings/store/preferences.h"
#include "settings/store/presets.h"
#include "settings/tweak.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <stdexcept>

namespace brimsound::presets {

namespace {

namespace fs = std::filesystem;

fs::path preferencesFile()
{
    return desktop::resolveDevicePath(preferencesPath);
}

bool isDamaged()
{
    std::error_code error;
    if (fs::symlink_status(preferencesFile(), error).type() == fs::file_type::not_found)
        return false;
    const auto file = readPropertyListFile(preferencesPath);
    return !file || !file->asDictionary();
}

/// In the precision of the file.
TenGains storedGains(const audio::BandGains& gains)
{
    TenGains stored {};
    std::ranges::transform(gains, stored.begin(), [](double gain) { return static_cast<float>(gain); });
    return stored;
}

} // namespace

PresetStore::PresetStore()
{
    if (isDamaged())
        throw std::runtime_error("the preferences in \"" + preferencesFile().string() + "\" cannot be read");
    _preferences = get_preferences();
    _presets = take_presets(_preferences);
}

std::vector<std::string> PresetStore::names() const
{
    std::vector<std::string> names;
    for (const auto& preset : _presets)
        names.push_back(preset.key);
    return names;
}

audio::BandGains PresetStore::gainsOf(const std::string& name) const
{
    const auto* preset = _presets.find(name);
    if (!preset)
        throw std::runtime_error("there is no preset \"" + name + "\"");
    if (!hasTenGains(*preset))
        throw std::runtime_error("preset \"" + name + "\" is not ten gains");
    audio::BandGains gains {};
    std::ranges::transform(tenGains(*preset), gains.begin(), [](float gain) {
        // A slider does the same.
        return std::isnan(gain) ? 0.0 : std::clamp<double>(gain, -audio::sliderLimit, audio::sliderLimit);
    });
    return gains;
}

bool PresetStore::contains(const std::string& name, const audio::BandGains& gains) const
{
    const auto* preset = _presets.find(name);
    return preset && hasTenGains(*preset) && tenGains(*preset) == storedGains(gains);
}

std::optional<std::string> PresetStore::selected() const
{
    const auto* name = stringForKey(_preferences, selectedPresetKey);
    return name ? std::optional(*name) : std::nullopt;
}

void PresetStore::set(const std::string& name, const audio::BandGains& gains)
{
    const auto stored = storedGains(gains);
    _presets.set(name, PropertyList::Array(stored.begin(), stored.end()));
    _changed = true;
}

void PresetStore::rename(const std::string& oldName, const std::string& newName)
{
    std::vector<PropertyListDictionary::Entry> entries(_presets.begin(), _presets.end());
    std::ranges::find(entries, oldName, &PropertyListDictionary::Entry::key)->key = newName;
    _presets = PropertyListDictionary(std::move(entries));
    if (selected() == oldName)
        _preferences.set(selectedPresetKey, newName);
    _changed = true;
}

void PresetStore::remove(const std::string& name)
{
    _presets.remove(name);
    _changed = true;
}

void PresetStore::save()
{
    if (!_changed)
        return;
    desktop::prepareDeviceRoot();
    _preferences.set(presetsKey, _presets);
    if (!try_write_preferences(_preferences))
        throw std::runtime_error("\"" + preferencesFile().string() + "\" cannot be written");
    _changed = false;
    desktop::darwinNotifyPost(settingsFinishedNotification);
}

} // namespace brimsound::presets
