#include "platform/desktop/UIKit/Focus.h"

#include "platform/UIKit/UIAlertView.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UISwitch.h"
#include "platform/UIKit/UITextField.h"
#include "platform/UIKit/UIViewController.h"
#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/SliderPeer.h"
#include "platform/desktop/UIKit/TextFieldPeer.h"
#include "platform/desktop/UIKit/ViewControllerPeer.h"

#include "tests/platform/UIKit/Controls.h"
#include "tests/platform/UIKit/Lists.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::Key;
using desktop::KeyStroke;
using desktop::Pointer;
using desktop::Window;
using testing::ElementsAre;
using testing::IsEmpty;

RetainPtr<UISwitch> switchAt(double x, double y)
{
    auto toggle = make<UISwitch>();
    toggle->setFrame(CGRectMake(x, y, 51, 31));
    return toggle;
}

/// Four switches, added in another order than they are read in.
class TheKeyboard : public testing::Test {
protected:
    TheKeyboard()
    {
        for (const auto& toggle : { d, b, a, c })
            window->addSubview(*toggle);
    }
    ~TheKeyboard() override
    {
        window->alerts().dismissAll();
        desktop::Clock::shared().advance(2);
    }

    const UIView* press(Key key, KeyStroke stroke = KeyStroke::First) const
    {
        window->keyPressed(key, stroke);
        window->keyReleased(key);
        return window->focus().view();
    }
    void click(CGPoint at, Pointer pointer = Pointer::Mouse) const
    {
        window->touchDown({ at, pointer });
        window->touchUp(at);
    }
    static bool hasRing(const UIView& view) { return desktop::peerOf(view).showsFocus; }

    const RetainPtr<Window> window = make<Window>(CGSize { 320, 400 });
    const RetainPtr<UISwitch> a = switchAt(10, 0);
    const RetainPtr<UISwitch> b = switchAt(200, 0);
    const RetainPtr<UISwitch> c = switchAt(10, 50);
    const RetainPtr<UISwitch> d = switchAt(10, 100);
};

TEST_F(TheKeyboard, IsNowhereAtFirst)
{
    EXPECT_EQ(window->focus().view(), nullptr);
    EXPECT_FALSE(window->keyPressed(Key::Return));
    EXPECT_FALSE(window->keyPressed(Key::Space));
    EXPECT_FALSE(window->keyPressed(Key::Escape));
    EXPECT_FALSE(window->keyPressed(Key::PageDown));
    EXPECT_FALSE(window->keyPressed(Key::Delete));
}

TEST_F(TheKeyboard, GoesThroughTheViewsAsTheyAreRead)
{
    EXPECT_EQ(press(Key::Tab), a.get());
    EXPECT_EQ(press(Key::Tab), b.get());
    EXPECT_EQ(press(Key::Tab), c.get());
    EXPECT_EQ(press(Key::Tab), d.get());
    EXPECT_EQ(press(Key::Tab), a.get());
}

TEST_F(TheKeyboard, GoesBackThroughTheViews)
{
    EXPECT_EQ(press(Key::Backtab), d.get());
    EXPECT_EQ(press(Key::Backtab), c.get());
    EXPECT_EQ(press(Key::Backtab), b.get());
    EXPECT_EQ(press(Key::Backtab), a.get());
    EXPECT_EQ(press(Key::Backtab), d.get());
}

TEST_F(TheKeyboard, GoesOnByTheArrowsWhereTheViewHasNoUseForThem)
{
    EXPECT_EQ(press(Key::Down), a.get());
    EXPECT_EQ(press(Key::Right), b.get());
    EXPECT_EQ(press(Key::Down), c.get());
    EXPECT_EQ(press(Key::Up), b.get());
    EXPECT_EQ(press(Key::Left), a.get());
}

TEST_F(TheKeyboard, PassesOverWhatCannotBeUsed)
{
    a->setHidden(true);
    b->setAlpha(0);
    c->setUserInteractionEnabled(false);
    EXPECT_EQ(press(Key::Tab), d.get());
    EXPECT_EQ(press(Key::Tab), d.get());
}

