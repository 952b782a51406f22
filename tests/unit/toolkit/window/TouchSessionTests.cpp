#include "tests/unit/toolkit/EventLog.h"
#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/Rows.h"

#include "toolkit/control/Slider.h"
#include "toolkit/time/Clock.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Cell;
using toolkit::Clock;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Point;
using toolkit::Pointer;
using toolkit::Ref;
using toolkit::RowPath;
using toolkit::Size;
using toolkit::Slider;
using toolkit::View;
using toolkit::Window;

/// A table of thirty rows; a slider fills the fourth.
class SliderInATable : public testing::Test {
protected:
    SliderInATable()
    {
        rows.identifier = [](RowPath row) { return row == RowPath { 0, 3 } ? "slider" : "row"; };
        rows.onCellMade = [this](Cell& cell, RowPath row) {
            if (row != RowPath { 0, 3 })
                return;
            slider->setFrame(makeRect(20, 0, 280, 44));
            cell.content().add(*slider);
        };
        log.listenTo(*slider);
        list.emplace(rows, Size { 320, 400 });
    }

    Window& window() const { return *list->window; }
    double offset() const { return list->offset(); }
    /// The center of the thumb for the value, in the window.
    Point thumb(double value) const { return slider->toWindow(slider->thumbCenter(value)); }
    void putDown(Point at, Pointer pointer = Pointer::Finger) const { window().touchDown({ at, pointer }); }

    static constexpr Point onSlider { 150, 154 };

    Rows rows { { 30 } };
    EventLog log;
    const Ref<Slider> slider = make<Slider>();
    std::optional<TableInWindow> list;
};

using AFingerOnASliderInATable = SliderInATable;

