// This program is linked without the double of RocketBootstrap, as on a device without its package.
#include "tests/unit/settings/Pane.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::StartsWith;

TEST(WithoutRocketBootstrap, ThePaneOpensAndKeepsItsSettings)
{
    TestPlatform platform;
    const Pane pane(platform);
    pane.drag(1, 6);
    pane.trace();
    pane.lift(1);
    EXPECT_THAT(pane.trace(), IsSupersetOf({ writesFile, postsFinished }));
    EXPECT_EQ(floatsIn(storedPreferences(), "PEAKING_EQ_VALUES").front(), 6);
}

TEST(WithoutRocketBootstrap, TheMediaServerIsOutOfReach)
{
    TestPlatform platform;
    const Pane pane(platform);
    pane.drag(1, 6);
    EXPECT_THAT(pane.trace(),
        ElementsAre(equalizerSend + " failed", StartsWith("log Brimsound: ERROR SENDING TO MEDIA SERVER ")));
}

} // namespace

} // namespace brimsound::tests
