#include "desktop/mediaserverd/Preferences.h"

#include "platform/Foundation/PropertyListSerialization.h"
#include "platform/desktop/Foundation/DeviceRoot.h"
#include "settings/tweak.h"

#include <filesystem>

namespace brimsound::mediaserver {

namespace {

bool flag(const PropertyList::Dictionary& preferences, const char* key, bool defaultValue)
{
    const auto* value = preferences.find(key);
    return value ? value->boolValue() : defaultValue;
}

bool isMissing()
{
    std::error_code error;
    const auto status = std::filesystem::status(desktop::resolveDevicePath(preferencesPath), error);
    return status.type() == std::filesystem::file_type::not_found;
}

} // namespace

std::optional<Preferences> readPreferences()
{
    const auto file = readPropertyListFile(preferencesPath);
    if (!file && isMissing())
        return Preferences {};
    const auto* preferences = file ? file->asDictionary() : nullptr;
    if (!preferences)
        return std::nullopt;
    return Preferences {
        .enabled = flag(*preferences, enabledKey, true),
        .filterDisabled = flag(*preferences, filterDisabledKey, false),
        .checkingDisabled = flag(*preferences, checkingDisabledKey, false),
        .gains = gainsOfPreferences(*preferences),
    };
}

} // namespace brimsound::mediaserver
