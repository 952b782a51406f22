#include "toolkit/window/Focus.h"

#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/Switches.h"
#include "toolkit/alert/Alert.h"
#include "toolkit/text/TextField.h"
#include "toolkit/time/Clock.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::Contains;
using testing::ElementsAre;
using toolkit::AccessibleChange;
using toolkit::Key;
using toolkit::KeyStroke;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Point;
using toolkit::Pointer;
using toolkit::Rect;
using toolkit::Ref;
using toolkit::Size;
using toolkit::Switch;
using toolkit::TextField;
using toolkit::View;
using toolkit::Window;

/// Four switches. They were not added in reading order.
class TheFocus : public testing::Test {
protected:
    TheFocus()
    {
        for (const auto& toggle : { d, b, a, c })
            window->add(*toggle);
    }
    ~TheFocus() override
    {
        window->alerts().dismissAll();
        toolkit::Clock::shared().advance(2);
        window->onInvalidate = nullptr;
        window->onAccessibleChange = nullptr;
        window->onFocusMoved = nullptr;
    }

    const View* press(Key key) const
    {
        window->keyPressed(key, KeyStroke::First);
        window->keyReleased(key);
        return window->focus().view();
    }
    void click(Point at, Pointer pointer = Pointer::Mouse) const
    {
        window->touchDown({ at, pointer });
        window->touchUp(at);
    }

    const Ref<Window> window = make<Window>(Size { 320, 400 });
    const Ref<Switch> a = switchAt(10, 0);
    const Ref<Switch> b = switchAt(200, 0);
    const Ref<Switch> c = switchAt(10, 50);
    const Ref<Switch> d = switchAt(10, 100);
};

TEST_F(TheFocus, IsNowhereAtFirst)
{
    EXPECT_EQ(window->focus().view(), nullptr);
    EXPECT_EQ(window->focus().part(), nullptr);
}

TEST_F(TheFocus, WhileItIsNowhereLeavesKeysThatDoNotMoveItUnused)
{
    for (const auto key : { Key::Return, Key::Space, Key::Escape, Key::PageDown, Key::Delete })
        EXPECT_FALSE(window->keyPressed(key, KeyStroke::First));
}

TEST_F(TheFocus, MovesThroughTheViewsInReadingOrderByTab)
{
    for (const auto& next : { a, b, c, d, a })
        EXPECT_EQ(press(Key::Tab), next.get());
}

TEST_F(TheFocus, MovesBackThroughTheViewsByBacktab)
{
    for (const auto& next : { d, c, b, a, d })
        EXPECT_EQ(press(Key::Backtab), next.get());
}

TEST_F(TheFocus, MovesByTheArrowsWhereTheViewHasNoUseForThem)
{
    EXPECT_EQ(press(Key::Down), a.get());
    EXPECT_EQ(press(Key::Right), b.get());
    EXPECT_EQ(press(Key::Down), c.get());
    EXPECT_EQ(press(Key::Up), b.get());
    EXPECT_EQ(press(Key::Left), a.get());
}

TEST_F(TheFocus, PassesOverViewsThatCannotBeUsed)
{
    a->setHidden(true);
    b->setAlpha(0);
    c->setInteractive(false);
    EXPECT_EQ(press(Key::Tab), d.get());
    EXPECT_EQ(press(Key::Tab), d.get());
}

TEST_F(TheFocus, PassesOverViewsInAViewThatIsNotInteractive)
{
    const auto box = make<View>(makeRect(0, 0, 320, 45));
    window->add(*box);
    box->add(*a);
    box->setInteractive(false);
    EXPECT_EQ(press(Key::Tab), b.get());
}

TEST_F(TheFocus, IsNowhereWhileItsViewIsHiddenAndThenThereAgain)
{
    press(Key::Tab);
    a->setHidden(true);
    EXPECT_EQ(window->focus().view(), nullptr);
    EXPECT_TRUE(window->focus().isGivenTo(*a));
    a->setHidden(false);
    EXPECT_EQ(window->focus().view(), a.get());
}