TEST_F(TheKeyboard, IsTakenFromAViewThatIsHiddenAndGivenBack)
{
    press(Key::Tab);
    a->setHidden(true);
    EXPECT_EQ(window->focus().view(), nullptr);
    a->setHidden(false);
    EXPECT_EQ(window->focus().view(), a.get());
    a->removeFromSuperview();
    window->addSubview(*a);
    EXPECT_EQ(window->focus().view(), nullptr);
}

TEST_F(TheKeyboard, PressesWhatHasIt)
{
    press(Key::Tab);
    press(Key::Space);
    EXPECT_TRUE(a->isOn());
    press(Key::Return);
    EXPECT_FALSE(a->isOn());
}

TEST_F(TheKeyboard, PressesOnceHoweverLongAKeyIsHeld)
{
    press(Key::Tab);
    press(Key::Space);
    EXPECT_TRUE(window->keyPressed(Key::Space, KeyStroke::Repeated));
    EXPECT_TRUE(a->isOn());
}

TEST_F(TheKeyboard, ShowsWhereItIsUntilSomethingIsTouched)
{
    press(Key::Tab);
    EXPECT_TRUE(hasRing(*a));
    press(Key::Tab);
    EXPECT_FALSE(hasRing(*a));
    EXPECT_TRUE(hasRing(*b));
    click({ 300, 300 });
    EXPECT_FALSE(hasRing(*b));
    EXPECT_EQ(window->focus().view(), b.get());
    press(Key::Space);
    EXPECT_TRUE(hasRing(*b));
}

TEST_F(TheKeyboard, StaysShownWhenAKeyPresses)
{
    press(Key::Tab);
    press(Key::Space);
    EXPECT_TRUE(hasRing(*a));
}

TEST_F(TheKeyboard, GoesToWhatIsTouchedWithoutARing)
{
    for (const auto pointer : { Pointer::Mouse, Pointer::Finger }) {
        click({ 20, 60 }, pointer);
        EXPECT_EQ(window->focus().view(), c.get());
        EXPECT_FALSE(hasRing(*c));
        EXPECT_EQ(press(Key::Tab), d.get());
    }
}

TEST_F(TheKeyboard, HasWhatShowsItDrawnAnew)
{
    std::vector<CGRect> drawn;
    window->onInvalidate = [&](const CGRect& part) { drawn.push_back(part); };
    press(Key::Tab);
    EXPECT_THAT(drawn, testing::Contains(CGRectMake(6, -4, 59, 39)));
    window->onInvalidate = nullptr;
}

TEST_F(TheKeyboard, TellsOfEveryMove)
{
    std::vector<const UIView*> told;
    window->onAccessibleChange = [&](const UIView& view, desktop::AccessibleChange change) {
        if (change == desktop::AccessibleChange::FocusMoved)
            told.push_back(&view);
    };
    press(Key::Tab);
    press(Key::Tab);
    press(Key::Space);
    EXPECT_THAT(told, ElementsAre(a.get(), b.get()));
    window->onAccessibleChange = nullptr;
}

TEST_F(TheKeyboard, EndsTheEditingOfATextFieldThatItLeaves)
{
    const auto field = make<UITextField>(CGRectMake(0, 200, 100, 30));
    window->addSubview(*field);
    press(Key::Backtab);
    EXPECT_TRUE(field->isFirstResponder());
    EXPECT_EQ(press(Key::Left), field.get());
    EXPECT_EQ(press(Key::Down), field.get());
    EXPECT_EQ(press(Key::Backtab), d.get());
    EXPECT_FALSE(field->isFirstResponder());
    EXPECT_EQ(press(Key::Tab), field.get());
    window->typeText("x");
    EXPECT_EQ(field->text(), "x");
}

TEST_F(TheKeyboard, IsWithAnAlertWhileThatIsShown)
{
    press(Key::Tab);
    make<UIAlertView>("", "Really?", nullptr, "No", std::vector<std::string> { "Yes" })->show();
    window->layOut();
    EXPECT_FALSE(hasRing(*a));
    EXPECT_TRUE(window->alerts().current()->bounds().size.width > 0);
    EXPECT_TRUE(desktop::isWithin(window->focus().view(), *window->alerts().current()));
    EXPECT_TRUE(hasRing(*window->focus().view()));
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(desktop::isWithin(press(Key::Tab), *window->alerts().current()));
    press(Key::Escape);
    EXPECT_EQ(window->alerts().current(), nullptr);
    window->layOut();
    EXPECT_EQ(window->focus().view(), a.get());
    EXPECT_TRUE(hasRing(*a));
}

