#include "platform/desktop/Foundation/Localizations.h"

#include "tests/support/EnvironmentVariable.h"
#include "tests/support/TemporaryRoot.h"

#include <gmock/gmock.h>

namespace brimsound {

using desktop::localizationsFor;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(TheLocalizations, AreThoseOfTheRegionBeforeThoseOfTheLanguage)
{
    EXPECT_THAT(localizationsFor({ "de-AT" }), ElementsAre("de-AT", "de"));
    EXPECT_THAT(localizationsFor({ "fr", "es-MX" }), ElementsAre("fr", "es-MX", "es"));
    EXPECT_THAT(localizationsFor({}), IsEmpty());
}

TEST(TheLocalizations, AreAlsoThoseOfALanguagesOtherNames)
{
    EXPECT_THAT(localizationsFor({ "iw-IL" }), ElementsAre("iw-IL", "iw", "he"));
    EXPECT_THAT(localizationsFor({ "no-NO" }), ElementsAre("no-NO", "no", "nb"));
    EXPECT_THAT(localizationsFor({ "nn-NO" }), ElementsAre("nn-NO", "nn", "nb"));
    EXPECT_THAT(localizationsFor({ "nb-NO" }), ElementsAre("nb-NO", "nb"));
}

TEST(TheLocalizations, OfChineseAreInTheScriptOfTheRegion)
{
    EXPECT_THAT(localizationsFor({ "zh" }), ElementsAre("zh", "zh-Hans"));
    EXPECT_THAT(localizationsFor({ "zh-CN" }), ElementsAre("zh-CN", "zh-Hans"));
    EXPECT_THAT(localizationsFor({ "zh-SG" }), ElementsAre("zh-SG", "zh-Hans"));
    for (const auto* region : { "zh-TW", "zh-HK", "zh-MO" })
        EXPECT_THAT(localizationsFor({ region }), ElementsAre(region, "zh-Hant"));
    EXPECT_THAT(localizationsFor({ "zh-Hant-HK" }), ElementsAre("zh-Hant-HK", "zh-Hant", "zh-Hant"));
    EXPECT_THAT(localizationsFor({ "zh-Hans-HK" }), ElementsAre("zh-Hans-HK", "zh-Hans", "zh", "zh-Hans"));
}

TEST(TheLocalizations, OfPortugalAreBrazilianOnlyAfterAllOtherLanguages)
{
    EXPECT_THAT(localizationsFor({ "pt-AO", "en" }), ElementsAre("pt-AO", "pt", "pt-BR", "en"));
    EXPECT_THAT(localizationsFor({ "pt-PT", "en" }), ElementsAre("pt-PT", "pt", "en", "pt-BR"));
}

namespace {

class ALocalizedBundle : public testing::Test {
protected:
    ALocalizedBundle()
    {
        for (const auto* name : { "ar", "de", "en", "he", "nb", "pt-BR", "zh-Hans" })
            root.write("/Test.bundle/" + std::string(name) + ".lproj/Texts.strings", "");
    }

    /// For the values of LANG and LANGUAGE.
    std::string localizationIn(const char* lang, const char* language = nullptr) const
    {
        const tests::EnvironmentVariable all("LC_ALL", nullptr);
        const tests::EnvironmentVariable messages("LC_MESSAGES", nullptr);
        const tests::EnvironmentVariable locale("LANG", lang);
        const tests::EnvironmentVariable list("LANGUAGE", language);
        return desktop::preferredLocalization(NSBundle("/Test.bundle"));
    }

    tests::TemporaryRoot root;
};

} // namespace

TEST_F(ALocalizedBundle, IsShownInTheLanguageOfTheLocale)
{
    EXPECT_EQ(localizationIn("de_AT.UTF-8"), "de");
    EXPECT_EQ(localizationIn("ar_EG.UTF-8"), "ar");
    EXPECT_EQ(localizationIn("iw_IL.UTF-8"), "he");
    EXPECT_EQ(localizationIn("nn_NO.UTF-8"), "nb");
    EXPECT_EQ(localizationIn("pt_BR.UTF-8"), "pt-BR");
    EXPECT_EQ(localizationIn("pt_PT.UTF-8"), "pt-BR");
    EXPECT_EQ(localizationIn("zh_CN.UTF-8"), "zh-Hans");
    EXPECT_EQ(localizationIn("zh_SG.UTF-8"), "zh-Hans");
}

TEST_F(ALocalizedBundle, IsShownInTheFirstLanguageOfTheListThatItHas)
{
    EXPECT_EQ(localizationIn("en_US.UTF-8", "fr:de"), "de");
    EXPECT_EQ(localizationIn("de_DE.UTF-8", "en_GB:de"), "en");
    EXPECT_EQ(localizationIn("pt_PT.UTF-8", "pt_PT:en"), "en");
}

TEST_F(ALocalizedBundle, IsShownInEnglishToReadersOfNoneOfItsLanguages)
{
    EXPECT_EQ(localizationIn("fr_FR.UTF-8"), "en");
    EXPECT_EQ(localizationIn("zh_TW.UTF-8"), "en");
    EXPECT_EQ(localizationIn("zh_HK.UTF-8"), "en");
    EXPECT_EQ(localizationIn("C.UTF-8", "de"), "en");
    EXPECT_EQ(localizationIn(nullptr), "en");
}

} // namespace brimsound
