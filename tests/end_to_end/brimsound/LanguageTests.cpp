// The language in which the program shows its pane.
#include "tests/end_to_end/brimsound/Program.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/TestBus.h"

#include <gtest/gtest.h>

namespace brimsound::tests {
namespace {

class TheLanguageOfThePane : public testing::Test {
protected:
    /// The preamp's caption, for the values of LANG and LANGUAGE.
    std::string captionIn(const char* lang, const char* language = nullptr) const
    {
        const EnvironmentVariable all("LC_ALL", nullptr);
        const EnvironmentVariable messages("LC_MESSAGES", nullptr);
        const EnvironmentVariable locale("LANG", lang);
        const EnvironmentVariable list("LANGUAGE", language);
        const auto run = playScript(root, "state\n");
        const auto states = run.all("state");
        return states.empty() ? run.errors : states[0].at("labels")[0].get<std::string>();
    }

    TemporaryRoot root;
    TestBus bus;
};

TEST_F(TheLanguageOfThePane, IsThatOfTheLocale)
{
    EXPECT_EQ(captionIn("ja_JP.UTF-8"), "\u30d7\u30ea");
    EXPECT_EQ(captionIn("hu"), "El\u0151");
    EXPECT_EQ(captionIn("pt_PT.UTF-8"), "Pr\u00e9");
    EXPECT_EQ(captionIn("zh_CN.UTF-8"), "\u524d\u7f6e");
}

TEST_F(TheLanguageOfThePane, IsTheFirstOfTheListThatItHas)
{
    EXPECT_EQ(captionIn("en_US.UTF-8", "ja"), "\u30d7\u30ea");
    EXPECT_EQ(captionIn("ja_JP.UTF-8", "sk:hu:en"), "El\u0151");
    EXPECT_EQ(captionIn("ja_JP.UTF-8", "en"), "Pre");
}

TEST_F(TheLanguageOfThePane, IsEnglishWithoutALocaleOrTexts)
{
    EXPECT_EQ(captionIn(nullptr), "Pre");
    EXPECT_EQ(captionIn("C.UTF-8", "ja"), "Pre");
    EXPECT_EQ(captionIn("zh_TW.UTF-8"), "Pre");
    EXPECT_EQ(captionIn("sk_SK.UTF-8"), "Pre");
}

} // namespace
} // namespace brimsound::tests
