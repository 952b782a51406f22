#include "platform/Foundation/NSLocale.h"

#include "platform/ios/Foundation/NativeText.h"

namespace brimsound {

std::vector<std::string> preferredLanguages()
{
    std::vector<std::string> languages;
    for (::NSString* language in [::NSLocale preferredLanguages])
        languages.push_back(ios::textOf(language));
    return languages;
}

} // namespace brimsound
