#include "tests/unit/toolkit/Geometry.h"
#include "toolkit/window/Window.h"

#include <gtest/gtest.h>

namespace brimsound::tests {

namespace {

using toolkit::make;
using toolkit::makeRect;
using toolkit::Size;
using toolkit::View;
using toolkit::Window;

TEST(AFocusRing, KeepsWithinThePartOfItsViewThatShows)
{
    const auto window = make<Window>(Size { 320, 400 });
    const auto bar = make<View>(makeRect(10, 100, 100, 44));
    const auto button = make<View>(makeRect(0, 0, 320, 88));
    window->add(*bar);
    bar->add(*button);
    EXPECT_EQ(button->focusRing().rect, makeRect(4, 4, 92, 36));
}

TEST(AFocusRing, RunsBesideTheRoundedCornersThatCutItsViewOff)
{
    const auto window = make<Window>(Size { 320, 400 });
    const auto panel = make<View>(makeRect(44, 44, 232, 200));
    panel->setCornerRadius(20);
    panel->setClips(true);
    const auto bar = make<View>(makeRect(0, 156, 232, 44));
    const auto button = make<View>(makeRect(0, 0, 320, 88));
    const auto middle = make<View>(makeRect(0, 60, 232, 44));
    window->add(*panel);
    panel->add(*bar);
    panel->add(*middle);
    bar->add(*button);

    EXPECT_EQ(button->focusRing().rect, makeRect(4, 4, 224, 36));
    EXPECT_EQ(button->focusRing().radius, 16) << "both have the same center";
    EXPECT_EQ(middle->focusRing().radius, 10);
    panel->setClips(false);
    EXPECT_EQ(button->focusRing().radius, 10);
}

} // namespace

} // namespace brimsound::tests
