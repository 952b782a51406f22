#include "settings/Localized.h"

#include "platform/Foundation/NSBundle.h"
#include "settings/Bundle.h"

namespace brimsound {

std::string localized(const std::string& key, const std::string& defaultText)
{
    return NSBundle::bundleForClass(controllerClassName)
        .localizedStringForKey(key, defaultText, resourceName);
}

} // namespace brimsound
