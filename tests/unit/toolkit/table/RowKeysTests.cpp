#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/Rows.h"
#include "tests/unit/toolkit/Switches.h"
#include "toolkit/time/Clock.h"

#include <gmock/gmock.h>

#include <vector>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::AccessibleChange;
using toolkit::Cell;
using toolkit::Key;
using toolkit::KeyStroke;
using toolkit::makeRect;
using toolkit::Pointer;
using toolkit::Ref;
using toolkit::RowPath;
using toolkit::Switch;
using toolkit::View;

constexpr RowPath nowhere { 99, 99 };

/// The focused row; `nowhere` when no visible row has the focus.
RowPath focusedRow(const TableInWindow& list)
{
    const auto* cell = dynamic_cast<const Cell*>(list.window->focus().part());
    return cell ? list.table->rowOf(*cell).value_or(nowhere) : nowhere;
}

/// A list with a section of one row and a section of fifty rows. It has the keyboard focus. Below it is a
/// switch.
class AKeyInAList : public testing::Test {
protected:
    AKeyInAList()
    {
        list.window->setFrame(makeRect(0, 0, 320, 500));
        list.window->add(*toggle);
        press(Key::Tab);
    }

    void press(Key key) const
    {
        list.window->keyPressed(key, KeyStroke::First);
        list.window->keyReleased(key);
    }
    const View* focused() const { return list.window->focus().view(); }
    RowPath row() const { return focusedRow(list); }
    RowPath rowAfter(Key key) const
    {
        press(key);
        return row();
    }

    Rows rows { { 1, 50 } };
    const TableInWindow list { rows, { 320, 440 } };
    const Ref<Switch> toggle = switchAt(0, 450);
};

TEST_F(AKeyInAList, MovesTheFocusPastTheWholeListByTab)
{
    EXPECT_EQ(focused(), list.table.get());
    EXPECT_EQ(row(), (RowPath { 0, 0 }));
    press(Key::Tab);
    EXPECT_EQ(focused(), toggle.get());
    press(Key::Backtab);
    EXPECT_EQ(focused(), list.table.get());
    EXPECT_EQ(row(), (RowPath { 0, 0 }));
}

TEST_F(AKeyInAList, MovesFromRowToRowAndToTheEnds)
{
    EXPECT_EQ(rowAfter(Key::Down), (RowPath { 1, 0 }));
    EXPECT_EQ(rowAfter(Key::Down), (RowPath { 1, 1 }));
    EXPECT_EQ(rowAfter(Key::Up), (RowPath { 1, 0 }));
    EXPECT_EQ(rowAfter(Key::Up), (RowPath { 0, 0 }));
    EXPECT_EQ(rowAfter(Key::Up), (RowPath { 0, 0 }));
    EXPECT_EQ(rowAfter(Key::End), (RowPath { 1, 49 }));
    EXPECT_EQ(rowAfter(Key::Down), (RowPath { 1, 49 }));
    EXPECT_EQ(rowAfter(Key::Home), (RowPath { 0, 0 }));
}

TEST_F(AKeyInAList, MovesByPagesAndScrollsToTheRow)
{
    EXPECT_EQ(rowAfter(Key::PageDown), (RowPath { 1, 8 }));
    EXPECT_EQ(list.offset(), 0);
    EXPECT_EQ(rowAfter(Key::PageDown), (RowPath { 1, 17 }));
    EXPECT_EQ(list.offset(), 9 * 44);
    EXPECT_EQ(rowAfter(Key::PageUp), (RowPath { 1, 8 }));
    EXPECT_EQ(rowAfter(Key::PageUp), (RowPath { 0, 0 }));
    EXPECT_EQ(list.offset(), 0);
}

TEST_F(AKeyInAList, SelectsTheRowByReturnAndSpace)
{
    press(Key::Down);
    press(Key::Down);
    press(Key::Return);
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 1, 1 }));
    press(Key::Space);
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 1, 1 }, RowPath { 1, 1 }));
}

TEST_F(AKeyInAList, SelectsTheRowThoughItWasScrolledAway)
{
    press(Key::Down);
    press(Key::Down);
    list.scrollTo(1000);
    press(Key::Space);
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 1, 1 }));
}

TEST_F(AKeyInAList, SelectsTheRowOnceHoweverLongItIsHeld)
{
    list.window->keyPressed(Key::Space, KeyStroke::First);
    list.window->keyPressed(Key::Space, KeyStroke::Repeated);
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 0 }));
}