TEST_F(TheKeyboard, ClosesASheetByEscape)
{
    struct SheetPeer : desktop::ViewControllerPeer {
        int escapes = 0;
        void escape() override { ++escapes; }
    };
    struct SheetController : UIViewController {
        using UIViewController::UIViewController;
        explicit SheetController(Peer* peer)
            : UIViewController(peer)
        {
        }
    };
    auto* peer = new SheetPeer;
    const auto root = make<UIViewController>();
    root->presentViewControllerAnimatedCompletion(make<SheetController>(peer), Animated::No, {});
    EXPECT_EQ(press(Key::Tab), nullptr);
    EXPECT_TRUE(window->keyPressed(Key::Escape));
    EXPECT_FALSE(window->keyPressed(Key::Escape, KeyStroke::Repeated));
    EXPECT_EQ(peer->escapes, 1);
    root->dismissViewControllerAnimatedCompletion(Animated::No, {});
    EXPECT_EQ(press(Key::Tab), a.get());
}

/// A panel over everything: a plain button as large as the panel, and in front of it a box with a bar whose
/// button is larger than the bar.
class TheKeyboardUnderAPanel : public TheKeyboard {
protected:
    TheKeyboardUnderAPanel()
    {
        label->setText("Cancel");
        window->addSubview(*host);
        for (const auto& below : { d, b, a, c })
            host->addSubview(*below);
        host->addSubview(*panel);
        panel->addSubview(*hideAll);
        panel->addSubview(*box);
        box->addSubview(*toggle);
        box->addSubview(*bar);
        bar->addSubview(*label);
        bar->addSubview(*cancel);
        log->listenTo(*cancel);
        hideAllLog->listenTo(*hideAll);
    }

    const RetainPtr<UIView> host = make<UIView>(CGRectMake(0, 0, 320, 400));
    const RetainPtr<UIView> panel = make<UIView>(CGRectMake(0, 0, 320, 400));
    const RetainPtr<UIButton> hideAll = make<UIButton>(CGRectMake(0, 0, 320, 400));
    const RetainPtr<UIView> box = make<UIView>(CGRectMake(44, 44, 232, 312));
    const RetainPtr<UISwitch> toggle = switchAt(10, 10);
    const RetainPtr<UIView> bar = make<UIView>(CGRectMake(0, 268, 232, 44));
    const RetainPtr<UILabel> label = make<UILabel>(CGRectMake(0, 0, 232, 44));
    const RetainPtr<UIButton> cancel = make<UIButton>(CGRectMake(0, 0, 320, 88));
    const RetainPtr<EventLog> log = make<EventLog>();
    const RetainPtr<EventLog> hideAllLog = make<EventLog>();
};

TEST_F(TheKeyboardUnderAPanel, StaysInThePanel)
{
    EXPECT_EQ(press(Key::Tab), toggle.get());
    EXPECT_EQ(press(Key::Tab), cancel.get());
    EXPECT_EQ(press(Key::Tab), toggle.get());
    EXPECT_EQ(press(Key::Backtab), cancel.get());
    EXPECT_FALSE(desktop::isReachable(*a));
}

TEST_F(TheKeyboardUnderAPanel, PressesTheButtonThatIsLargerThanItsBar)
{
    press(Key::Backtab);
    press(Key::Return);
    EXPECT_THAT(log->take(), ElementsAre("down", "up inside"));
}

TEST_F(TheKeyboardUnderAPanel, TouchesBesideThePanelByEscape)
{
    EXPECT_TRUE(window->keyPressed(Key::Escape));
    EXPECT_THAT(hideAllLog->take(), ElementsAre("down", "up inside"));
    // Even where the box covers all but an edge.
    box->setFrame(CGRectMake(0, 0, 320, 398));
    EXPECT_TRUE(window->keyPressed(Key::Escape));
    EXPECT_THAT(hideAllLog->take(), ElementsAre("down", "up inside"));
}

