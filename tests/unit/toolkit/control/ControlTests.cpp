#include "tests/unit/toolkit/EventLog.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Control;
using toolkit::ControlEvent;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Point;
using toolkit::Ref;
using toolkit::View;
using toolkit::Window;

/// A control of 50 x 40 points in the middle of a window.
class AControlInAWindow : public testing::Test {
protected:
    AControlInAWindow()
    {
        window->add(*control);
        log.listenTo(*control);
    }

    /// Covers the whole window with a view.
    void cover() const { window->add(*make<View>(makeRect(0, 0, 500, 500))); }

    static constexpr Point inside { 210, 210 };

    EventLog log;
    const Ref<Window> window = make<Window>(toolkit::Size { 500, 500 });
    const Ref<Control> control = make<Control>(makeRect(200, 200, 50, 40));
};

using ATouchOnAControl = AControlInAWindow;

TEST_F(ATouchOnAControl, SendsDownThenUpInside)
{
    window->touchDown({ inside });
    EXPECT_THAT(log.take(), ElementsAre("down"));
    EXPECT_TRUE(window->isTouched());
    EXPECT_TRUE(control->isHeld());
    window->touchUp(inside);
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
    EXPECT_FALSE(window->isTouched());
    EXPECT_FALSE(control->isHeld());
}

TEST_F(ATouchOnAControl, SendsADragForEveryMove)
{
    window->touchDown({ inside });
    window->touchMove({ 220, 210 });
    window->touchMove({ 230, 210 });
    EXPECT_THAT(log.take(), ElementsAre("down", "drag inside", "drag inside"));
}

TEST_F(ATouchOnAControl, SendsAnExitOnLeavingAndAnEnterOnComingBack)
{
    window->touchDown({ inside });
    log.take();
    window->touchMove({ 210, 400 });
    EXPECT_THAT(log.take(), ElementsAre("exit", "drag outside"));
    window->touchMove({ 210, 410 });
    EXPECT_THAT(log.take(), ElementsAre("drag outside"));
    window->touchMove(inside);
    EXPECT_THAT(log.take(), ElementsAre("enter", "drag inside"));
}

TEST_F(ATouchOnAControl, CountsAsInsideUpToSeventyPointsAround)
{
    window->touchDown({ inside });
    for (const auto& point : { Point { 130, 220 }, { 319.5, 220 }, { 220, 130 }, { 220, 309.5 } }) {
        log.take();
        window->touchMove(point);
        EXPECT_THAT(log.take(), ElementsAre("drag inside")) << point.x << ", " << point.y;
    }
    for (const auto& point : { Point { 129.5, 220 }, { 320, 220 }, { 220, 129.5 }, { 220, 310 } }) {
        window->touchMove(inside);
        log.take();
        window->touchMove(point);
        EXPECT_THAT(log.take(), ElementsAre("exit", "drag outside")) << point.x << ", " << point.y;
    }
}

TEST_F(ATouchOnAControl, EndsInsideOrOutsideByWhereItIsLifted)
{
    window->touchDown({ inside });
    window->touchUp({ 300, 290 });
    EXPECT_THAT(log.take(), ElementsAre("down", "up inside"));
    window->touchDown({ inside });
    window->touchUp({ 400, 210 });
    EXPECT_THAT(log.take(), ElementsAre("down", "up outside"));
}

TEST_F(ATouchOnAControl, SendsNothingAfterItIsCanceled)
{
    window->touchDown({ inside });
    window->touchCancel();
    EXPECT_FALSE(control->isHeld());
    window->touchMove({ 220, 210 });
    window->touchUp(inside);
    EXPECT_THAT(log.take(), ElementsAre("down", "cancel"));
}

TEST_F(ATouchOnAControl, StaysWithTheControlWhereverItMoves)
{
    EventLog otherLog;
    const auto other = make<Control>(makeRect(0, 0, 50, 50));
    window->add(*other);
    otherLog.listenTo(*other);
    window->touchDown({ inside });
    window->touchMove({ 10, 10 });
    window->touchUp({ 10, 10 });
    EXPECT_THAT(log.take(), ElementsAre("down", "exit", "drag outside", "up outside"));
    EXPECT_THAT(otherLog.take(), IsEmpty());
}

TEST_F(ATouchOnAControl, ReachesItThroughAChildThatTakesNoTouches)
{
    control->add(*make<View>(makeRect(0, 0, 50, 40)));
    window->touchDown({ inside });
    EXPECT_THAT(log.take(), ElementsAre("down"));
}

TEST_F(ATouchOnAControl, IsNotChangedByASecondTouch)
{
    EventLog otherLog;
    const auto other = make<Control>(makeRect(0, 0, 50, 50));
    window->add(*other);
    otherLog.listenTo(*other);
    window->touchDown({ inside });
    window->touchDown({ { 10, 10 } });
    window->touchUp(inside);
    EXPECT_THAT(log.take(), ElementsAre("down", "up inside"));
    EXPECT_THAT(otherLog.take(), IsEmpty());
}

