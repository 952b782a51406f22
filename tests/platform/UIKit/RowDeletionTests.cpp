#include "tests/platform/UIKit/Geometry.h"
#include "tests/platform/UIKit/Lists.h"

#include "platform/desktop/UIKit/Clock.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::Clock;
using testing::IsEmpty;
using testing::SizeIs;

class DeletingRows : public testing::Test {
protected:
    UITableViewCell* cell(const NSIndexPath& row) const { return list.table->cellForRowAtIndexPath(row); }
    CGRect shownFrame(const UIView& view) const { return desktop::peerOf(view).shownFrame(); }

    void deleteRows(const std::vector<NSIndexPath>& gone)
    {
        for (const auto& row : gone)
            --rows.counts[row.section];
        list.table->deleteRowsAtIndexPathsWithRowAnimation(gone, UITableViewRowAnimation::Automatic);
    }

    Rows rows { { 2, 30 } };
    const TableInWindow list { rows, { 320, 400 } };
};

TEST_F(DeletingRows, KeepsTheCellsOfAllOthersAndMovesThemUp)
{
    auto* above = cell({ 0, 1 });
    auto* below = cell({ 1, 2 });
    const auto askedFor = rows.cellsAskedFor;
    deleteRows({ { 1, 1 } });
    EXPECT_EQ(cell({ 0, 1 }), above);
    EXPECT_EQ(cell({ 1, 1 }), below);
    EXPECT_EQ(below->frame(), CGRectMake(0, 132, 320, 44));
    EXPECT_EQ(rows.cellsAskedFor, askedFor + 1) << "for the one that came on view at the foot";
    EXPECT_EQ(list.peer().contentHeight(), 31 * 44);
}

TEST_F(DeletingRows, AsksForTheNumberOfRowsAnew)
{
    rows.counts = { 2, 3 };
    list.table->deleteRowsAtIndexPathsWithRowAnimation({ { 1, 0 } }, UITableViewRowAnimation::Automatic);
    EXPECT_EQ(list.peer().contentHeight(), 5 * 44);
    EXPECT_EQ(cell({ 1, 3 }), nullptr);
    EXPECT_NE(cell({ 1, 2 }), nullptr);
}

TEST_F(DeletingRows, MovesTheRowsInAThirdOfASecond)
{
    auto& below = *cell({ 1, 2 });
    deleteRows({ { 1, 1 } });
    auto& newcomer = *cell({ 1, 7 });
    EXPECT_EQ(shownFrame(below).origin.y, 176);
    EXPECT_EQ(shownFrame(newcomer).origin.y, 440) << "it comes from below the foot";
    Clock::shared().advance(0.15);
    EXPECT_NEAR(shownFrame(below).origin.y, 154, 3);
    EXPECT_NEAR(shownFrame(newcomer).origin.y, 418, 3);
    Clock::shared().advance(0.2);
    EXPECT_EQ(shownFrame(below).origin.y, 132);
    EXPECT_EQ(shownFrame(newcomer).origin.y, 396);
}

TEST_F(DeletingRows, LetsTheRowSlideAndFadeAwayAndReusesItsCell)
{
    const auto gone = retain(cell({ 1, 1 }));
    deleteRows({ { 1, 1 } });
    EXPECT_EQ(gone->superview(), list.table.get());
    Clock::shared().advance(0.15);
    EXPECT_LT(shownFrame(*gone).origin.x, -100);
    EXPECT_LT(desktop::peerOf(static_cast<UIView&>(*gone)).shownAlpha(), 0.7);
    Clock::shared().advance(0.2);
    EXPECT_EQ(gone->superview(), nullptr);
    EXPECT_EQ(gone->alpha(), 1);
    EXPECT_EQ(list.table->dequeueReusableCellWithIdentifier("row"), gone);
}

TEST_F(DeletingRows, TakesSeveralAtOnce)
{
    auto* survivor = cell({ 1, 3 });
    deleteRows({ { 1, 2 }, { 0, 0 }, { 1, 0 } });
    EXPECT_EQ(cell({ 1, 1 }), survivor);
    EXPECT_EQ(survivor->frame().origin.y, 88);
    EXPECT_EQ(list.peer().contentHeight(), 29 * 44);
}

TEST_F(DeletingRows, LeavesTheSelectedRowSelected)
{
    list.tap({ 100, 240 });
    auto* selected = cell({ 1, 3 });
    ASSERT_TRUE(selected->isSelected());
    deleteRows({ { 1, 1 } });
    EXPECT_EQ(list.peer().selectedRow, (NSIndexPath { 1, 2 }));
    EXPECT_TRUE(cell({ 1, 2 })->isSelected());
    deleteRows({ { 1, 2 } });
    EXPECT_FALSE(list.peer().selectedRow);
    Clock::shared().advance(1);
    EXPECT_FALSE(selected->isSelected());
}

TEST_F(DeletingRows, ScrollsBackSoftlyWhenTheEndComesUp)
{
    list.scrollTo(10000);
    const double end = list.offset();
    deleteRows({ { 1, 29 } });
    list.window->layOut();
    EXPECT_EQ(list.offset(), end);
    Clock::shared().advance(0.1);
    EXPECT_LT(list.offset(), end);
    EXPECT_GT(list.offset(), end - 44);
    Clock::shared().advance(2);
    EXPECT_EQ(list.offset(), end - 44);
}

TEST_F(DeletingRows, MayTakeTheLast)
{
    rows.counts = { 0, 1 };
    list.table->reloadData();
    list.window->layOut();
    deleteRows({ { 1, 0 } });
    Clock::shared().advance(1);
    list.window->layOut();
    EXPECT_THAT(list.table->subviews(), IsEmpty());
    EXPECT_EQ(list.peer().contentHeight(), 0);
}

TEST_F(DeletingRows, EndsAPressAndASwipeElsewhere)
{
    rows.isEditable = [](const NSIndexPath&) { return true; };
    list.peer().revealDelete({ 1, 3 });
    Clock::shared().advance(1);
    auto* swiped = cell({ 1, 3 });
    deleteRows({ { 1, 0 } });
    EXPECT_EQ(cell({ 1, 2 }), swiped);
    Clock::shared().advance(1);
    EXPECT_EQ(swiped->frame().origin.x, 0);
    EXPECT_THAT(list.table->subviews(), SizeIs(10)) << "without the button";

    list.window->touchDown({ { 100, 20 }, desktop::Pointer::Mouse });
    auto* pressed = cell({ 0, 0 });
    EXPECT_TRUE(pressed->isHighlighted());
    deleteRows({ { 1, 0 } });
    EXPECT_FALSE(pressed->isHighlighted());
    list.window->touchUp({ 100, 20 });
    EXPECT_THAT(rows.selected, IsEmpty());
}

TEST_F(DeletingRows, DoesNothingMoreWhenTheTableIsToBeReloadedAnyway)
{
    list.table->reloadData();
    deleteRows({ { 1, 0 } });
    EXPECT_THAT(list.table->subviews(), IsEmpty());
    list.window->layOut();
    EXPECT_EQ(list.peer().contentHeight(), 31 * 44);
}

TEST_F(DeletingRows, MayBeFollowedByAReloadAtOnce)
{
    deleteRows({ { 1, 0 } });
    list.table->reloadData();
    EXPECT_THAT(list.table->subviews(), IsEmpty());
    list.window->layOut();
    Clock::shared().advance(1);
    EXPECT_THAT(list.table->subviews(), SizeIs(10));
    EXPECT_EQ(cell({ 1, 0 })->alpha(), 1);
}

} // namespace

} // namespace brimsound::tests