TEST_F(TheKeyboardUnderAPanel, GoesToThePanelThatCoversWhereItWas)
{
    panel->setHidden(true);
    press(Key::Tab);
    panel->setHidden(false);
    window->layOut();
    EXPECT_EQ(window->focus().view(), toggle.get());
    EXPECT_TRUE(hasRing(*toggle));
}

TEST_F(TheKeyboardUnderAPanel, IsNowhereWhenItWasNowhereBefore)
{
    panel->setHidden(true);
    window->layOut();
    panel->setHidden(false);
    window->layOut();
    EXPECT_EQ(window->focus().view(), nullptr);
}

TEST_F(TheKeyboardUnderAPanel, IsBackInThePaneWhenThePanelFades)
{
    panel->setHidden(true);
    press(Key::Tab);
    panel->setHidden(false);
    EXPECT_EQ(press(Key::Tab), cancel.get());
    panel->setUserInteractionEnabled(false);
    UIView::animateWithDurationAnimations(0.5, [&] { panel->setAlpha(0); });
    window->layOut();
    EXPECT_EQ(window->focus().view(), a.get());
    EXPECT_TRUE(desktop::isReachable(*a));
    EXPECT_FALSE(desktop::isReachable(*toggle));
    EXPECT_EQ(press(Key::Tab), b.get());
    EXPECT_FALSE(window->keyPressed(Key::Escape));
}

TEST_F(TheKeyboardUnderAPanel, LeavesAnEditedFieldForThePanelByEscape)
{
    const auto field = make<UITextField>(CGRectMake(10, 60, 100, 30));
    box->addSubview(*field);
    field->becomeFirstResponder();
    EXPECT_TRUE(window->keyPressed(Key::Escape));
    EXPECT_THAT(hideAllLog->take(), ElementsAre("down", "up inside"));
}

/// A slider from -12 to 12 that has the keyboard.
class AKeyOnASlider : public testing::Test {
protected:
    AKeyOnASlider()
    {
        slider->setMaximumValue(12);
        slider->setMinimumValue(-12);
        slider->setValue(0);
        slider->setFrame(CGRectMake(35, 50, 250, 44));
        window->addSubview(*slider);
        window->addSubview(*other);
        other->setFrame(CGRectMake(0, 200, 51, 31));
        window->keyPressed(Key::Tab);
        log->listenTo(*slider);
    }

    void press(Key key) const { window->keyPressed(key); }
    void hold(Key key) const { window->keyPressed(key, KeyStroke::Repeated); }
    void release(Key key) const { window->keyReleased(key); }
    float valueAfter(Key key) const
    {
        press(key);
        release(key);
        return slider->value();
    }

    const RetainPtr<Window> window = make<Window>(CGSize { 320, 400 });
    const RetainPtr<UISlider> slider = make<UISlider>();
    const RetainPtr<UISwitch> other = make<UISwitch>();
    const RetainPtr<EventLog> log = make<EventLog>();
};

TEST_F(AKeyOnASlider, MovesItByATenthOrByOneOrToItsEnds)
{
    EXPECT_EQ(valueAfter(Key::Right), 0.1f);
    EXPECT_EQ(valueAfter(Key::Up), 0.2f);
    EXPECT_EQ(valueAfter(Key::Up), 0.3f);
    EXPECT_EQ(valueAfter(Key::Left), 0.2f);
    EXPECT_EQ(valueAfter(Key::Down), 0.1f);
    EXPECT_EQ(valueAfter(Key::PageDown), -0.9f);
    EXPECT_EQ(valueAfter(Key::PageUp), 0.1f);
    EXPECT_EQ(valueAfter(Key::End), 12);
    EXPECT_EQ(valueAfter(Key::PageUp), 12);
    EXPECT_EQ(valueAfter(Key::Home), -12);
    EXPECT_EQ(valueAfter(Key::Left), -12);
}