TEST_F(AFingerOnASliderInATable, ScrollsWhenItSoonMovesUpAndSendsTheSliderNothing)
{
    putDown(onSlider);
    Clock::shared().advance(0.1);
    window().touchMove({ 151, 140 });
    window().touchMove({ 170, 100 });
    EXPECT_EQ(offset(), 40);
    Clock::shared().advance(1);
    window().touchMove({ 250, 90 });
    EXPECT_EQ(offset(), 50);
    window().touchUp({ 250, 90 });
    EXPECT_EQ(slider->value(), 0);
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(AFingerOnASliderInATable, ThatStopsAMovingTableTapsNothing)
{
    putDown({ 150, 350 });
    for (const double y : { 320.0, 280.0, 240.0 }) {
        Clock::shared().advance(0.02);
        window().touchMove({ 150, y });
    }
    window().touchUp({ 150, 240 });
    Clock::shared().advance(0.05);
    const double passing = offset();
    ASSERT_GT(passing, 110);

    putDown({ 150, 200 });
    Clock::shared().advance(0.05);
    EXPECT_EQ(offset(), passing);
    window().touchUp({ 150, 200 });
    EXPECT_THAT(rows.selectedRows, IsEmpty());
    // The same tap on a table that does not move selects a row.
    putDown({ 150, 200 });
    window().touchUp({ 150, 200 });
    EXPECT_EQ(rows.selectedRows.size(), 1u);
}

TEST_F(AFingerOnASliderInATable, ScrollsWhenItSoonMovesDown)
{
    list->scrollTo(100);
    putDown({ 150, 54 });
    window().touchMove({ 150, 70 });
    window().touchMove({ 150, 90 });
    EXPECT_EQ(offset(), 80);
    window().touchUp({ 150, 90 });
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(AFingerOnASliderInATable, MovesTheSliderWhenItMovesSideways)
{
    putDown(thumb(0));
    window().touchMove({ thumb(0).x + 5, thumb(0).y + 5 });
    EXPECT_THAT(log.take(), IsEmpty());
    window().touchMove(thumb(0.25));
    EXPECT_THAT(log.take(), ElementsAre("down", "value", "drag inside"));
    EXPECT_EQ(slider->value(), 0.25f);
    EXPECT_EQ(offset(), 0);
}

TEST_F(AFingerOnASliderInATable, MovesTheSliderWhenItMovesMoreSidewaysThanUpOrDown)
{
    putDown(thumb(0));
    window().touchMove({ thumb(0).x + 30, thumb(0).y + 25 });
    EXPECT_THAT(log.take(), ElementsAre("down", "value", "drag inside"));
    EXPECT_EQ(offset(), 0);
}

TEST_F(AFingerOnASliderInATable, KeepsTheSliderOnceItMovedSideways)
{
    putDown(thumb(0));
    window().touchMove(thumb(0.25));
    window().touchMove({ thumb(0.5).x, 350 });
    window().touchUp({ thumb(0.5).x, 350 });
    EXPECT_EQ(slider->value(), 0.5f);
    EXPECT_EQ(offset(), 0);
    EXPECT_THAT(log.take(),
        ElementsAre("down", "value", "drag inside", "value", "exit", "drag outside", "up outside"));
}

TEST_F(AFingerOnASliderInATable, ReachesTheSliderWhenItRestsForAMoment)
{
    putDown(onSlider);
    Clock::shared().advance(0.149);
    EXPECT_THAT(log.take(), IsEmpty());
    Clock::shared().advance(0.002);
    EXPECT_THAT(log.take(), ElementsAre("down"));
}

TEST_F(AFingerOnASliderInATable, KeepsTheSliderOnceItRested)
{
    putDown(onSlider);
    Clock::shared().advance(0.15);
    window().touchMove({ 150, 250 });
    window().touchMove({ 150, 20 });
    EXPECT_THAT(log.take(), ElementsAre("down", "exit", "drag outside", "drag outside"));
    EXPECT_EQ(offset(), 0);
    window().touchUp(onSlider);
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
}

TEST_F(AFingerOnASliderInATable, ThatTapsIsDownAndUp)
{
    putDown(onSlider);
    Clock::shared().advance(0.05);
    window().touchUp(onSlider);
    EXPECT_THAT(log.take(), ElementsAre("down", "up inside"));
    EXPECT_EQ(slider->value(), 0);
    Clock::shared().advance(1);
    EXPECT_THAT(log.take(), IsEmpty());
    EXPECT_FALSE(window().isTouched());
}

TEST_F(AFingerOnASliderInATable, IsNotDisturbedByASecondTouch)
{
    putDown(onSlider);
    putDown({ 150, 20 });
    putDown({ 150, 20 }, Pointer::Mouse);
    Clock::shared().advance(0.2);
    putDown({ 150, 20 });
    window().touchUp(onSlider);
    EXPECT_THAT(log.take(), ElementsAre("down", "up inside"));
    EXPECT_THAT(rows.selectedRows, IsEmpty());
}

TEST_F(AFingerOnASliderInATable, ThatIsCanceledAtOnceSendsTheSliderNothing)
{
    putDown(onSlider);
    window().touchCancel();
    EXPECT_FALSE(window().isTouched());
    Clock::shared().advance(1);
    EXPECT_FALSE(window().isTouched());
    window().touchMove({ 250, 154 });
    window().touchUp({ 250, 154 });
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(AFingerOnASliderInATable, ThatIsCanceledCancelsTheSlidersTouch)
{
    putDown(thumb(0));
    window().touchMove(thumb(0.5));
    log.take();
    window().touchCancel();
    EXPECT_THAT(log.take(), ElementsAre("cancel"));
    EXPECT_EQ(slider->value(), 0.5f);
    EXPECT_FALSE(window().isTouched());
    window().touchMove(thumb(1));
    EXPECT_EQ(slider->value(), 0.5f);
}

TEST_F(AFingerOnASliderInATable, ThatIsCanceledWhileItScrollsLeavesTheTableWithinItsEdges)
{
    putDown(onSlider);
    window().touchMove({ 150, 170 });
    window().touchMove({ 150, 300 });
    EXPECT_LT(offset(), 0);
    window().touchCancel();
    EXPECT_FALSE(window().isTouched());
    Clock::shared().advance(2);
    EXPECT_EQ(offset(), 0);
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(AFingerOnASliderInATable, MayGoDownAgainAfterwards)
{
    putDown(onSlider);
    window().touchMove({ 150, 130 });
    window().touchUp({ 150, 130 });
    Clock::shared().advance(2);
    list->scrollTo(0);
    putDown(thumb(0));
    window().touchMove(thumb(1));
    window().touchUp(thumb(1));
    EXPECT_EQ(slider->value(), 1);
}

TEST_F(AFingerOnASliderInATable, MayOutliveTheTable)
{
    putDown(onSlider);
    Clock::shared().advance(0.2);
    list->table->removeFromParent();
    window().touchMove({ 200, 154 });
    window().touchUp({ 200, 154 });
    EXPECT_FALSE(window().isTouched());
}

TEST_F(AFingerOnASliderInATable, KeepsTheSliderAliveUntilItIsLifted)
{
    const auto before = slider->retainCount();
    putDown(onSlider);
    Clock::shared().advance(0.2);
    EXPECT_GT(slider->retainCount(), before);
    window().touchUp(onSlider);
    EXPECT_EQ(slider->retainCount(), before);
}

using AMouseOnASliderInATable = SliderInATable;

TEST_F(AMouseOnASliderInATable, ReachesItAtOnce)
{
    putDown(thumb(0), Pointer::Mouse);
    EXPECT_THAT(log.take(), ElementsAre("down"));
    window().touchMove({ thumb(0.5).x, thumb(0).y + 60 });
    EXPECT_EQ(slider->value(), 0.5f);
    EXPECT_EQ(offset(), 0);
}

using AFingerOnARow = SliderInATable;

TEST_F(AFingerOnARow, SelectsItWithATap)
{
    list->tap({ 100, 60 });
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 1 }));
}

TEST_F(AFingerOnARow, ReleasesThePressedRowWhenItTurnsOutToScroll)
{
    putDown({ 100, 60 });
    Clock::shared().advance(0.2);
    EXPECT_TRUE(list->cell(1)->isHighlighted());
    window().touchMove({ 100, 45 });
    EXPECT_FALSE(list->cell(1)->isHighlighted());
    window().touchMove({ 100, 25 });
    EXPECT_EQ(offset(), 20);
    window().touchUp({ 100, 25 });
    EXPECT_THAT(rows.selectedRows, IsEmpty());
}

using AWheelOverASlider = SliderInATable;

TEST_F(AWheelOverASlider, ScrollsTheTableAndDoesNotMoveTheSlider)
{
    window().scroll(onSlider, { 0, 60 });
    EXPECT_EQ(offset(), 60);
    window().scroll(onSlider, { 25, -20 });
    EXPECT_EQ(offset(), 40);
    EXPECT_EQ(slider->value(), 0);
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(AWheelOverASlider, OrWhereNothingScrollsDoesNothing)
{
    list->table->setFrame(makeRect(0, 0, 320, 200));
    window().scroll({ 100, 300 }, { 0, 60 });
    window().scroll({ 1000, 300 }, { 0, 60 });
    EXPECT_EQ(offset(), 0);
}

/// A slider that is operated without a touch, for example by a key or a screen reader.
class AHeldSlider : public SliderInATable {
protected:
    AHeldSlider()
    {
        EXPECT_TRUE(slider->begin());
        log.take();
    }
};

TEST_F(AHeldSlider, TakesTheTouchsPlace)
{
    EXPECT_TRUE(window().isTouched());
    putDown({ 150, 20 }, Pointer::Mouse);
    window().touchUp({ 150, 20 });
    EXPECT_THAT(rows.selectedRows, IsEmpty());
    putDown(onSlider);
    window().touchMove(thumb(1));
    window().touchUp(thumb(1));
    EXPECT_THAT(log.take(), IsEmpty()) << "moves and ends of no touch";
    EXPECT_TRUE(slider->isHeld());
}

TEST_F(AHeldSlider, IsHeldByOneAtATime)
{
    EXPECT_FALSE(slider->begin());
    EXPECT_THAT(log.take(), IsEmpty());
    EXPECT_TRUE(slider->isHeld());
}

TEST_F(AHeldSlider, MakesRoomForATouchWhenItIsReleased)
{
    slider->commit();
    EXPECT_FALSE(window().isTouched());
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
    list->tap({ 100, 60 });
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 1 }));
}

