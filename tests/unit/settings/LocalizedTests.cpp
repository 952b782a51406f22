// The pane in other languages, one of them the tests' own, whose texts differ from the defaults.
#include "settings/Localized.h"

#include "tests/unit/settings/PresetPane.h"

#include <gtest/gtest.h>

namespace brimsound::tests {
namespace {

class ThePaneInEsperanto : public testing::Test {
protected:
    ThePaneInEsperanto()
    {
        FREQUENCY_STRS[0].reset();
        platform.setPreferredLanguages({ "eo" });
    }
    // The next pane is in English again.
    ~ThePaneInEsperanto() override { FREQUENCY_STRS[0].reset(); }

    TestPlatform platform;
};

TEST_F(ThePaneInEsperanto, HasItsCaption)
{
    const PresetPane pane(platform);
    EXPECT_EQ(FREQUENCY_STRS[0], "Anta\u016d");
    EXPECT_EQ(pane.controller().labels()->front()->text(), "Anta\u016d");
}

TEST_F(ThePaneInEsperanto, HasItsTextsInThePanel)
{
    const PresetPane pane(platform);
    pane.showPresets();
    EXPECT_EQ(pane.cell({ 0, 0 })->textLabel().text(), "Konservi");
    EXPECT_EQ(pane.panel().cancelText(), "Nuligi");
}

TEST(TheTextsOfTheBundle, AreThoseOfALanguageWithItsScriptOrRegion)
{
    TestPlatform platform;
    platform.setPreferredLanguages({ "zh-Hans" });
    EXPECT_EQ(localized("SAVE", "none"), "\u5b58\u50a8");
    platform.setPreferredLanguages({ "sk", "pt-BR", "de" });
    EXPECT_EQ(localized("SAVE", "none"), "Salvar");
}

} // namespace
} // namespace brimsound::tests