TEST_F(AKeyInAList, ContinuesFromTheRowThatWasScrolledAway)
{
    press(Key::Down);
    list.scrollTo(1000);
    EXPECT_EQ(row(), nowhere);
    EXPECT_EQ(rowAfter(Key::Down), (RowPath { 1, 1 }));
}

TEST_F(AKeyInAList, ScrollsToTheRowWhenTheFocusComesBackToTheList)
{
    press(Key::Down);
    list.scrollTo(1000);
    press(Key::Tab);
    EXPECT_EQ(rowAfter(Key::Backtab), (RowPath { 1, 0 }));
    EXPECT_EQ(list.offset(), 44);
}

TEST_F(AKeyInAList, ContinuesFromTheRowThatWasTouched)
{
    list.tap({ 100, 150 }, Pointer::Mouse);
    EXPECT_EQ(focused(), list.table.get());
    EXPECT_EQ(row(), (RowPath { 1, 2 }));
    EXPECT_EQ(rowAfter(Key::Down), (RowPath { 1, 3 }));
}

TEST_F(AKeyInAList, StartsAtTheFirstRowWhenTheRowsWereReloaded)
{
    press(Key::End);
    rows.counts = { 1, 3 };
    list.table->reload();
    list.scrollTo(0);
    EXPECT_EQ(row(), (RowPath { 0, 0 }));
}

TEST_F(AKeyInAList, TellsAssistiveTechnologyOfTheRow)
{
    std::vector<const View*> told;
    list.window->onAccessibleChange = [&](const View& view, AccessibleChange change) {
        if (change == AccessibleChange::FocusMoved)
            told.push_back(&view);
    };
    press(Key::Down);
    EXPECT_THAT(told, ElementsAre(list.table->cellOf({ 1, 0 })));
    list.window->onAccessibleChange = nullptr;
}

TEST_F(AKeyInAList, ShowsARingAroundTheRow)
{
    press(Key::Down);
    EXPECT_TRUE(list.table->showsFocus());
    EXPECT_EQ(list.table->focusRing().rect, makeRect(4, 48, 312, 36));
}

TEST_F(AKeyInAList, ShowsARingBesideTheRoundedCornersThatCutTheListOff)
{
    EXPECT_EQ(list.table->focusRing().radius, 10);
    press(Key::Tab);
    EXPECT_EQ(list.table->focusRing().radius, 10);
    list.window->setCornerRadius(20);
    list.window->setClips(true);
    EXPECT_EQ(list.table->focusRing().radius, 16);
}

TEST_F(AKeyInAList, MeansNothingWhereTheListHasNoRows)
{
    rows.counts = {};
    list.reload();
    EXPECT_EQ(row(), nowhere);
    EXPECT_FALSE(list.table->keyPressed(Key::Down, KeyStroke::First));
    EXPECT_FALSE(list.table->isFocusable());
}

TEST_F(AKeyInAList, IsNotNeededToMoveTheFocusToARow)
{
    EXPECT_TRUE(list.window->focus().moveTo(*list.table->cellOf({ 1, 4 })));
    EXPECT_EQ(focused(), list.table.get());
    EXPECT_EQ(row(), (RowPath { 1, 4 }));
    EXPECT_FALSE(list.window->focus().moveTo(*list.window));
}

TEST(TheDeleteKey, DeletesTheRowAndMovesTheFocusToTheNext)
{
    Rows rows { { 1, 2 } };
    rows.isDeletable = [](RowPath row) { return row.section == 1; };
    const TableInWindow list(rows, { 320, 440 });
    const auto press = [&](Key key) { list.window->keyPressed(key, KeyStroke::First); };
    press(Key::Tab);
    press(Key::Delete);
    EXPECT_THAT(rows.deletedRows, IsEmpty());
    press(Key::Down);
    press(Key::Delete);
    EXPECT_EQ(focusedRow(list), (RowPath { 1, 0 }));
    list.window->keyPressed(Key::Delete, KeyStroke::Repeated);
    EXPECT_THAT(rows.deletedRows, ElementsAre(RowPath { 1, 0 }));
    press(Key::Delete);
    EXPECT_THAT(rows.deletedRows, ElementsAre(RowPath { 1, 0 }, RowPath { 1, 0 }));
    EXPECT_EQ(focusedRow(list), (RowPath { 0, 0 }));
    toolkit::Clock::shared().advance(1);
}

} // namespace

} // namespace brimsound::tests