TEST_F(AHeldSlider, IsReleasedByACanceledTouch)
{
    window().touchCancel();
    EXPECT_THAT(log.take(), ElementsAre("cancel"));
    EXPECT_FALSE(window().isTouched());
    EXPECT_FALSE(slider->isHeld());
    slider->commit();
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(AHeldSlider, ThatLeavesTheWindowMakesRoomForATouch)
{
    list->resize({ 320, 100 });
    ASSERT_EQ(slider->window(), nullptr);
    EXPECT_FALSE(window().isTouched());
    list->tap({ 100, 60 });
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 1 }));
    EXPECT_THAT(log.take(), IsEmpty());
    slider->commit();
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
}

TEST_F(AHeldSlider, ThatIsBackInTheWindowTakesTheTouchsPlaceAgain)
{
    list->resize({ 320, 100 });
    list->resize({ 320, 400 });
    ASSERT_NE(slider->window(), nullptr);
    EXPECT_TRUE(window().isTouched());
    slider->commit();
    EXPECT_FALSE(window().isTouched());
}

TEST_F(AHeldSlider, ThatLeftTheWindowDoesNotEndTheNextTouch)
{
    list->resize({ 320, 100 });
    putDown({ 100, 60 }, Pointer::Mouse);
    list->resize({ 320, 400 });
    slider->commit();
    EXPECT_TRUE(window().isTouched());
    window().touchUp({ 100, 60 });
    EXPECT_THAT(rows.selectedRows, ElementsAre(RowPath { 0, 1 }));
}

