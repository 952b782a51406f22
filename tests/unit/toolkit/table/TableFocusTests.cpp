#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/Rows.h"
#include "toolkit/control/Switch.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using toolkit::Cell;
using toolkit::Key;
using toolkit::KeyStroke;
using toolkit::make;
using toolkit::Ref;
using toolkit::RowPath;
using toolkit::Switch;
using toolkit::Table;
using toolkit::View;

/// A grouped table of four rows with switches, then a hundred rows that cannot be pressed, then one that can.
class TheFocusInATable : public testing::Test {
protected:
    TheFocusInATable()
    {
        rows.identifier = [](RowPath row) { return std::to_string(row.section); };
        rows.onCellMade = [this](Cell& cell, RowPath row) {
            if (row.section != 2)
                cell.setSelectable(false);
            if (row.section != 0)
                return;
            switches.push_back(make<Switch>());
            cell.setAccessory(switches.back());
        };
        list.reload();
    }

    void press(Key key) const
    {
        list.window->keyPressed(key, KeyStroke::First);
        list.window->keyReleased(key);
    }
    const View* focused() const { return list.window->focus().view(); }

    std::vector<Ref<Switch>> switches;
    Rows rows { { 4, 100, 1 } };
    const TableInWindow list { rows, { 320, 400 }, Table::Style::Grouped };
};

TEST_F(TheFocusInATable, MovesToEachControlAndToRowsThatWereNotOnViewYet)
{
    for (const auto& toggle : switches) {
        press(Key::Tab);
        EXPECT_EQ(focused(), toggle.get());
        EXPECT_EQ(list.offset(), 0);
    }
    press(Key::Tab);
    ASSERT_TRUE(focused());
    EXPECT_EQ(focused(), list.table->cellOf({ 2, 0 }));
    EXPECT_TRUE(contains(list.table->bounds(), focused()->frame()));
    press(Key::Return);
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 2, 0 }));
}

TEST_F(TheFocusInATable, MovesToTheOneRowAmongManyThatTakeNoKeys)
{
    rows.counts = { 4, 20, 1, 200 };
    list.reload();
    for (int i = 0; i < 5; ++i)
        press(Key::Tab);
    ASSERT_TRUE(focused());
    EXPECT_EQ(focused(), list.table->cellOf({ 2, 0 }));
}

TEST_F(TheFocusInATable, MovesFromTheLastRowToTheFirstControlAndBack)
{
    list.table->scrollToEnd();
    list.window->layOutAll();
    press(Key::Backtab);
    ASSERT_EQ(focused(), list.table->cellOf({ 2, 0 }));
    press(Key::Tab);
    EXPECT_LE(list.offset(), 22);
    EXPECT_EQ(focused(), list.cell(0)->accessory());
    press(Key::Backtab);
    EXPECT_EQ(focused(), list.table->cellOf({ 2, 0 }));
    press(Key::Up);
    EXPECT_EQ(focused(), list.cell(3)->accessory());
}

TEST_F(TheFocusInATable, StartsWithWhatIsOnView)
{
    list.scrollTo(88);
    press(Key::Tab);
    EXPECT_EQ(focused(), list.cell(1)->accessory());
}

TEST_F(TheFocusInATable, ScrollsItByPagesAndToItsEnds)
{
    press(Key::Tab);
    press(Key::PageDown);
    EXPECT_EQ(list.offset(), 400);
    press(Key::PageUp);
    EXPECT_EQ(list.offset(), 0);
    press(Key::Tab);
    press(Key::End);
    EXPECT_EQ(list.offset(), list.table->contentHeight() - 400);
    press(Key::Home);
    EXPECT_EQ(list.offset(), 0);
}

TEST_F(TheFocusInATable, NeedNotBeThereForKeysToScrollIt)
{
    press(Key::PageDown);
    EXPECT_EQ(focused(), nullptr);
    EXPECT_EQ(list.offset(), 400);
}

} // namespace

} // namespace brimsound::tests
