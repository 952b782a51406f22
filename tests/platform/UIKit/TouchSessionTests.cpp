#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/SliderPeer.h"
#include "tests/platform/UIKit/Controls.h"
#include "tests/platform/UIKit/Geometry.h"
#include "tests/platform/UIKit/Lists.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::Clock;
using desktop::Pointer;
using testing::ElementsAre;
using testing::IsEmpty;

/// A table of thirty rows; a slider fills the fourth.
class SliderInATable : public testing::Test {
protected:
    SliderInATable()
    {
        rows.identifier = [](const NSIndexPath& row) {
            return row == NSIndexPath { 0, 3 } ? "slider" : "row";
        };
        rows.onCellMade = [this](UITableViewCell& cell, const NSIndexPath& row) {
            if (row != NSIndexPath { 0, 3 })
                return;
            slider->setFrame(CGRectMake(20, 0, 280, 44));
            cell.contentView().addSubview(*slider);
        };
        log->listenTo(*slider);
        list.emplace(rows, CGSize { 320, 400 });
    }

    desktop::Window& window() const { return *list->window; }
    double offset() const { return list->offset(); }
    /// Where the thumb stands for the value, in the window.
    CGPoint thumb(double value) const
    {
        return desktop::convertToWindow(desktop::peerOf(*slider).thumbCentre(value), *slider);
    }
    void putDown(CGPoint at, Pointer pointer = Pointer::Finger) const { window().touchDown({ at, pointer }); }

    static constexpr CGPoint onSlider { 150, 154 };

    Rows rows { { 30 } };
    const RetainPtr<UISlider> slider = make<UISlider>();
    const RetainPtr<EventLog> log = make<EventLog>();
    std::optional<TableInWindow> list;
};

using AFingerOnASliderInATable = SliderInATable;

TEST_F(AFingerOnASliderInATable, ScrollsWhenItSoonMovesUpAndTheSliderNeverHearsOfIt)
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
    EXPECT_THAT(log->take(), IsEmpty());
}

TEST_F(AFingerOnASliderInATable, ThatStopsAMovingTableIsNoTapOnWhatWasPassingBy)
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
    EXPECT_THAT(rows.selected, IsEmpty());
    // At rest, the same tap is one.
    putDown({ 150, 200 });
    window().touchUp({ 150, 200 });
    EXPECT_EQ(rows.selected.size(), 1u);
}

TEST_F(AFingerOnASliderInATable, ScrollsWhenItSoonMovesDown)
{
    list->scrollTo(100);
    putDown({ 150, 54 });
    window().touchMove({ 150, 70 });
    window().touchMove({ 150, 90 });
    EXPECT_EQ(offset(), 80);
    window().touchUp({ 150, 90 });
    EXPECT_THAT(log->take(), IsEmpty());
}

TEST_F(AFingerOnASliderInATable, MovesTheSliderWhenItMovesSideways)
{
    putDown(thumb(0));
    window().touchMove({ thumb(0).x + 5, thumb(0).y + 5 });
    EXPECT_THAT(log->take(), IsEmpty());
    window().touchMove(thumb(0.25));
    EXPECT_THAT(log->take(), ElementsAre("down", "value", "drag inside"));
    EXPECT_EQ(slider->value(), 0.25f);
    EXPECT_EQ(offset(), 0);
}

TEST_F(AFingerOnASliderInATable, MovesTheSliderWhenItMovesMoreSidewaysThanUpOrDown)
{
    putDown(thumb(0));
    window().touchMove({ thumb(0).x + 30, thumb(0).y + 25 });
    EXPECT_THAT(log->take(), ElementsAre("down", "value", "drag inside"));
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
    EXPECT_THAT(log->take(),
        ElementsAre("down", "value", "drag inside", "value", "exit", "drag outside", "up outside"));
}

TEST_F(AFingerOnASliderInATable, ReachesTheSliderWhenItRestsForAMoment)
{
    putDown(onSlider);
    Clock::shared().advance(0.149);
    EXPECT_THAT(log->take(), IsEmpty());
    Clock::shared().advance(0.002);
    EXPECT_THAT(log->take(), ElementsAre("down"));
}

TEST_F(AFingerOnASliderInATable, KeepsTheSliderOnceItRested)
{
    putDown(onSlider);
    Clock::shared().advance(0.15);
    window().touchMove({ 150, 250 });
    window().touchMove({ 150, 20 });
    EXPECT_THAT(log->take(), ElementsAre("down", "exit", "drag outside", "drag outside"));
    EXPECT_EQ(offset(), 0);
    window().touchUp(onSlider);
    EXPECT_THAT(log->take(), ElementsAre("up inside"));
}