TEST_F(TheFocus, IsForgottenWhenItsViewLeavesTheWindow)
{
    press(Key::Tab);
    a->removeFromParent();
    window->add(*a);
    EXPECT_EQ(window->focus().view(), nullptr);
    EXPECT_FALSE(window->focus().isGivenTo(*a));
    EXPECT_FALSE(a->hasKeyboard());
}

TEST_F(TheFocus, IsTakenFromAViewByName)
{
    press(Key::Tab);
    window->focus().takeFrom(*b);
    EXPECT_EQ(window->focus().view(), a.get());
    window->focus().takeFrom(*a);
    EXPECT_EQ(window->focus().view(), nullptr);
    EXPECT_FALSE(a->hasKeyboard());
}

TEST_F(TheFocus, MovesToTheViewThatTakesKeysForAnother)
{
    const auto inside = make<View>(makeRect(0, 0, 10, 10));
    c->add(*inside);
    EXPECT_TRUE(window->focus().moveTo(*inside));
    EXPECT_EQ(window->focus().view(), c.get());
    EXPECT_FALSE(window->focus().moveTo(*window));
    EXPECT_EQ(window->focus().view(), c.get());
}

TEST_F(TheFocus, PressesItsViewBySpaceAndReturn)
{
    press(Key::Tab);
    press(Key::Space);
    EXPECT_TRUE(a->isOn());
    press(Key::Return);
    EXPECT_FALSE(a->isOn());
}

TEST_F(TheFocus, PressesOnceHoweverLongAKeyIsHeld)
{
    press(Key::Tab);
    press(Key::Space);
    EXPECT_TRUE(window->keyPressed(Key::Space, KeyStroke::Repeated));
    EXPECT_TRUE(a->isOn());
}

TEST_F(TheFocus, ShowsARingFromTheFirstKeyUntilATouch)
{
    press(Key::Tab);
    EXPECT_TRUE(a->showsFocus());
    press(Key::Tab);
    EXPECT_FALSE(a->showsFocus());
    EXPECT_TRUE(b->showsFocus());
    click({ 300, 300 });
    EXPECT_FALSE(b->showsFocus());
    EXPECT_EQ(window->focus().view(), b.get());
    press(Key::Space);
    EXPECT_TRUE(b->showsFocus());
}

TEST_F(TheFocus, KeepsItsRingWhenAKeyPressesItsView)
{
    press(Key::Tab);
    press(Key::Space);
    EXPECT_TRUE(a->showsFocus());
}

TEST_F(TheFocus, MovesToATouchedViewWithoutARing)
{
    for (const auto pointer : { Pointer::Mouse, Pointer::Finger }) {
        click({ 20, 60 }, pointer);
        EXPECT_EQ(window->focus().view(), c.get());
        EXPECT_FALSE(c->showsFocus());
        EXPECT_EQ(press(Key::Tab), d.get());
    }
}

TEST_F(TheFocus, RedrawsTheViewWithRoomForItsRing)
{
    std::vector<Rect> drawn;
    window->onInvalidate = [&](const Rect& part) { drawn.push_back(part); };
    press(Key::Tab);
    EXPECT_THAT(drawn, Contains(makeRect(6, -4, 59, 39)));
}

TEST_F(TheFocus, TellsAssistiveTechnologyOfEveryMove)
{
    std::vector<const View*> told;
    window->onAccessibleChange = [&](const View& view, AccessibleChange change) {
        if (change == AccessibleChange::FocusMoved)
            told.push_back(&view);
    };
    press(Key::Tab);
    press(Key::Tab);
    press(Key::Space);
    EXPECT_THAT(told, ElementsAre(a.get(), b.get()));
}

TEST_F(TheFocus, TellsTheWindowsOwnerOfEveryMove)
{
    int moves = 0;
    window->onFocusMoved = [&] { ++moves; };
    press(Key::Tab);
    EXPECT_EQ(moves, 1);
    press(Key::Space);
    EXPECT_EQ(moves, 1);
    a->removeFromParent();
    EXPECT_EQ(moves, 2);
}

/// A text field below the switches.
class TheFocusInATextField : public TheFocus {
protected:
    TheFocusInATextField()
    {
        window->add(*field);
        press(Key::Backtab);
    }

    const Ref<TextField> field = make<TextField>(makeRect(0, 200, 100, 30));
};