TEST_F(AHeldSlider, ThatLeftTheWindowDoesNotEndTheNextHold)
{
    list->resize({ 320, 100 });
    const auto other = make<Slider>();
    other->setFrame(makeRect(0, 0, 100, 44));
    window().add(*other);
    EXPECT_TRUE(other->begin());
    list->resize({ 320, 400 });
    slider->commit();
    EXPECT_TRUE(window().isTouched());
    other->commit();
    EXPECT_FALSE(window().isTouched());
}

TEST_F(AHeldSlider, ThatLeftTheWindowLeavesNothingTouchedWhereNothingTakesTheNextTouch)
{
    list->table->removeFromParent();
    putDown({ 100, 60 });
    EXPECT_FALSE(window().isTouched());
    window().touchCancel();
    EXPECT_THAT(log.take(), IsEmpty());
}

using HoldingASliderInATable = SliderInATable;

TEST_F(HoldingASliderInATable, ScrollsItIntoView)
{
    list->scrollTo(150);
    EXPECT_TRUE(slider->begin());
    EXPECT_EQ(offset(), 3 * 44);
    EXPECT_THAT(log.take(), ElementsAre("down"));
}

TEST_F(HoldingASliderInATable, FailsWhileSomethingIsTouched)
{
    putDown({ 150, 20 });
    EXPECT_FALSE(slider->begin());
    Clock::shared().advance(0.2);
    EXPECT_FALSE(slider->begin());
    window().touchUp({ 150, 20 });
    EXPECT_THAT(log.take(), IsEmpty());
    EXPECT_TRUE(slider->begin());
}

TEST_F(HoldingASliderInATable, FailsWhileItIsCovered)
{
    const auto cover = make<View>(window().bounds());
    window().add(*cover);
    EXPECT_FALSE(slider->begin());
    EXPECT_FALSE(window().isTouched());
    cover->removeFromParent();
    EXPECT_TRUE(slider->begin());
}

TEST_F(HoldingASliderInATable, FailsOutsideOfAWindow)
{
    list->table->removeFromParent();
    EXPECT_FALSE(slider->begin());
    EXPECT_FALSE(slider->isHeld());
    EXPECT_THAT(log.take(), IsEmpty());
}

} // namespace

} // namespace brimsound::tests
