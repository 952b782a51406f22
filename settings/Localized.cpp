#include "settings/Localized.h"

#include "platform/Foundation/NSBundle.h"

namespace brimsound {

std::string localized(const std::string& key, const std::string& defaultText)
{
    return NSBundle::bundleForClass("BrimsoundSettingsListController")
        .localizedStringForKey(key, defaultText, "BrimsoundSettings");
}

} // namespace brimsound
