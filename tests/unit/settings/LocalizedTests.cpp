// The pane in the tests' own language, whose texts differ from the defaults.
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

} // namespace
} // namespace brimsound::tests