TEST_F(AKeyOnASlider, TakesItThroughTheTenths)
{
    slider->setValue(-1.95f);
    EXPECT_EQ(valueAfter(Key::Right), -1.9f);
    for (int i = 0; i < 38; ++i)
        valueAfter(Key::Right);
    EXPECT_EQ(slider->value(), 1.9f);
}

TEST_F(AKeyOnASlider, IsATouchThatEndsWhenTheKeyIsReleased)
{
    press(Key::Right);
    EXPECT_THAT(log->take(), ElementsAre("down", "value", "drag inside"));
    hold(Key::Right);
    hold(Key::Right);
    EXPECT_THAT(log->take(), ElementsAre("value", "drag inside", "value", "drag inside"));
    EXPECT_EQ(slider->value(), 0.3f);
    release(Key::Right);
    EXPECT_THAT(log->take(), ElementsAre("up inside"));
    release(Key::Right);
    EXPECT_THAT(log->take(), IsEmpty());
}

TEST_F(AKeyOnASlider, GoesOnWithTheSameTouchWhenAnotherKeyComesToIt)
{
    press(Key::Right);
    press(Key::Up);
    release(Key::Right);
    EXPECT_THAT(log->take(), ElementsAre("down", "value", "drag inside", "value", "drag inside"));
    release(Key::Up);
    EXPECT_THAT(log->take(), ElementsAre("up inside"));
}

TEST_F(AKeyOnASlider, IsLetGoOfWhenTheWindowLosesTheKeyboard)
{
    press(Key::Right);
    log->take();
    window->releaseKeys();
    EXPECT_THAT(log->take(), ElementsAre("up inside"));
    hold(Key::Right);
    EXPECT_THAT(log->take(), IsEmpty());
}

TEST_F(AKeyOnASlider, IsLetGoOfWhenTheKeyboardMovesOn)
{
    press(Key::Right);
    log->take();
    press(Key::Tab);
    EXPECT_THAT(log->take(), ElementsAre("up inside"));
    hold(Key::Right);
    EXPECT_THAT(log->take(), IsEmpty());
}

TEST_F(AKeyOnASlider, IsLetGoOfWhenTheSliderLeavesTheWindow)
{
    press(Key::Right);
    log->take();
    slider->removeFromSuperview();
    window->layOut();
    EXPECT_FALSE(window->isTouched());
    EXPECT_THAT(log->take(), ElementsAre("cancel"));
}

TEST_F(AKeyOnASlider, IsLetGoOfWhenSomethingIsTouched)
{
    press(Key::Right);
    log->take();
    window->touchDown({ { 10, 210 }, Pointer::Mouse });
    EXPECT_THAT(log->take(), ElementsAre("up inside"));
    hold(Key::Right);
    release(Key::Right);
    EXPECT_TRUE(window->isTouched());
    window->touchUp({ 10, 210 });
    EXPECT_TRUE(other->isOn());
    EXPECT_THAT(log->take(), IsEmpty());
}

TEST_F(AKeyOnASlider, IsOverWhenItsTouchIsCancelled)
{
    press(Key::Right);
    log->take();
    window->touchCancel();
    EXPECT_THAT(log->take(), ElementsAre("cancel"));
    hold(Key::Right);
    EXPECT_THAT(log->take(), IsEmpty());
    press(Key::Right);
    EXPECT_THAT(log->take(), ElementsAre("down", "value", "drag inside"));
    release(Key::Right);
    EXPECT_THAT(log->take(), ElementsAre("up inside"));
}

TEST_F(AKeyOnASlider, DoesNothingWhileItIsTouched)
{
    window->touchDown({ { 160, 72 }, Pointer::Mouse });
    log->take();
    press(Key::Right);
    release(Key::Right);
    EXPECT_THAT(log->take(), IsEmpty());
    EXPECT_EQ(slider->value(), 0);
}

TEST_F(AKeyOnASlider, DoesNotPressIt)
{
    press(Key::Space);
    press(Key::Return);
    EXPECT_THAT(log->take(), IsEmpty());
}

