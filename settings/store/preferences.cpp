#include "settings/store/preferences.h"

#include "platform/Foundation/PropertyListSerialization.h"
#include "settings/store/presets.h"
#include "settings/tweak.h"

namespace brimsound {

PropertyList::Dictionary get_preferences()
{
    auto file = readPropertyListFile(preferencesPath);
    if (auto* preferences = file ? file->asDictionary() : nullptr)
        return std::move(*preferences);

    return {
        { peakingEqValuesKey, PropertyList::Array(10, 0.0f) },
        { presetsKey, builtin_presets() },
    };
}

void write_preferences(PropertyList::Dictionary preferences)
{
    try_write_preferences(std::move(preferences));
}

bool try_write_preferences(PropertyList::Dictionary preferences)
{
    const auto data
        = dataWithPropertyList(std::move(preferences), NSPropertyListFormat::BinaryFormat_v1_0, 0);
    return data && writeToFile(*data, preferencesPath);
}

} // namespace brimsound