TEST_F(AFingerOnASliderInATable, ThatTapsIsDownAndUp)
{
    putDown(onSlider);
    Clock::shared().advance(0.05);
    window().touchUp(onSlider);
    EXPECT_THAT(log->take(), ElementsAre("down", "up inside"));
    EXPECT_EQ(slider->value(), 0);
    Clock::shared().advance(1);
    EXPECT_THAT(log->take(), IsEmpty());
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
    EXPECT_THAT(log->take(), ElementsAre("down", "up inside"));
    EXPECT_THAT(rows.selected, IsEmpty());
}

TEST_F(AFingerOnASliderInATable, ThatIsTakenAwayAtOnceWasNeverThere)
{
    putDown(onSlider);
    window().touchCancel();
    EXPECT_FALSE(window().isTouched());
    Clock::shared().advance(1);
    window().touchMove({ 250, 154 });
    window().touchUp({ 250, 154 });
    EXPECT_THAT(log->take(), IsEmpty());
}

TEST_F(AFingerOnASliderInATable, ThatIsTakenAwayFromTheSliderIsCancelled)
{
    putDown(thumb(0));
    window().touchMove(thumb(0.5));
    log->take();
    window().touchCancel();
    EXPECT_THAT(log->take(), ElementsAre("cancel"));
    EXPECT_EQ(slider->value(), 0.5f);
    EXPECT_FALSE(window().isTouched());
    window().touchMove(thumb(1));
    EXPECT_EQ(slider->value(), 0.5f);
}

TEST_F(AFingerOnASliderInATable, ThatIsTakenAwayWhileItScrollsLeavesTheTableWithinItsEdges)
{
    putDown(onSlider);
    window().touchMove({ 150, 170 });
    window().touchMove({ 150, 300 });
    EXPECT_LT(offset(), 0);
    window().touchCancel();
    EXPECT_FALSE(window().isTouched());
    Clock::shared().advance(2);
    EXPECT_EQ(offset(), 0);
    EXPECT_THAT(log->take(), IsEmpty());
}

TEST_F(AFingerOnASliderInATable, MayGoDownAnewAfterwards)
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
    list->table->removeFromSuperview();
    window().touchMove({ 200, 154 });
    window().touchUp({ 200, 154 });
    EXPECT_FALSE(window().isTouched());
}

using AMouseOnASliderInATable = SliderInATable;

TEST_F(AMouseOnASliderInATable, ReachesItAtOnce)
{
    putDown(thumb(0), Pointer::Mouse);
    EXPECT_THAT(log->take(), ElementsAre("down"));
    window().touchMove({ thumb(0.5).x, thumb(0).y + 60 });
    EXPECT_EQ(slider->value(), 0.5f);
    EXPECT_EQ(offset(), 0);
}

using AFingerOnARow = SliderInATable;

TEST_F(AFingerOnARow, SelectsItWithATap)
{
    list->tap({ 100, 60 });
    EXPECT_THAT(rows.selected, ElementsAre(NSIndexPath { 0, 1 }));
}

TEST_F(AFingerOnARow, GivesThePressedRowUpWhenItTurnsOutToScroll)
{
    putDown({ 100, 60 });
    Clock::shared().advance(0.2);
    EXPECT_TRUE(list->table->cellForRowAtIndexPath({ 0, 1 })->isHighlighted());
    window().touchMove({ 100, 45 });
    EXPECT_FALSE(list->table->cellForRowAtIndexPath({ 0, 1 })->isHighlighted());
    window().touchMove({ 100, 25 });
    EXPECT_EQ(offset(), 20);
    window().touchUp({ 100, 25 });
    EXPECT_THAT(rows.selected, IsEmpty());
}

using AWheelOverASlider = SliderInATable;

TEST_F(AWheelOverASlider, ScrollsTheTableAndDoesNotMoveTheSlider)
{
    window().scroll(onSlider, { 0, 60 });
    EXPECT_EQ(offset(), 60);
    window().scroll(onSlider, { 25, -20 });
    EXPECT_EQ(offset(), 40);
    EXPECT_EQ(slider->value(), 0);
    EXPECT_THAT(log->take(), IsEmpty());
}

TEST_F(AWheelOverASlider, OrWhereNothingScrollsDoesNothing)
{
    list->table->setFrame(CGRectMake(0, 0, 320, 200));
    window().scroll({ 100, 300 }, { 0, 60 });
    window().scroll({ 1000, 300 }, { 0, 60 });
    EXPECT_EQ(offset(), 0);
}

} // namespace

} // namespace brimsound::tests
