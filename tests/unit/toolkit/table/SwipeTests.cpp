#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/Rows.h"

#include "toolkit/table/DeleteButton.h"
#include "toolkit/time/Clock.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Cell;
using toolkit::Clock;
using toolkit::DeleteButton;
using toolkit::makeRect;
using toolkit::Pointer;
using toolkit::RowPath;
using toolkit::View;

constexpr double buttonWidth = DeleteButton::width;

/// A list of thirty rows that can be deleted, except the first.
class ASwipedRow : public testing::Test {
protected:
    ASwipedRow()
    {
        rows.isDeletable = [](RowPath path) { return path.row > 0; };
    }

    Cell* cell(std::size_t row) const { return list.cell(row); }
    /// How far the row is moved to the left.
    double distance(std::size_t row) const { return 0 - cell(row)->frame().left(); }
    /// The Delete button; null when there is none.
    View* button() const
    {
        for (const auto& view : list.table->children()) {
            if (dynamic_cast<const DeleteButton*>(view.get()))
                return view.get();
        }
        return nullptr;
    }
    /// A touch on the third row that moves this far to the left from x = 300 and does not end.
    void drag(double length, Pointer pointer = Pointer::Finger) const
    {
        list.window->touchDown({ { 300, 100 }, pointer });
        list.window->touchMove({ 300 - length / 2, 101 });
        list.window->touchMove({ 300 - length, 102 });
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

TEST_F(ASwipedRow, FollowsAFingerToTheLeftAndUncoversAButton)
{
    drag(70);
    EXPECT_EQ(distance(2), 60);
    ASSERT_NE(button(), nullptr);
    EXPECT_EQ(button()->frame(), makeRect(260, 88, 60, 44));
    EXPECT_FALSE(cell(2)->isHighlighted());
    list.window->touchMove({ 200, 100 });
    EXPECT_EQ(distance(2), 90);
    list.window->touchMove({ -500, 100 });
    EXPECT_EQ(distance(2), 320);
    list.window->touchMove({ 310, 100 });
    EXPECT_EQ(distance(2), 0);
    EXPECT_EQ(distance(3), 0);
}

TEST_F(ASwipedRow, FollowsTheMouseToo)
{
    drag(70, Pointer::Mouse);
    EXPECT_EQ(distance(2), 60);
}

TEST_F(ASwipedRow, StaysOpenWhenItIsReleasedBeyondHalfTheButton)
{
    drag(60);
    list.window->touchUp({ 240, 102 });
    EXPECT_EQ(distance(2), buttonWidth);
    EXPECT_EQ(cell(2)->shownFrame().left(), -50) << "it slides there";
    Clock::shared().advance(1);
    EXPECT_EQ(cell(2)->shownFrame().left(), -buttonWidth);
    EXPECT_EQ(button()->frame(), makeRect(320 - buttonWidth, 88, buttonWidth, 44));
    EXPECT_THAT(rows.selectedRows, IsEmpty());
    EXPECT_THAT(rows.deletedRows, IsEmpty());
}

TEST_F(ASwipedRow, ClosesWhenItIsReleasedBefore)
{
    drag(45);
    list.window->touchUp({ 255, 102 });
    EXPECT_EQ(distance(2), 0);
    EXPECT_NE(button(), nullptr) << "the row slides over it";
    Clock::shared().advance(1);
    EXPECT_EQ(button(), nullptr);
    EXPECT_THAT(rows.selectedRows, IsEmpty());
}

TEST_F(ASwipedRow, ClosesWhenTheTouchIsCanceled)
{
    drag(200);
    list.window->touchCancel();
    Clock::shared().advance(1);
    EXPECT_EQ(distance(2), 0);
    EXPECT_EQ(button(), nullptr);
}

TEST_F(ASwipedRow, MustBeOneThatCanBeDeleted)
{
    list.window->touchDown({ { 300, 20 }, Pointer::Mouse });
    list.window->touchMove({ 100, 20 });
    EXPECT_EQ(distance(0), 0);
    EXPECT_EQ(button(), nullptr);
}

TEST_F(ASwipedRow, MustBeMovedToTheLeft)
{
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    list.window->touchMove({ 300, 100 });
    EXPECT_EQ(button(), nullptr);
    list.window->touchMove({ 89, 60 });
    EXPECT_EQ(button(), nullptr) << "that was more up than to the left";
    list.window->touchMove({ 91, 100 });
    EXPECT_EQ(button(), nullptr) << "that was not far";
}

TEST_F(ASwipedRow, DoesNotScrollTheTable)
{
    drag(100);
    list.window->touchMove({ 195, 300 });
    list.window->touchMove({ 195, 20 });
    EXPECT_EQ(list.offset(), 0);
    EXPECT_EQ(distance(2), 95);
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
    EXPECT_THAT(rows.deletedRows, ElementsAre(RowPath { 0, 2 }));
    EXPECT_NE(cell(2), gone);
    Clock::shared().advance(1);
    EXPECT_EQ(button(), nullptr);
    EXPECT_THAT(rows.selectedRows, IsEmpty());
}

TEST_F(ASwipedRow, IsNotDeletedByATouchThatLeavesTheButton)
{
    swipe();
    list.window->touchDown({ { 300, 110 }, Pointer::Mouse });
    list.window->touchMove({ 200, 110 });
    list.window->touchUp({ 200, 110 });
    EXPECT_THAT(rows.deletedRows, IsEmpty());
    EXPECT_EQ(distance(2), buttonWidth);
}

TEST_F(ASwipedRow, ClosesWhenTheSourceKeepsIt)
{
    rows.removesDeleted = false;
    swipe();
    list.tap({ 300, 110 });
    EXPECT_EQ(rows.deletedRows.size(), 1u);
    Clock::shared().advance(1);
    EXPECT_EQ(distance(2), 0);
    EXPECT_EQ(button(), nullptr);
}

TEST_F(ASwipedRow, ClosesWithATapAnywhereElseThatSelectsNothing)
{
    for (const double y : { 110.0, 200.0 }) {
        swipe();
        list.tap({ 100, y });
        EXPECT_EQ(distance(2), 0);
        Clock::shared().advance(1);
        EXPECT_EQ(button(), nullptr);
    }
    EXPECT_THAT(rows.selectedRows, IsEmpty());
    list.tap({ 100, 200 });
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 4 }));
}

