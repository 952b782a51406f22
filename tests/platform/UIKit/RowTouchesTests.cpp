#include "tests/platform/UIKit/Geometry.h"
#include "tests/platform/UIKit/Lists.h"

#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/DeleteButton.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::Clock;
using desktop::Pointer;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr double buttonWidth = desktop::DeleteButton::width;

/// A list of thirty rows that can be deleted, but for the first.
class RowsToTouch : public testing::Test {
protected:
    RowsToTouch()
    {
        rows.isEditable = [](const NSIndexPath& row) { return row.row > 0; };
    }

    UITableViewCell* cell(std::size_t row) const { return list.table->cellForRowAtIndexPath({ 0, row }); }
    bool isSelected(std::size_t row) const { return cell(row)->isSelected(); }
    /// How far the row is drawn to the left.
    double drawn(std::size_t row) const { return 0 - cell(row)->frame().origin.x; }
    /// The button that a swiped row uncovers; null when there is none.
    const UIView* button() const
    {
        for (const auto& view : list.table->subviews()) {
            if (dynamic_cast<const desktop::DeleteButton*>(view.get()))
                return view.get();
        }
        return nullptr;
    }
    /// A drag in the third row, from x = 300 so far to the left, that is not lifted.
    void drag(double distance, Pointer pointer = Pointer::Finger) const
    {
        list.window->touchDown({ { 300, 100 }, pointer });
        list.window->touchMove({ 300 - distance / 2, 101 });
        list.window->touchMove({ 300 - distance, 102 });
    }
    void lift() const { list.window->touchUp({ 100, 102 }); }
    void swipe() const
    {
        drag(200);
        lift();
        Clock::shared().advance(1);
    }

    Rows rows { { 30 } };
    const TableInWindow list { rows, { 320, 400 } };
};

using ATappedRow = RowsToTouch;

TEST_F(ATappedRow, StaysSelectedUntilAnotherIsTapped)
{
    list.tap({ 100, 60 });
    EXPECT_TRUE(isSelected(1));
    EXPECT_FALSE(cell(1)->isHighlighted());
    list.tap({ 100, 100 });
    EXPECT_FALSE(isSelected(1));
    EXPECT_TRUE(isSelected(2));
}

TEST_F(ATappedRow, StaysSelectedWhenItScrollsOffAndBack)
{
    list.tap({ 100, 60 });
    list.scrollTo(600);
    for (const auto& [row, shown] : list.peer().cells)
        EXPECT_FALSE(shown->isSelected()) << row.row;
    list.scrollTo(0);
    EXPECT_TRUE(isSelected(1));
    EXPECT_FALSE(isSelected(0));
}

TEST_F(ATappedRow, ThatWasSetNotToBeSelectedIsNotWhenItScrollsOffAndBack)
{
    list.tap({ 100, 60 });
    cell(1)->setSelected(false, Animated::No);
    list.scrollTo(600);
    list.scrollTo(0);
    EXPECT_FALSE(isSelected(1));
}

TEST_F(ATappedRow, IsNoLongerSelectedWhenTheTableIsReloaded)
{
    list.tap({ 100, 60 });
    list.table->reloadData();
    list.window->layOut();
    for (const auto& [row, shown] : list.peer().cells)
        EXPECT_FALSE(shown->isSelected()) << row.row;
}

TEST_F(ATappedRow, IsSelectedByTheTimeTheDelegateHears)
{
    struct Deselecting : Rows {
        using Rows::Rows;
        void tableViewDidSelectRowAtIndexPath(UITableView& table, const NSIndexPath& row) override
        {
            auto& tapped = *table.cellForRowAtIndexPath(row);
            EXPECT_TRUE(tapped.isSelected());
            tapped.setSelected(false, Animated::Yes);
            Rows::tableViewDidSelectRowAtIndexPath(table, row);
        }
    };
    Deselecting deselecting { { 3 } };
    const TableInWindow other(deselecting, { 320, 400 });
    other.tap({ 100, 60 });
    const auto* tapped = other.table->cellForRowAtIndexPath({ 0, 1 });
    EXPECT_FALSE(tapped->isSelected());
    EXPECT_TRUE(tapped->textLabel().isHighlighted()) << "it fades";
    Clock::shared().advance(1);
    EXPECT_FALSE(tapped->textLabel().isHighlighted());
}

TEST_F(ATappedRow, LooksPressedFromTheTouchOn)
{
    list.window->touchDown({ { 100, 60 }, Pointer::Mouse });
    EXPECT_TRUE(cell(1)->textLabel().isHighlighted());
    list.window->touchMove({ 100, 200 });
    EXPECT_FALSE(cell(1)->textLabel().isHighlighted());
    list.window->touchUp({ 100, 200 });
    EXPECT_FALSE(isSelected(1));
}