TEST_F(ATouchOnAControl, SendsNothingWhenItBeginsBesideTheControl)
{
    window->touchDown({ { 10, 10 } });
    EXPECT_FALSE(window->isTouched());
    window->touchMove(inside);
    window->touchUp(inside);
    window->touchCancel();
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(ATouchOnAControl, SendsNothingAfterAListenerCancelsIt)
{
    for (const auto event :
        { ControlEvent::TouchDown, ControlEvent::DragExit, ControlEvent::TouchUpInside }) {
        std::vector<ControlEvent> events;
        const auto closing = make<Control>(makeRect(0, 0, 50, 50));
        closing->onEvent = [&](ControlEvent sent) {
            events.push_back(sent);
            if (sent == event)
                window->touchCancel();
        };
        window->add(*closing);
        window->touchDown({ { 10, 10 } });
        window->touchMove({ 10, 400 });
        window->touchMove({ 10, 10 });
        window->touchUp({ 10, 10 });
        ASSERT_FALSE(events.empty());
        EXPECT_EQ(events.back(),
            event == ControlEvent::TouchUpInside ? ControlEvent::TouchUpInside : ControlEvent::TouchCancel);
        EXPECT_FALSE(window->isTouched());
        closing->removeFromParent();
    }
}

TEST_F(ATouchOnAControl, KeepsTheControlAliveWhenAListenerRemovesIt)
{
    for (const auto event : { ControlEvent::TouchDown, ControlEvent::DragInside, ControlEvent::DragExit,
             ControlEvent::TouchUpInside }) {
        auto closing = make<Control>(makeRect(0, 0, 50, 50));
        closing->onEvent = [this, event, view = closing.get()](ControlEvent sent) {
            if (sent != event)
                return;
            view->removeFromParent();
            window->touchCancel();
        };
        bool isDestroyed = false;
        closing->onDestroyed = [&] { isDestroyed = true; };
        window->add(*closing);
        closing = nullptr;
        window->touchDown({ { 10, 10 } });
        window->touchMove({ 12, 12 });
        window->touchMove({ 10, 400 });
        window->touchMove({ 10, 10 });
        window->touchUp({ 10, 10 });
        EXPECT_FALSE(window->isTouched());
        EXPECT_EQ(window->children().size(), 1u);
        EXPECT_TRUE(isDestroyed);
    }
}

TEST_F(ATouchOnAControl, SendsNothingAfterACommitInCode)
{
    window->touchDown({ inside });
    control->commit();
    EXPECT_FALSE(control->isHeld());
    window->touchMove({ 220, 210 });
    window->touchUp(inside);
    EXPECT_THAT(log.take(), ElementsAre("down", "up inside"));
}

using HoldingAControl = AControlInAWindow;

TEST_F(HoldingAControl, SendsDownWhenItBeginsAndUpInsideWhenItCommits)
{
    EXPECT_TRUE(control->begin());
    EXPECT_TRUE(control->isHeld());
    EXPECT_TRUE(window->isTouched());
    EXPECT_THAT(log.take(), ElementsAre("down"));
    control->commit();
    EXPECT_FALSE(control->isHeld());
    EXPECT_FALSE(window->isTouched());
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
}

TEST_F(HoldingAControl, SendsUpOutsideWhenItCommitsOutside)
{
    control->begin();
    control->commit(Control::Side::Outside);
    EXPECT_THAT(log.take(), ElementsAre("down", "up outside"));
}

TEST_F(HoldingAControl, SendsNothingWhenItCommitsWithoutAHold)
{
    control->commit();
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(HoldingAControl, KeepsTouchesFromTheWindow)
{
    control->begin();
    window->touchDown({ inside });
    window->touchMove({ 10, 10 });
    window->touchUp({ 10, 10 });
    EXPECT_THAT(log.take(), ElementsAre("down"));
    EXPECT_TRUE(control->isHeld());
}

TEST_F(HoldingAControl, EndsWhenTheWindowCancelsIt)
{
    control->begin();
    window->touchCancel();
    EXPECT_FALSE(control->isHeld());
    control->commit();
    EXPECT_THAT(log.take(), ElementsAre("down", "cancel"));
}

TEST_F(HoldingAControl, FailsWhereAFingerCouldNotTouchIt)
{
    EXPECT_FALSE(make<Control>()->begin()) << "outside of a window";
    window->touchDown({ inside });
    EXPECT_FALSE(control->begin()) << "while it is touched";
    window->touchUp(inside);
    log.take();
    cover();
    EXPECT_FALSE(control->begin()) << "while it is covered";
    EXPECT_FALSE(control->press());
    EXPECT_FALSE(control->activate());
    EXPECT_FALSE(control->isHeld());
    EXPECT_THAT(log.take(), IsEmpty());
}

using PressingAControl = AControlInAWindow;

TEST_F(PressingAControl, SendsWhatATapSends)
{
    EXPECT_TRUE(control->press());
    EXPECT_THAT(log.take(), ElementsAre("down", "up inside"));
    EXPECT_TRUE(control->activate());
    EXPECT_THAT(log.take(), ElementsAre("down", "up inside"));
    EXPECT_FALSE(window->isTouched());
}

TEST_F(PressingAControl, KeepsItAliveWhenAListenerRemovesIt)
{
    for (const auto event : { ControlEvent::TouchDown, ControlEvent::TouchUpInside }) {
        auto closing = make<Control>(makeRect(0, 0, 50, 50));
        bool isDestroyed = false;
        closing->onDestroyed = [&] { isDestroyed = true; };
        closing->onEvent = [&, view = closing.get()](ControlEvent sent) {
            if (sent == event)
                view->removeFromParent();
            EXPECT_FALSE(isDestroyed);
        };
        window->add(*closing);
        auto& pressed = *closing;
        closing = nullptr;
        EXPECT_TRUE(pressed.press());
        EXPECT_TRUE(isDestroyed);
        EXPECT_FALSE(window->isTouched());
    }
}

} // namespace

} // namespace brimsound::tests