TEST_F(ASwipedRow, ClosesAsSoonAsItIsTouchedWhateverTheTouchDoesThen)
{
    swipe();
    list.window->touchDown({ { 200, 200 }, Pointer::Mouse });
    EXPECT_EQ(distance(2), 0);
    EXPECT_FALSE(cell(4)->isHighlighted());
    list.window->touchMove({ 50, 200 });
    EXPECT_EQ(distance(2), 0);
    EXPECT_EQ(distance(4), 0);
    list.window->touchUp({ 50, 200 });
    EXPECT_THAT(rows.selectedRows, IsEmpty());
}

TEST_F(ASwipedRow, StaysOpenWhenAFingerBesideItIsCanceledAtOnce)
{
    swipe();
    list.window->touchDown({ { 100, 200 } });
    list.window->touchCancel();
    EXPECT_EQ(distance(2), buttonWidth);
}

TEST_F(ASwipedRow, ClosesWhenTheTableIsScrolled)
{
    swipe();
    list.window->touchDown({ { 100, 200 } });
    list.window->touchMove({ 100, 180 });
    list.window->touchMove({ 100, 175 });
    list.window->layOutAll();
    EXPECT_EQ(distance(2), 0);
    Clock::shared().advance(1);
    EXPECT_EQ(button(), nullptr);
}

TEST_F(ASwipedRow, ClosesAtOnceWhenTheTableIsReloaded)
{
    drag(200);
    list.table->reload();
    EXPECT_EQ(button(), nullptr);
    list.window->layOutAll();
    list.window->touchMove({ 50, 102 });
    lift();
    EXPECT_EQ(distance(2), 0);
    EXPECT_THAT(rows.selectedRows, IsEmpty());
}

TEST_F(ASwipedRow, StaysOpenWhenTheTableIsResized)
{
    swipe();
    list.resize({ 400, 400 });
    EXPECT_EQ(distance(2), buttonWidth);
    EXPECT_EQ(button()->frame(), makeRect(400 - buttonWidth, 88, buttonWidth, 44));
}

TEST_F(ASwipedRow, MayBeOpenedInCode)
{
    auto& swipe = list.table->swipe();
    swipe.open({ 0, 3 });
    Clock::shared().advance(1);
    EXPECT_EQ(distance(3), buttonWidth);
    EXPECT_TRUE(swipe.isOpen());
    EXPECT_EQ(swipe.row(), (RowPath { 0, 3 }));
    EXPECT_EQ(swipe.button(), button());
    swipe.open({ 0, 4 });
    Clock::shared().advance(1);
    EXPECT_EQ(distance(3), 0);
    EXPECT_EQ(distance(4), buttonWidth);
    EXPECT_EQ(swipe.button(), button()) << "there is no other one";
    swipe.close();
    swipe.open({ 0, 0 });
    EXPECT_EQ(distance(0), 0) << "the first row cannot be deleted";
    EXPECT_FALSE(swipe.isOpen());
    EXPECT_EQ(swipe.button(), nullptr);
}

TEST_F(ASwipedRow, MayBePressedWhileItsTableGoesAway)
{
    Rows others { { 3 } };
    others.isDeletable = [](RowPath) { return true; };
    const auto window = toolkit::make<toolkit::Window>(toolkit::Size { 320, 400 });
    auto table = toolkit::make<toolkit::Table>(makeRect(0, 0, 82, 400), toolkit::Table::Style::List);
    others.table = table.get();
    table->setSource(&others);
    window->add(*table);
    window->layOutAll();
    table->swipe().open({ 0, 0 });
    Clock::shared().advance(1);
    window->touchDown({ { 40, 20 }, Pointer::Mouse });
    table->removeFromParent();
    table = nullptr;
    window->touchUp({ 40, 20 });
    EXPECT_FALSE(window->isTouched());
    EXPECT_THAT(others.deletedRows, IsEmpty());
}

} // namespace

} // namespace brimsound::tests
