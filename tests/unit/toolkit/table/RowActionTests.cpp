// Actions on rows by keys, assistive technology and scripts.
#include "tests/unit/toolkit/Rows.h"

#include "toolkit/control/Button.h"
#include "toolkit/time/Clock.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Cell;
using toolkit::Clock;
using toolkit::make;
using toolkit::Pointer;
using toolkit::Role;
using toolkit::RowPath;
using toolkit::Size;
using toolkit::Table;
using toolkit::View;

constexpr Size phone { 320, 400 };

/// A list of thirty rows that can be deleted, except the first.
class ARow : public testing::Test {
protected:
    ARow()
    {
        rows.isDeletable = [](RowPath path) { return path.row > 0; };
    }

    Cell& cell(std::size_t row) const { return *list.cell(row); }
    void cover() const { list.window->add(*make<View>(list.window->bounds())); }

    Rows rows { { 30 } };
    const TableInWindow list { rows, phone };
};

TEST_F(ARow, IsSelectedWhenItIsActivated)
{
    EXPECT_TRUE(cell(1).activate());
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 1 }));
    EXPECT_TRUE(cell(1).isSelected());
}

TEST_F(ARow, ThatIsHalfBelowTheEdgeScrollsIntoViewWhenItIsActivated)
{
    EXPECT_TRUE(cell(9).activate());
    EXPECT_EQ(list.offset(), 10 * 44 - 400);
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 9 }));
}

TEST_F(ARow, IsNotActivatedOrDeletedWhileItIsCovered)
{
    cover();
    EXPECT_FALSE(cell(1).activate());
    EXPECT_FALSE(cell(1).deleteRow());
    EXPECT_THAT(rows.selectedRows, IsEmpty());
    EXPECT_THAT(rows.deletedRows, IsEmpty());
}

TEST_F(ARow, IsNotActivatedOrDeletedWhileSomethingIsTouched)
{
    list.window->touchDown({ { 100, 200 }, Pointer::Mouse });
    EXPECT_FALSE(cell(1).activate());
    EXPECT_FALSE(cell(1).deleteRow());
    list.window->touchCancel();
    EXPECT_THAT(rows.selectedRows, IsEmpty());
    EXPECT_THAT(rows.deletedRows, IsEmpty());
}

TEST_F(ARow, ClosesAnOpenSwipeInsteadOfBeingSelected)
{
    list.table->swipe().open({ 0, 2 });
    Clock::shared().advance(1);
    EXPECT_TRUE(cell(1).activate());
    EXPECT_FALSE(list.table->swipe().isOpen());
    EXPECT_THAT(rows.selectedRows, IsEmpty());
    EXPECT_TRUE(cell(1).activate());
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 1 }));
}

TEST_F(ARow, IsDeletedOnlyWhenItCanBe)
{
    EXPECT_TRUE(cell(4).deleteRow());
    EXPECT_FALSE(cell(0).deleteRow());
    EXPECT_THAT(rows.deletedRows, ElementsAre(RowPath { 0, 4 }));

    EXPECT_TRUE(list.table->deleteRow({ 0, 4 }));
    EXPECT_FALSE(list.table->deleteRow({ 0, 0 }));
    EXPECT_FALSE(list.table->deleteRow({ 0, 99 }));
    EXPECT_THAT(rows.deletedRows, ElementsAre(RowPath { 0, 4 }, RowPath { 0, 4 }));
}

TEST_F(ARow, MayTakeItsTableAwayWhenItIsDeleted)
{
    struct LastRow : Rows {
        using Rows::Rows;
        void deleteRow(RowPath path) override
        {
            table->setSource(nullptr);
            table->removeFromParent();
            Rows::deletedRows.push_back(path);
        }
    };
    LastRow last { { 1 } };
    last.isDeletable = [](RowPath) { return true; };
    const auto window = make<toolkit::Window>(phone);
    auto table = make<Table>(window->bounds(), Table::Style::List);
    last.table = table.get();
    table->setSource(&last);
    window->add(*table);
    window->layOutAll();
    bool isGone = false;
    table->onDestroyed = [&] { isGone = true; };
    auto& row = *table->cellOf({ 0, 0 });
    table = nullptr;
    EXPECT_TRUE(row.deleteRow());
    EXPECT_THAT(last.deletedRows, ElementsAre(RowPath { 0, 0 }));
    EXPECT_TRUE(isGone);
}

TEST_F(ARow, ThatIsNoLongerInTheTableDoesNothing)
{
    const auto former = keep(&cell(1));
    list.table->reload();
    EXPECT_FALSE(former->activate());
    EXPECT_FALSE(former->deleteRow());
    EXPECT_FALSE(former->accessible().deletable);
    EXPECT_THAT(rows.selectedRows, IsEmpty());
    EXPECT_THAT(rows.deletedRows, IsEmpty());
}

TEST_F(ARow, TellsAssistiveTechnologyItsTextAndWhetherItIsSelectedAndCanBeDeleted)
{
    cell(1).textLabel().setText("Rock");
    list.table->select({ 0, 1 });
    const auto second = cell(1).accessible();
    EXPECT_EQ(second.role, Role::Row);
    EXPECT_EQ(second.name, "Rock");
    EXPECT_TRUE(second.selected);
    EXPECT_TRUE(second.deletable);
    const auto first = cell(0).accessible();
    EXPECT_FALSE(first.selected);
    EXPECT_FALSE(first.deletable);
    cell(0).setChosen(true);
    EXPECT_TRUE(cell(0).accessible().selected);
}

TEST_F(ARow, ThatIsNotSelectableHasNoRoleAndIsNotSelectedInCode)
{
    cell(1).setSelectable(false);
    list.table->select({ 0, 1 });
    EXPECT_FALSE(cell(1).isSelected());
    EXPECT_THAT(rows.selectedRows, IsEmpty());
    EXPECT_EQ(cell(1).role(), Role::None);
}

TEST(ARowOfAGroup, IsAButton)
{
    Rows rows { { 1 } };
    const TableInWindow list(rows, phone, Table::Style::Grouped);
    EXPECT_EQ(list.cell(0)->role(), Role::Button);
}

} // namespace

} // namespace brimsound::tests