/// A grouped table of four rows, each with a switch, then a hundred without, then one to be pressed.
class TheKeyboardInATable : public testing::Test {
protected:
    TheKeyboardInATable()
    {
        rows.identifier = [](const NSIndexPath& row) { return std::to_string(row.section); };
        rows.onCellMade = [this](UITableViewCell& cell, const NSIndexPath& row) {
            if (row.section != 2)
                cell.setSelectionStyle(UITableViewCellSelectionStyle::None);
            if (row.section != 0)
                return;
            switches.push_back(make<UISwitch>());
            cell.setAccessoryView(switches.back());
        };
        list.table->reloadData();
        list.window->layOut();
    }

    void press(Key key) const
    {
        list.window->keyPressed(key);
        list.window->keyReleased(key);
    }
    UIView* focused() const { return list.window->focus().view(); }

    std::vector<RetainPtr<UISwitch>> switches;
    Rows rows { { 4, 100, 1 } };
    const TableInWindow list { rows, { 320, 400 }, UITableViewStyle::Grouped };
};

TEST_F(TheKeyboardInATable, GoesToEachControlAndToRowsThatWereNotOnViewYet)
{
    for (const auto& toggle : switches) {
        press(Key::Tab);
        EXPECT_EQ(focused(), toggle.get());
        EXPECT_EQ(list.offset(), 0);
    }
    press(Key::Tab);
    ASSERT_TRUE(focused());
    EXPECT_EQ(focused(), list.table->cellForRowAtIndexPath({ 2, 0 }));
    EXPECT_TRUE(desktop::contains(list.table->bounds(), focused()->frame()));
    press(Key::Return);
    EXPECT_THAT(rows.selected, ElementsAre(NSIndexPath { 2, 0 }));
    // And round.
    press(Key::Tab);
    EXPECT_LE(list.offset(), 22);
    EXPECT_EQ(focused(), list.table->cellForRowAtIndexPath({ 0, 0 })->accessoryView());
    press(Key::Backtab);
    EXPECT_EQ(focused(), list.table->cellForRowAtIndexPath({ 2, 0 }));
    press(Key::Up);
    EXPECT_EQ(focused(), list.table->cellForRowAtIndexPath({ 0, 3 })->accessoryView());
}

TEST_F(TheKeyboardInATable, StartsWithWhatIsOnView)
{
    list.scrollTo(88);
    press(Key::Tab);
    EXPECT_EQ(focused(), list.table->cellForRowAtIndexPath({ 0, 1 })->accessoryView());
}

TEST_F(TheKeyboardInATable, ScrollsItByPagesAndToItsEnds)
{
    press(Key::Tab);
    press(Key::PageDown);
    EXPECT_EQ(list.offset(), 400);
    press(Key::PageUp);
    EXPECT_EQ(list.offset(), 0);
    press(Key::Tab);
    press(Key::End);
    EXPECT_EQ(list.offset(), list.peer().height - 400);
    press(Key::Home);
    EXPECT_EQ(list.offset(), 0);
}

/// A list of one row and then of fifty, and a switch below.
class TheKeyboardInAList : public testing::Test {
protected:
    TheKeyboardInAList()
    {
        list.window->setFrame(CGRectMake(0, 0, 320, 500));
        toggle->setFrame(CGRectMake(0, 450, 51, 31));
        list.window->addSubview(*toggle);
        press(Key::Tab);
    }

    void press(Key key) const
    {
        list.window->keyPressed(key);
        list.window->keyReleased(key);
    }
    const UIView* focused() const { return list.window->focus().view(); }
    /// The row that has the keyboard.
    NSIndexPath row() const
    {
        const auto* cell = dynamic_cast<const UITableViewCell*>(list.window->focus().part());
        return cell ? list.peer().rowOf(*cell).value_or(nowhere) : nowhere;
    }
    NSIndexPath rowAfter(Key key) const
    {
        press(key);
        return row();
    }

    static constexpr NSIndexPath nowhere { 99, 99 };
    Rows rows { { 1, 50 } };
    const TableInWindow list { rows, { 320, 440 } };
    const RetainPtr<UISwitch> toggle = make<UISwitch>();
};

TEST_F(TheKeyboardInAList, TakesItForOneStop)
{
    EXPECT_EQ(focused(), list.table.get());
    EXPECT_EQ(row(), (NSIndexPath { 0, 0 }));
    press(Key::Tab);
    EXPECT_EQ(focused(), toggle.get());
    press(Key::Backtab);
    EXPECT_EQ(focused(), list.table.get());
    EXPECT_EQ(row(), (NSIndexPath { 0, 0 }));
}

