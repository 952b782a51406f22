#include "tests/unit/toolkit/Rows.h"

#include "toolkit/time/Clock.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using toolkit::Clock;
using toolkit::Pointer;
using toolkit::RowPath;

class ATapOnARow : public testing::Test {
protected:
    bool isSelected(std::size_t row) const { return list.cell(row)->isSelected(); }
    bool isPressed(std::size_t row) const { return list.cell(row)->isHighlighted(); }

    Rows rows { { 100 } };
    const TableInWindow list { rows, { 320, 400 } };
};

TEST_F(ATapOnARow, SelectsIt)
{
    list.tap({ 100, 100 });
    list.tap({ 100, 10 }, Pointer::Mouse);
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 2 }, RowPath { 0, 0 }));
}

TEST_F(ATapOnARow, SelectsWhatIsThereAfterScrolling)
{
    list.scrollTo(440);
    list.tap({ 100, 100 });
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 12 }));
}

TEST_F(ATapOnARow, ThatMovesOffSelectsNothing)
{
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    EXPECT_TRUE(isPressed(2));
    list.window->touchMove({ 100, 200 });
    EXPECT_FALSE(isPressed(2));
    list.window->touchUp({ 100, 200 });
    EXPECT_THAT(rows.selectedRows, IsEmpty());
}

TEST_F(ATapOnARow, ThatIsLiftedElsewhereSelectsNothing)
{
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    list.window->touchUp({ 100, 200 });
    EXPECT_THAT(rows.selectedRows, IsEmpty());
}

TEST_F(ATapOnARow, ThatMovesOffAndBackSelectsIt)
{
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    list.window->touchMove({ 100, 200 });
    list.window->touchMove({ 100, 101 });
    list.window->touchUp({ 100, 101 });
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 2 }));
}

TEST_F(ATapOnARow, ThatIsCanceledSelectsNothing)
{
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    list.window->touchCancel();
    list.window->touchUp({ 100, 100 });
    EXPECT_FALSE(isPressed(2));
    EXPECT_THAT(rows.selectedRows, IsEmpty());
}

TEST_F(ATapOnARow, ThatIsNotSelectableSelectsNothing)
{
    list.cell(2)->setSelectable(false);
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    EXPECT_FALSE(isPressed(2));
    list.window->touchUp({ 100, 100 });
    EXPECT_FALSE(isPressed(2));
    EXPECT_THAT(rows.selectedRows, IsEmpty());
    list.tap({ 100, 60 });
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 1 }));
}

TEST_F(ATapOnARow, ThatIsNotSelectableDoesNotSelectTheRowThatItEndsOn)
{
    list.tap({ 100, 60 });
    rows.selectedRows.clear();
    list.cell(2)->setSelectable(false);
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    list.window->touchMove({ 100, 60 });
    EXPECT_FALSE(isPressed(2));
    list.window->touchUp({ 100, 60 });
    EXPECT_THAT(rows.selectedRows, IsEmpty());
}

TEST_F(ATapOnARow, BelowTheLastSelectsNothing)
{
    rows.counts = { 2 };
    list.table->reload();
    list.tap({ 100, 200 });
    EXPECT_THAT(rows.selectedRows, IsEmpty());
}

TEST_F(ATapOnARow, DuringWhichTheTableIsReloadedSelectsNothing)
{
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    rows.counts = { 1 };
    list.reload();
    list.window->touchMove({ 100, 101 });
    list.window->touchUp({ 100, 101 });
    EXPECT_THAT(rows.selectedRows, IsEmpty());
}

TEST_F(ATapOnARow, MayReloadTheTable)
{
    struct ReloadingRows : Rows {
        using Rows::Rows;
        void selected(RowPath path) override
        {
            counts = { 1 };
            table->reload();
            Rows::selected(path);
        }
    };
    ReloadingRows reloading { { 100 } };
    const TableInWindow reloaded(reloading, { 320, 400 });
    reloaded.tap({ 100, 100 });
    reloaded.window->layOutAll();
    Clock::shared().advance(1);
    EXPECT_THAT(reloading.selectedRows, ElementsAre(RowPath { 0, 2 }));
    EXPECT_THAT(reloaded.table->children(), SizeIs(1));
}

using ATappedRow = ATapOnARow;

TEST_F(ATappedRow, StaysSelectedUntilAnotherIsTapped)
{
    list.tap({ 100, 60 });
    EXPECT_TRUE(isSelected(1));
    EXPECT_FALSE(isPressed(1));
    list.tap({ 100, 100 });
    EXPECT_FALSE(isSelected(1));
    EXPECT_TRUE(isSelected(2));
}

TEST_F(ATappedRow, StaysSelectedWhenItScrollsOffAndBack)
{
    list.tap({ 100, 60 });
    list.scrollTo(600);
    for (const auto* cell : list.cells())
        EXPECT_FALSE(cell->isSelected()) << list.table->rowOf(*cell)->row;
    list.scrollTo(0);
    EXPECT_TRUE(isSelected(1));
    EXPECT_FALSE(isSelected(0));
}

TEST_F(ATappedRow, ThatWasDeselectedIsNotSelectedWhenItScrollsOffAndBack)
{
    list.tap({ 100, 60 });
    list.cell(1)->setSelected(false, false);
    list.scrollTo(600);
    list.scrollTo(0);
    EXPECT_FALSE(isSelected(1));
}

TEST_F(ATappedRow, IsNoLongerSelectedWhenTheTableIsReloaded)
{
    list.tap({ 100, 60 });
    list.reload();
    for (const auto* cell : list.cells())
        EXPECT_FALSE(cell->isSelected()) << list.table->rowOf(*cell)->row;
}

TEST_F(ATappedRow, IsSelectedBeforeTheSourceIsTold)
{
    struct DeselectingRows : Rows {
        using Rows::Rows;
        void selected(RowPath path) override
        {
            auto& tapped = *table->cellOf(path);
            EXPECT_TRUE(tapped.isSelected());
            tapped.setSelected(false, true);
            Rows::selected(path);
        }
    };
    DeselectingRows deselecting { { 3 } };
    const TableInWindow other(deselecting, { 320, 400 });
    other.tap({ 100, 60 });
    EXPECT_THAT(deselecting.selectedRows, SizeIs(1));
    const auto* tapped = other.cell(1);
    EXPECT_FALSE(tapped->isSelected());
    EXPECT_TRUE(tapped->textLabel().isHighlighted()) << "it fades";
    Clock::shared().advance(1);
    EXPECT_FALSE(tapped->textLabel().isHighlighted());
}

TEST_F(ATappedRow, LooksPressedFromTheTouchOn)
{
    list.window->touchDown({ { 100, 60 }, Pointer::Mouse });
    EXPECT_TRUE(list.cell(1)->textLabel().isHighlighted());
    list.window->touchMove({ 100, 200 });
    EXPECT_FALSE(list.cell(1)->textLabel().isHighlighted());
    list.window->touchUp({ 100, 200 });
    EXPECT_FALSE(isSelected(1));
}

TEST_F(ATappedRow, MayBeSelectedInCodeWhileItIsOffView)
{
    list.table->select({ 0, 25 });
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 25 }));
    list.table->scrollToRow({ 0, 25 });
    EXPECT_TRUE(isSelected(25));
}

} // namespace

} // namespace brimsound::tests
