#include "platform/Foundation/NSLocale.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace brimsound {

namespace {

std::string environmentValue(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

// "de_DE.UTF-8@euro" is the language "de-DE"; the C locale has no language.
std::string languageOfLocale(std::string locale)
{
    locale.resize(std::min(locale.size(), locale.find_first_of(".@")));
    if (locale == "C" || locale == "POSIX")
        return {};
    std::replace(locale.begin(), locale.end(), '_', '-');
    return locale;
}

std::string messagesLanguage()
{
    for (auto* name : { "LC_ALL", "LC_MESSAGES", "LANG" }) {
        if (const auto locale = environmentValue(name); !locale.empty())
            return languageOfLocale(locale);
    }
    return {};
}

} // namespace

std::vector<std::string> preferredLanguages()
{
    // LANGUAGE is ignored in the C locale.
    const auto language = messagesLanguage();
    if (language.empty())
        return {};

    std::vector<std::string> languages;
    std::istringstream list(environmentValue("LANGUAGE"));
    for (std::string locale; std::getline(list, locale, ':');) {
        if (auto listed = languageOfLocale(locale); !listed.empty())
            languages.push_back(std::move(listed));
    }
    if (languages.empty())
        languages.push_back(language);
    return languages;
}

} // namespace brimsound
