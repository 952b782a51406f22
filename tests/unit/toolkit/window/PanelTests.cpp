#include "tests/unit/toolkit/EventLog.h"
#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/Switches.h"
#include "toolkit/control/Button.h"
#include "toolkit/text/Label.h"
#include "toolkit/text/TextField.h"
#include "toolkit/time/Clock.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Button;
using toolkit::Key;
using toolkit::KeyStroke;
using toolkit::Label;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Ref;
using toolkit::Size;
using toolkit::Switch;
using toolkit::TextField;
using toolkit::View;
using toolkit::Window;

/// Two switches, and a panel over them: an invisible button of the size of the panel, and in front of it a
/// box with a bar whose button is larger than the bar.
class APanel : public testing::Test {
protected:
    APanel()
    {
        label->setText("Cancel");
        label->setRead(false);
        cancel->setLabel("Cancel");
        window->add(*host);
        host->add(*first);
        host->add(*second);
        host->add(*panel);
        panel->add(*hideAll);
        panel->add(*box);
        box->add(*toggle);
        box->add(*bar);
        bar->add(*label);
        bar->add(*cancel);
        cancelLog.listenTo(*cancel);
        hideAllLog.listenTo(*hideAll);
    }

    bool pressed(Key key, KeyStroke stroke = KeyStroke::First) const
    {
        const bool used = window->keyPressed(key, stroke);
        window->keyReleased(key);
        return used;
    }
    const View* press(Key key) const
    {
        pressed(key);
        return window->focus().view();
    }

    EventLog cancelLog;
    EventLog hideAllLog;
    const Ref<Window> window = make<Window>(Size { 320, 400 });
    const Ref<View> host = make<View>(makeRect(0, 0, 320, 400));
    const Ref<Switch> first = switchAt(10, 0);
    const Ref<Switch> second = switchAt(10, 50);
    const Ref<View> panel = make<View>(makeRect(0, 0, 320, 400));
    const Ref<Button> hideAll = make<Button>(makeRect(0, 0, 320, 400));
    const Ref<View> box = make<View>(makeRect(44, 44, 232, 312));
    const Ref<Switch> toggle = switchAt(10, 10);
    const Ref<View> bar = make<View>(makeRect(0, 268, 232, 44));
    const Ref<Label> label = make<Label>(makeRect(0, 0, 232, 44));
    const Ref<Button> cancel = make<Button>(makeRect(0, 0, 320, 88));
};

TEST_F(APanel, KeepsTheFocusWithinIt)
{
    EXPECT_EQ(press(Key::Tab), toggle.get());
    EXPECT_EQ(press(Key::Tab), cancel.get());
    EXPECT_EQ(press(Key::Tab), toggle.get());
    EXPECT_EQ(press(Key::Backtab), cancel.get());
}

TEST_F(APanel, KeepsTheUserFromWhatItCovers)
{
    EXPECT_TRUE(panel->coversParent());
    EXPECT_TRUE(first->isCovered());
    EXPECT_FALSE(first->isReachable());
    EXPECT_FALSE(toggle->isCovered());
    EXPECT_TRUE(toggle->isReachable());
    panel->setHidden(true);
    EXPECT_FALSE(first->isCovered());
    EXPECT_TRUE(first->isReachable());
}

TEST_F(APanel, HasItsButtonPressedThoughThatIsLargerThanItsBar)
{
    press(Key::Backtab);
    press(Key::Return);
    EXPECT_THAT(cancelLog.take(), ElementsAre("down", "up inside"));
}

TEST_F(APanel, IsClosedByEscapeWhichPressesTheButtonBehindIt)
{
    EXPECT_TRUE(pressed(Key::Escape));
    EXPECT_THAT(hideAllLog.take(), ElementsAre("down", "up inside"));
    EXPECT_TRUE(window->focus().view() == nullptr);
}

TEST_F(APanel, IsClosedByEscapeWhereItsBoxCoversAllButAnEdgeOfTheButton)
{
    box->setFrame(makeRect(0, 0, 320, 398));
    EXPECT_TRUE(pressed(Key::Escape));
    EXPECT_THAT(hideAllLog.take(), ElementsAre("down", "up inside"));
}

TEST_F(APanel, IsNotClosedByAnEscapeThatRepeats)
{
    EXPECT_FALSE(pressed(Key::Escape, KeyStroke::Repeated));
    EXPECT_THAT(hideAllLog.take(), IsEmpty());
}

TEST_F(APanel, TakesTheFocusFromAViewThatItCovers)
{
    panel->setHidden(true);
    press(Key::Tab);
    panel->setHidden(false);
    window->layOutAll();
    EXPECT_EQ(window->focus().view(), toggle.get());
    EXPECT_TRUE(toggle->showsFocus());
}

TEST_F(APanel, TakesNoFocusWhereThereWasNone)
{
    panel->setHidden(true);
    window->layOutAll();
    panel->setHidden(false);
    window->layOutAll();
    EXPECT_EQ(window->focus().view(), nullptr);
}

TEST_F(APanel, GivesTheFocusBackWhenItFades)
{
    panel->setHidden(true);
    press(Key::Tab);
    panel->setHidden(false);
    EXPECT_EQ(press(Key::Tab), cancel.get());
    panel->setInteractive(false);
    View::animate(0.5, [&] { panel->setAlpha(0); });
    window->layOutAll();
    EXPECT_EQ(window->focus().view(), first.get());
    EXPECT_TRUE(first->isReachable());
    EXPECT_FALSE(toggle->isReachable());
    EXPECT_EQ(press(Key::Tab), second.get());
    EXPECT_FALSE(pressed(Key::Escape));
    toolkit::Clock::shared().advance(1);
}

TEST_F(APanel, IsClosedByEscapeWhileATextFieldInItHasTheKeyboard)
{
    const auto field = make<TextField>(makeRect(10, 60, 100, 30));
    box->add(*field);
    window->focus().giveTo(*field);
    EXPECT_TRUE(pressed(Key::Escape));
    EXPECT_THAT(hideAllLog.take(), ElementsAre("down", "up inside"));
}

} // namespace

} // namespace brimsound::tests