TEST_F(TheKeyboardInAList, GoesFromRowToRow)
{
    EXPECT_EQ(rowAfter(Key::Down), (NSIndexPath { 1, 0 }));
    EXPECT_EQ(rowAfter(Key::Down), (NSIndexPath { 1, 1 }));
    EXPECT_EQ(rowAfter(Key::Up), (NSIndexPath { 1, 0 }));
    EXPECT_EQ(rowAfter(Key::Up), (NSIndexPath { 0, 0 }));
    EXPECT_EQ(rowAfter(Key::Up), (NSIndexPath { 0, 0 }));
    EXPECT_EQ(rowAfter(Key::End), (NSIndexPath { 1, 49 }));
    EXPECT_EQ(rowAfter(Key::Down), (NSIndexPath { 1, 49 }));
    EXPECT_EQ(rowAfter(Key::Home), (NSIndexPath { 0, 0 }));
}

TEST_F(TheKeyboardInAList, GoesByPagesAndScrollsAlong)
{
    EXPECT_EQ(rowAfter(Key::PageDown), (NSIndexPath { 1, 8 }));
    EXPECT_EQ(list.offset(), 0);
    EXPECT_EQ(rowAfter(Key::PageDown), (NSIndexPath { 1, 17 }));
    EXPECT_EQ(list.offset(), 9 * 44);
    EXPECT_EQ(rowAfter(Key::PageUp), (NSIndexPath { 1, 8 }));
    EXPECT_EQ(rowAfter(Key::PageUp), (NSIndexPath { 0, 0 }));
    EXPECT_EQ(list.offset(), 0);
}

TEST_F(TheKeyboardInAList, TapsTheRow)
{
    press(Key::Down);
    press(Key::Down);
    press(Key::Return);
    list.scrollTo(1000);
    press(Key::Space);
    list.window->keyPressed(Key::Space, KeyStroke::Repeated);
    EXPECT_THAT(rows.selected, ElementsAre(NSIndexPath { 1, 1 }, NSIndexPath { 1, 1 }));
}

/// Rows that can be deleted, and what becomes of them.
class Deletable : public Rows {
public:
    using Rows::Rows;

    bool tableViewCanEditRowAtIndexPath(UITableView&, const NSIndexPath& row) override
    {
        return row.section == 1;
    }
    void tableViewCommitEditingStyleForRowAtIndexPath(
        UITableView& table, UITableViewCellEditingStyle, const NSIndexPath& row) override
    {
        deleted.push_back(row);
        --counts[row.section];
        table.deleteRowsAtIndexPathsWithRowAnimation({ row }, UITableViewRowAnimation::Automatic);
    }

    std::vector<NSIndexPath> deleted;
};

TEST(DeleteInAList, DeletesTheRowAndGoesOnWithTheNext)
{
    Deletable rows { { 1, 2 } };
    const TableInWindow list(rows, { 320, 440 });
    const auto press = [&](Key key) { return list.window->keyPressed(key); };
    const auto row
        = [&] { return list.peer().rowOf(static_cast<UITableViewCell&>(*list.window->focus().part())); };
    press(Key::Tab);
    press(Key::Delete);
    EXPECT_THAT(rows.deleted, IsEmpty());
    press(Key::Down);
    press(Key::Delete);
    EXPECT_EQ(row(), (NSIndexPath { 1, 0 }));
    list.window->keyPressed(Key::Delete, KeyStroke::Repeated);
    EXPECT_THAT(rows.deleted, ElementsAre(NSIndexPath { 1, 0 }));
    press(Key::Delete);
    EXPECT_THAT(rows.deleted, ElementsAre(NSIndexPath { 1, 0 }, NSIndexPath { 1, 0 }));
    EXPECT_EQ(row(), (NSIndexPath { 0, 0 }));
    desktop::Clock::shared().advance(1);
}