TEST_F(TheFocusInATextField, StaysThereWhenAnArrowIsPressed)
{
    EXPECT_TRUE(field->hasKeyboard());
    EXPECT_EQ(press(Key::Left), field.get());
    EXPECT_EQ(press(Key::Down), field.get());
}

TEST_F(TheFocusInATextField, IsGivenUpWhenItMovesOn)
{
    EXPECT_EQ(press(Key::Backtab), d.get());
    EXPECT_FALSE(field->hasKeyboard());
    EXPECT_FALSE(window->focus().isGivenTo(*field));
}

TEST_F(TheFocusInATextField, TypesIntoIt)
{
    EXPECT_TRUE(window->typeText("x"));
    EXPECT_EQ(field->text(), "x");
    press(Key::Backtab);
    EXPECT_FALSE(window->typeText("y"));
    EXPECT_EQ(field->text(), "x");
    EXPECT_EQ(press(Key::Tab), field.get());
    EXPECT_TRUE(window->typeText("z"));
    EXPECT_EQ(field->text(), "xz");
}

TEST_F(TheFocusInATextField, StaysThereWhenSomethingElseIsTouched)
{
    click({ 20, 60 });
    EXPECT_TRUE(c->isOn());
    EXPECT_EQ(window->focus().view(), field.get());
}

TEST_F(TheFocusInATextField, MovesToAnotherOneThatIsGivenTheKeyboard)
{
    const auto other = make<TextField>(makeRect(0, 250, 100, 30));
    window->add(*other);
    window->focus().giveTo(*other);
    EXPECT_EQ(window->focus().view(), other.get());
    EXPECT_FALSE(window->focus().isGivenTo(*field));
}

TEST_F(TheFocusInATextField, DoesNotComeBackToItFromAnotherOne)
{
    const auto other = make<TextField>(makeRect(0, 250, 100, 30));
    window->add(*other);
    field->setHidden(true);
    window->focus().giveTo(*other);
    other->removeFromParent();
    field->setHidden(false);
    EXPECT_EQ(window->focus().view(), nullptr);
}

/// Records each change of whether it has the keyboard focus.
class NotingView : public View {
public:
    using View::View;
    toolkit::Role role() const override { return toolkit::Role::Button; }
    bool isFocusable() const override { return true; }

    std::vector<bool> changes;

protected:
    void keyboardChanged() override { changes.push_back(hasKeyboard()); }
};

TEST_F(TheFocus, TellsAViewWhenItGetsAndLosesTheKeyboard)
{
    const auto view = make<NotingView>(makeRect(0, 200, 10, 10));
    window->add(*view);
    press(Key::Backtab);
    EXPECT_THAT(view->changes, ElementsAre(true));
    click({ 300, 300 });
    EXPECT_THAT(view->changes, ElementsAre(true)) << "it has lost its ring only";
    press(Key::Tab);
    EXPECT_THAT(view->changes, ElementsAre(true, false));
}

TEST_F(TheFocus, IsWithinAnAlertWhileThatIsShown)
{
    press(Key::Tab);
    window->alerts().add(*make<toolkit::Alert>("", "Really?", std::vector<std::string> { "No", "Yes" }));
    window->layOutAll();
    const auto* alert = window->alerts().current();
    ASSERT_NE(alert, nullptr);
    EXPECT_GT(alert->bounds().size.width, 0);
    EXPECT_FALSE(a->showsFocus());
    ASSERT_NE(window->focus().view(), nullptr);
    EXPECT_TRUE(window->focus().view()->isWithin(*alert));
    EXPECT_TRUE(window->focus().view()->showsFocus());
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(press(Key::Tab)->isWithin(*alert));
}

TEST_F(TheFocus, IsBackAtItsViewWhenEscapeHasClosedAnAlert)
{
    press(Key::Tab);
    window->alerts().add(*make<toolkit::Alert>("", "Really?", std::vector<std::string> { "No", "Yes" }));
    window->layOutAll();
    press(Key::Escape);
    EXPECT_EQ(window->alerts().current(), nullptr);
    window->layOutAll();
    EXPECT_EQ(window->focus().view(), a.get());
    EXPECT_TRUE(a->showsFocus());
}

} // namespace

} // namespace brimsound::tests
