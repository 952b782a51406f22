#include "platform/desktop/Foundation/Localizations.h"

#include "platform/Foundation/NSLocale.h"
#include "platform/desktop/Foundation/DeviceRoot.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <utility>

namespace brimsound::desktop {

namespace {

/// The localization of a language that has another name, which is the last one that suits the language. In
/// particular, a reader of traditional Chinese is not given simplified Chinese.
std::string_view lastLocalizationFor(std::string_view language)
{
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 11> names { {
        { "iw", "he" },
        { "nn", "nb" },
        { "no", "nb" },
        { "pt", "pt-BR" },
        { "zh", "zh-Hans" },
        { "zh-CN", "zh-Hans" },
        { "zh-SG", "zh-Hans" },
        { "zh-Hant", "zh-Hant" },
        { "zh-HK", "zh-Hant" },
        { "zh-MO", "zh-Hant" },
        { "zh-TW", "zh-Hant" },
    } };
    const auto* found = std::ranges::find(names, language, &decltype(names)::value_type::first);
    return found == names.end() ? std::string_view() : found->second;
}

void addLocalizationsFor(std::string language, std::vector<std::string>& localizations)
{
    const bool isPortugal = language == "pt-PT";
    for (;;) {
        localizations.push_back(language);
        if (const auto last = lastLocalizationFor(language); !last.empty()) {
            if (!isPortugal)
                localizations.emplace_back(last);
            return;
        }
        const auto subtag = language.rfind('-');
        if (subtag == std::string::npos)
            return;
        language.erase(subtag);
    }
}

} // namespace

std::vector<std::string> localizationsFor(const std::vector<std::string>& languages)
{
    std::vector<std::string> localizations;
    for (const auto& language : languages)
        addLocalizationsFor(language, localizations);
    // For a reader from Portugal, Brazilian texts come after all other preferred languages.
    if (std::ranges::find(languages, "pt-PT") != languages.end())
        localizations.emplace_back("pt-BR");
    return localizations;
}

std::string preferredLocalization(const NSBundle& bundle)
{
    for (const auto& name : localizationsFor(preferredLanguages())) {
        std::error_code ignored;
        if (std::filesystem::is_directory(
                resolveDevicePath(bundle.bundlePath() + "/" + name + ".lproj"), ignored))
            return name;
    }
    return "en";
}

} // namespace brimsound::desktop