TEST_F(TheKeyboardInAList, KeepsTheRowThatIsScrolledAway)
{
    press(Key::Down);
    list.scrollTo(1000);
    EXPECT_EQ(row(), nowhere);
    EXPECT_EQ(rowAfter(Key::Down), (NSIndexPath { 1, 1 }));
}

TEST_F(TheKeyboardInAList, StartsAtTheRowThatIsTouched)
{
    list.tap({ 100, 150 }, Pointer::Mouse);
    EXPECT_EQ(row(), (NSIndexPath { 1, 2 }));
    EXPECT_EQ(rowAfter(Key::Down), (NSIndexPath { 1, 3 }));
}

TEST_F(TheKeyboardInAList, StartsAnewWhenTheRowsAreAskedForAnew)
{
    press(Key::End);
    rows.counts = { 1, 3 };
    list.table->reloadData();
    list.scrollTo(0);
    EXPECT_EQ(row(), (NSIndexPath { 0, 0 }));
}

TEST_F(TheKeyboardInAList, TellsOfTheRow)
{
    std::vector<const UIView*> told;
    list.window->onAccessibleChange = [&](const UIView& view, desktop::AccessibleChange change) {
        if (change == desktop::AccessibleChange::FocusMoved)
            told.push_back(&view);
    };
    press(Key::Down);
    EXPECT_THAT(told, ElementsAre(list.table->cellForRowAtIndexPath({ 1, 0 })));
    list.window->onAccessibleChange = nullptr;
}

TEST_F(TheKeyboardInAList, MovesToARowThatIsAskedFor)
{
    EXPECT_TRUE(list.window->focus().moveTo(*list.table->cellForRowAtIndexPath({ 1, 4 })));
    EXPECT_EQ(row(), (NSIndexPath { 1, 4 }));
    EXPECT_FALSE(list.window->focus().moveTo(*list.window));
}

TEST_F(TheKeyboardInAList, HasARingAroundTheRow)
{
    press(Key::Down);
    EXPECT_TRUE(list.peer().showsFocus);
    EXPECT_EQ(list.peer().focusRing().rect, CGRectMake(4, 48, 312, 36));
}

TEST_F(TheKeyboardInAList, HasARingBesideTheRoundedCornersThatCutTheListOff)
{
    press(Key::Tab);
    EXPECT_EQ(list.peer().focusRing().radius, 10);
    list.window->layer().setCornerRadius(20);
    list.window->setClipsToBounds(true);
    EXPECT_EQ(list.peer().focusRing().radius, 16);
}

TEST(AFocusRing, KeepsToWhatShowsOfAView)
{
    const auto window = make<Window>(CGSize { 320, 400 });
    const auto bar = make<UIView>(CGRectMake(10, 100, 100, 44));
    const auto button = make<UIButton>(CGRectMake(0, 0, 320, 88));
    window->addSubview(*bar);
    bar->addSubview(*button);
    EXPECT_EQ(desktop::peerOf(*button).focusRing().rect, CGRectMake(4, 4, 92, 36));
}

TEST(TheFocusRing, RunsBesideTheRoundedCornersThatCutItsViewOff)
{
    const auto window = make<Window>(CGSize { 320, 400 });
    const auto panel = make<UIView>(CGRectMake(44, 44, 232, 200));
    panel->layer().setCornerRadius(20);
    panel->setClipsToBounds(true);
    const auto bar = make<UIView>(CGRectMake(0, 156, 232, 44));
    const auto button = make<UIButton>(CGRectMake(0, 0, 320, 88));
    const auto middle = make<UIButton>(CGRectMake(0, 60, 232, 44));
    window->addSubview(*panel);
    panel->addSubview(*bar);
    panel->addSubview(*middle);
    bar->addSubview(*button);

    EXPECT_EQ(desktop::peerOf(*button).focusRing().rect, CGRectMake(4, 4, 224, 36));
    EXPECT_EQ(desktop::peerOf(*button).focusRing().radius, 16) << "with the corner's middle";
    EXPECT_EQ(desktop::peerOf(*middle).focusRing().radius, 10);
    panel->setClipsToBounds(false);
    EXPECT_EQ(desktop::peerOf(*button).focusRing().radius, 10);
}

} // namespace

} // namespace brimsound::tests