TEST_F(ATappedRow, MayBeTappedInCodeWhereverItIs)
{
    list.peer().select({ 0, 25 });
    EXPECT_THAT(rows.selected, ElementsAre(NSIndexPath { 0, 25 }));
    list.peer().scrollToRow({ 0, 25 });
    EXPECT_EQ(list.offset(), 26 * 44 - 400);
    EXPECT_TRUE(isSelected(25));
    list.peer().scrollToRow({ 0, 99 });
    list.peer().scrollToRow({ 3, 0 });
    EXPECT_EQ(list.offset(), 26 * 44 - 400);
}

using ASwipedRow = RowsToTouch;

TEST_F(ASwipedRow, FollowsAFingerToTheLeftAndUncoversAButton)
{
    drag(70);
    EXPECT_EQ(drawn(2), 60);
    ASSERT_NE(button(), nullptr);
    EXPECT_EQ(button()->frame(), CGRectMake(260, 88, 60, 44));
    EXPECT_FALSE(cell(2)->isHighlighted());
    list.window->touchMove({ 200, 100 });
    EXPECT_EQ(drawn(2), 90);
    list.window->touchMove({ -500, 100 });
    EXPECT_EQ(drawn(2), 320);
    list.window->touchMove({ 310, 100 });
    EXPECT_EQ(drawn(2), 0);
    EXPECT_EQ(drawn(3), 0);
}

TEST_F(ASwipedRow, FollowsTheMouseToo)
{
    drag(70, Pointer::Mouse);
    EXPECT_EQ(drawn(2), 60);
}

TEST_F(ASwipedRow, StaysOpenWhenItIsLetGoBeyondHalfTheButton)
{
    drag(60);
    list.window->touchUp({ 240, 102 });
    EXPECT_EQ(drawn(2), buttonWidth);
    EXPECT_EQ(desktop::peerOf(static_cast<UIView&>(*cell(2))).shownFrame().origin.x, -50)
        << "it slides there";
    Clock::shared().advance(1);
    EXPECT_EQ(desktop::peerOf(static_cast<UIView&>(*cell(2))).shownFrame().origin.x, -buttonWidth);
    EXPECT_EQ(button()->frame(), CGRectMake(320 - buttonWidth, 88, buttonWidth, 44));
    EXPECT_THAT(rows.selected, IsEmpty());
    EXPECT_THAT(rows.committed, IsEmpty());
}

TEST_F(ASwipedRow, ClosesWhenItIsLetGoBefore)
{
    drag(45);
    list.window->touchUp({ 255, 102 });
    EXPECT_EQ(drawn(2), 0);
    EXPECT_NE(button(), nullptr) << "it is covered in a movement";
    Clock::shared().advance(1);
    EXPECT_EQ(button(), nullptr);
    EXPECT_THAT(rows.selected, IsEmpty());
}

TEST_F(ASwipedRow, ClosesWhenTheTouchIsTakenAway)
{
    drag(200);
    list.window->touchCancel();
    Clock::shared().advance(1);
    EXPECT_EQ(drawn(2), 0);
    EXPECT_EQ(button(), nullptr);
}

TEST_F(ASwipedRow, MustBeOneThatCanBeDeleted)
{
    list.window->touchDown({ { 300, 20 }, Pointer::Mouse });
    list.window->touchMove({ 100, 20 });
    EXPECT_EQ(drawn(0), 0);
    EXPECT_EQ(button(), nullptr);
}

TEST_F(ASwipedRow, MustBeDrawnToTheLeft)
{
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    list.window->touchMove({ 300, 100 });
    EXPECT_EQ(button(), nullptr);
    list.window->touchMove({ 89, 60 });
    EXPECT_EQ(button(), nullptr) << "that was rather up than to the left";
    list.window->touchMove({ 91, 100 });
    EXPECT_EQ(button(), nullptr) << "that was not far";
}

TEST_F(ASwipedRow, DoesNotScrollTheTable)
{
    drag(100);
    list.window->touchMove({ 195, 300 });
    list.window->touchMove({ 195, 20 });
    EXPECT_EQ(list.offset(), 0);
    EXPECT_EQ(drawn(2), 95);
}

TEST_F(ASwipedRow, DoesNotStopAFingerThatScrolls)
{
    list.window->touchDown({ { 300, 100 } });
    list.window->touchMove({ 299, 80 });
    list.window->touchMove({ 200, 70 });
    EXPECT_EQ(list.offset(), 10);
    EXPECT_EQ(button(), nullptr);
}

