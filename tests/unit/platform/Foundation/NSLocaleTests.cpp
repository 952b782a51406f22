#include "platform/Foundation/NSLocale.h"

#include "tests/support/EnvironmentVariable.h"

#include <gmock/gmock.h>

namespace brimsound {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Locale {
    const char* language = nullptr;
    const char* all = nullptr;
    const char* messages = nullptr;
    const char* lang = nullptr;
};

std::vector<std::string> languagesFor(const Locale& locale)
{
    const tests::EnvironmentVariable language("LANGUAGE", locale.language);
    const tests::EnvironmentVariable all("LC_ALL", locale.all);
    const tests::EnvironmentVariable messages("LC_MESSAGES", locale.messages);
    const tests::EnvironmentVariable lang("LANG", locale.lang);
    return preferredLanguages();
}

} // namespace

TEST(ThePreferredLanguages, AreThatOfTheLocale)
{
    EXPECT_THAT(languagesFor({ .lang = "de_DE.UTF-8" }), ElementsAre("de-DE"));
    EXPECT_THAT(languagesFor({ .lang = "ca_ES.UTF-8@valencia" }), ElementsAre("ca-ES"));
    EXPECT_THAT(languagesFor({ .lang = "eo" }), ElementsAre("eo"));
}

TEST(ThePreferredLanguages, ComeFromTheStrongestVariableThatIsSet)
{
    EXPECT_THAT(languagesFor({ .messages = "fr_FR", .lang = "de_DE" }), ElementsAre("fr-FR"));
    EXPECT_THAT(languagesFor({ .all = "it_IT", .messages = "fr_FR", .lang = "de_DE" }), ElementsAre("it-IT"));
    EXPECT_THAT(languagesFor({ .all = "", .messages = "", .lang = "de_DE" }), ElementsAre("de-DE"));
}

TEST(ThePreferredLanguages, AreTheListWhereThereIsOne)
{
    EXPECT_THAT(languagesFor({ .language = "fr_CA:fr::en_GB.UTF-8", .lang = "de_DE" }),
        ElementsAre("fr-CA", "fr", "en-GB"));
    EXPECT_THAT(languagesFor({ .language = "", .lang = "de_DE" }), ElementsAre("de-DE"));
}

TEST(ThePreferredLanguages, AreNoneInTheCLocale)
{
    EXPECT_THAT(languagesFor({}), IsEmpty());
    EXPECT_THAT(languagesFor({ .lang = "C.UTF-8" }), IsEmpty());
    EXPECT_THAT(languagesFor({ .lang = "POSIX" }), IsEmpty());
    EXPECT_THAT(languagesFor({ .language = "de", .all = "C", .lang = "de_DE" }), IsEmpty());
}

} // namespace brimsound
