#include "settings/BrimsoundSettings.h"
#include "settings/store/preferences.h"
#include "settings/tweak.h"

namespace brimsound {

PropertyList BrimsoundSettingsListController::varEnabled(const PropertyList& key)
{
    const auto preferences = get_preferences();
    const auto* value = key.asString() ? preferences.find(*key.asString()) : nullptr;
    return value ? *value : PropertyList(true);
}

PropertyList BrimsoundSettingsListController::autoPreamp()
{
    return varEnabled(autoPreampKey);
}

} // namespace brimsound