TEST_F(ASwipedRow, IsDeletedByItsButton)
{
    swipe();
    auto* gone = cell(2);
    list.tap({ 300, 110 });
    EXPECT_THAT(rows.committed, ElementsAre(Pair(UITableViewCellEditingStyle::Delete, NSIndexPath { 0, 2 })));
    EXPECT_NE(cell(2), gone);
    Clock::shared().advance(1);
    EXPECT_EQ(button(), nullptr);
    EXPECT_THAT(rows.selected, IsEmpty());
}

TEST_F(ASwipedRow, IsNotDeletedByATouchThatLeavesTheButton)
{
    swipe();
    list.window->touchDown({ { 300, 110 }, Pointer::Mouse });
    list.window->touchMove({ 200, 110 });
    list.window->touchUp({ 200, 110 });
    EXPECT_THAT(rows.committed, IsEmpty());
    EXPECT_EQ(drawn(2), buttonWidth);
}

TEST_F(ASwipedRow, ClosesWhenTheDataSourceKeepsIt)
{
    rows.deletesCommitted = false;
    swipe();
    list.tap({ 300, 110 });
    EXPECT_EQ(rows.committed.size(), 1u);
    Clock::shared().advance(1);
    EXPECT_EQ(drawn(2), 0);
    EXPECT_EQ(button(), nullptr);
}

TEST_F(ASwipedRow, ClosesWithATapAnywhereElseThatSelectsNothing)
{
    for (const double y : { 110.0, 200.0 }) {
        swipe();
        list.tap({ 100, y });
        EXPECT_EQ(drawn(2), 0);
        Clock::shared().advance(1);
        EXPECT_EQ(button(), nullptr);
    }
    EXPECT_THAT(rows.selected, IsEmpty());
    list.tap({ 100, 200 });
    EXPECT_THAT(rows.selected, ElementsAre(NSIndexPath { 0, 4 }));
}

TEST_F(ASwipedRow, ClosesAsSoonAsItIsTouchedForWhateverTheTouchDoesThen)
{
    swipe();
    list.window->touchDown({ { 200, 200 }, Pointer::Mouse });
    EXPECT_EQ(drawn(2), 0);
    EXPECT_FALSE(cell(4)->isHighlighted());
    list.window->touchMove({ 50, 200 });
    EXPECT_EQ(drawn(2), 0);
    EXPECT_EQ(drawn(4), 0);
    list.window->touchUp({ 50, 200 });
    EXPECT_THAT(rows.selected, IsEmpty());
}

TEST_F(ASwipedRow, ClosesWhenTheTableIsScrolled)
{
    swipe();
    list.window->touchDown({ { 100, 200 } });
    list.window->touchMove({ 100, 180 });
    list.window->touchMove({ 100, 175 });
    list.window->layOut();
    EXPECT_EQ(drawn(2), 0);
    Clock::shared().advance(1);
    EXPECT_EQ(button(), nullptr);
}

TEST_F(ASwipedRow, ClosesAtOnceWhenTheTableIsReloaded)
{
    drag(200);
    list.table->reloadData();
    EXPECT_EQ(button(), nullptr);
    list.window->layOut();
    list.window->touchMove({ 50, 102 });
    lift();
    EXPECT_EQ(drawn(2), 0);
    EXPECT_THAT(rows.selected, IsEmpty());
}

TEST_F(ASwipedRow, StaysOpenWhenTheTableIsResized)
{
    swipe();
    list.resize({ 400, 400 });
    EXPECT_EQ(drawn(2), buttonWidth);
    EXPECT_EQ(button()->frame(), CGRectMake(400 - buttonWidth, 88, buttonWidth, 44));
}

TEST_F(ASwipedRow, MayBeOpenedAndDeletedInCode)
{
    list.peer().revealDelete({ 0, 3 });
    Clock::shared().advance(1);
    EXPECT_EQ(drawn(3), buttonWidth);
    list.peer().revealDelete({ 0, 4 });
    Clock::shared().advance(1);
    EXPECT_EQ(drawn(3), 0);
    EXPECT_EQ(drawn(4), buttonWidth);
    list.peer().revealDelete({ 0, 0 });
    EXPECT_EQ(drawn(0), 0);

    EXPECT_TRUE(list.peer().deleteRow({ 0, 4 }));
    EXPECT_FALSE(list.peer().deleteRow({ 0, 0 }));
    EXPECT_FALSE(list.peer().deleteRow({ 0, 99 }));
    EXPECT_THAT(rows.committed, ElementsAre(Pair(UITableViewCellEditingStyle::Delete, NSIndexPath { 0, 4 })));
}

} // namespace

} // namespace brimsound::tests
