#include "tests/unit/toolkit/EventLog.h"
#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/control/KnobFinder.h"
#include "toolkit/control/Slider.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace brimsound::tests {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Point;
using toolkit::Pointer;
using toolkit::Ref;
using toolkit::Slider;
using toolkit::Window;

TEST(ASliderAtZero, TakesTheSignOfTheZeroThatItIsSetTo)
{
    const auto slider = make<Slider>();
    slider->setMinimum(-12);
    slider->setValue(-0.0f);
    EXPECT_TRUE(std::signbit(slider->value()));
    slider->setValue(0);
    EXPECT_FALSE(std::signbit(slider->value()));
}

TEST(ASlider, RunsFromZeroToOneAtFirst)
{
    const auto slider = make<Slider>();
    EXPECT_EQ(slider->value(), 0);
    EXPECT_EQ(slider->minimum(), 0);
    EXPECT_EQ(slider->maximum(), 1);
    EXPECT_FALSE(slider->tint());
}

TEST(ASlider, ClampsItsValueToItsRange)
{
    const auto slider = make<Slider>();
    slider->setMaximum(12);
    slider->setMinimum(-12);
    slider->setValue(13);
    EXPECT_EQ(slider->value(), 12);
    slider->setValue(-std::numeric_limits<float>::infinity());
    EXPECT_EQ(slider->value(), -12);
    slider->setValue(4.5f);
    EXPECT_EQ(slider->value(), 4.5f);
}

TEST(ASlider, KeepsItsValueWhenItIsSetToNaN)
{
    const auto slider = make<Slider>();
    slider->setValue(0.25f);
    slider->setValue(std::nanf(""));
    EXPECT_EQ(slider->value(), 0.25f);
}

TEST(ASlider, ClampsItsValueWhenTheRangeChanges)
{
    const auto slider = make<Slider>();
    slider->setMaximum(12);
    slider->setMinimum(3);
    EXPECT_EQ(slider->value(), 3);
    slider->setValue(10);
    slider->setMaximum(5);
    EXPECT_EQ(slider->value(), 5);
}

TEST(ASlider, RaisesTheMaximumWithAHigherMinimumAndLowersTheMinimumWithALowerMaximum)
{
    const auto slider = make<Slider>();
    slider->setMinimum(4);
    EXPECT_EQ(slider->maximum(), 4);
    EXPECT_EQ(slider->value(), 4);
    slider->setMaximum(-2);
    EXPECT_EQ(slider->minimum(), -2);
    EXPECT_EQ(slider->value(), -2);
}

TEST(ASlider, KeepsItsTint)
{
    const auto slider = make<Slider>();
    const toolkit::Color gray { 0.5, 0.5, 0.5 };
    slider->setTint(gray);
    EXPECT_EQ(slider->tint(), gray);
    slider->setTint(std::nullopt);
    EXPECT_FALSE(slider->tint());
}

TEST(ASlider, DrawsItsThumbAtItsValueAndAsLargeAsTheThumbsPicture)
{
    const auto slider = make<Slider>();
    slider->setFrame(makeRect(0, 0, 200, 44));
    slider->setValue(0.3f);
    const auto thumb = knobOf(*slider);
    EXPECT_EQ(thumb.size, Slider::thumb().size());
    EXPECT_DOUBLE_EQ(thumb.middle().x, slider->thumbCenter(slider->value()).x);
    EXPECT_DOUBLE_EQ(thumb.middle().y, slider->thumbCenter(slider->value()).y);
}

TEST(ASlider, KeepsItsThumbWithinItsEnds)
{
    const auto slider = make<Slider>();
    slider->setFrame(makeRect(30, 0, 200, 44));
    const double radius = Slider::thumb().size().width / 2;
    EXPECT_EQ(slider->thumbCenter(0), (Point { radius, 22 }));
    EXPECT_EQ(slider->thumbCenter(1), (Point { 200 - radius, 22 }));
}

/// A slider from -12 to 12 in a window.
class ASliderInAWindow : public testing::Test {
protected:
    ASliderInAWindow()
    {
        slider->setMaximum(12);
        slider->setMinimum(-12);
        slider->setFrame(makeRect(13.25, 100, 233, 44));
        window->add(*slider);
        log.listenTo(*slider);
    }

    /// The center of the thumb for the value, in the window.
    Point thumb(double value) const { return slider->toWindow(slider->thumbCenter(value)); }

    EventLog log;
    const Ref<Window> window = make<Window>(toolkit::Size { 320, 480 });
    const Ref<Slider> slider = make<Slider>();
};

TEST_F(ASliderInAWindow, SendsNothingWhenItIsSetInCode)
{
    slider->setValue(3);
    slider->setMinimum(5);
    EXPECT_THAT(log.take(), IsEmpty());
}

using ATouchOnASlider = ASliderInAWindow;

TEST_F(ATouchOnASlider, MovesNothingByItself)
{
    slider->setValue(3);
    for (const double value : { -12.0, 3.0, 3.3, 12.0 }) {
        window->touchDown({ thumb(value), Pointer::Finger });
        window->touchUp(thumb(value));
        EXPECT_EQ(slider->value(), 3) << value;
        EXPECT_THAT(log.take(), ElementsAre("down", "up inside")) << value;
    }
}

TEST_F(ATouchOnASlider, MovesTheThumbByAsMuchAsItMovesWhereverItBegins)
{
    slider->setValue(3);
    window->touchDown({ thumb(-10), Pointer::Finger });
    window->touchMove(thumb(-8));
    EXPECT_NEAR(slider->value(), 5, 1e-5);
    window->touchMove(thumb(-10));
    EXPECT_NEAR(slider->value(), 3, 1e-5);
}

TEST_F(ATouchOnASlider, SendsItsNewValueBeforeTheDrag)
{
    window->touchDown({ thumb(0), Pointer::Finger });
    window->touchMove(thumb(1));
    EXPECT_THAT(log.take(), ElementsAre("down", "value", "drag inside"));
    window->touchMove(thumb(1));
    EXPECT_THAT(log.take(), ElementsAre("drag inside"));
    window->touchMove({ thumb(2).x, 400 });
    EXPECT_THAT(log.take(), ElementsAre("value", "exit", "drag outside"));
    window->touchUp({ thumb(2).x, 400 });
    EXPECT_THAT(log.take(), ElementsAre("up outside"));
}

TEST_F(ATouchOnASlider, StopsAtTheEnds)
{
    window->touchDown({ thumb(0), Pointer::Finger });
    window->touchMove({ 1000, 110 });
    EXPECT_EQ(slider->value(), 12);
    log.take();
    window->touchMove({ 2000, 110 });
    EXPECT_THAT(log.take(), ElementsAre("drag outside"));
    window->touchMove({ -1000, 110 });
    EXPECT_EQ(slider->value(), -12);
}

TEST_F(ATouchOnASlider, ReachesEveryValueExactly)
{
    window->touchDown({ thumb(slider->value()), Pointer::Finger });
    for (int step = -1200; step <= 1200; ++step) {
        const auto value = static_cast<float>(step) / 100;
        window->touchMove(thumb(value));
        EXPECT_EQ(slider->value(), value);
    }
}

TEST_F(ATouchOnASlider, ReachesEveryValueExactlyAtEveryWidth)
{
    window->setFrame(makeRect(0, 0, 800, 480));
    for (int step = 0; step < 20; ++step) {
        const double width = 60 + 31.7 * step;
        slider->setFrame(makeRect(width / 7, 100, width, 44));
        window->touchDown({ thumb(slider->value()), Pointer::Finger });
        for (const float value : { -11.9f, -4.5f, -0.1f, 0.0f, 0.1f, 1.0f / 3, 7.77f, 12.0f }) {
            window->touchMove(thumb(value));
            EXPECT_EQ(slider->value(), value) << width;
        }
        window->touchUp(thumb(slider->value()));
    }
}

TEST_F(ATouchOnASlider, MovesNothingWhereTheThumbHasNoRoomToMove)
{
    slider->setFrame(makeRect(10, 100, 20, 44));
    slider->setValue(3);
    window->touchDown({ { 15, 110 }, Pointer::Finger });
    window->touchMove({ 200, 110 });
    EXPECT_EQ(slider->value(), 3);
}

using AMousePressOnASlider = ASliderInAWindow;

TEST_F(AMousePressOnASlider, BesideTheThumbBringsItThere)
{
    window->touchDown({ thumb(6), Pointer::Mouse });
    EXPECT_EQ(slider->value(), 6);
    EXPECT_THAT(log.take(), Contains("value"));
    window->touchMove(thumb(7));
    EXPECT_EQ(slider->value(), 7);
}

TEST_F(AMousePressOnASlider, OnTheThumbMovesNothingUntilTheMouseDoes)
{
    const Point press { thumb(0).x + 10, thumb(0).y };
    window->touchDown({ press, Pointer::Mouse });
    EXPECT_EQ(slider->value(), 0);
    EXPECT_THAT(log.take(), Not(Contains("value")));
    window->touchMove({ thumb(4).x + 10, press.y });
    EXPECT_EQ(slider->value(), 4);
}

class ADoubleClickOnASlider : public ASliderInAWindow {
protected:
    ADoubleClickOnASlider() { slider->setSteps({ .neutral = 2 }); }

    /// Clicks, and presses again without releasing.
    void doubleClick(Point at)
    {
        window->touchDown({ at, Pointer::Mouse });
        window->touchUp(at);
        window->touchDown({ at, Pointer::Mouse, true });
    }
};

TEST_F(ADoubleClickOnASlider, SetsTheNeutralValueAsADragDoes)
{
    slider->setValue(5);
    doubleClick(thumb(5));
    EXPECT_EQ(slider->value(), 2);
    EXPECT_THAT(log.take(), ElementsAre("down", "up inside", "down", "value", "drag inside"));
    window->touchMove(thumb(6));
    EXPECT_EQ(slider->value(), 2) << "although the mouse moved before its button was released";
    window->touchUp(thumb(6));
    EXPECT_THAT(log.take(), ElementsAre("drag inside", "up inside"));
}

TEST_F(ADoubleClickOnASlider, IsFollowedByOrdinaryDrags)
{
    slider->setValue(5);
    doubleClick(thumb(5));
    window->touchUp(thumb(5));
    window->touchDown({ thumb(2), Pointer::Mouse });
    window->touchMove(thumb(4));
    EXPECT_NEAR(slider->value(), 4, 1e-5);
}

TEST_F(ADoubleClickOnASlider, BesideTheThumbBringsTheThumbThere)
{
    doubleClick(thumb(8));
    EXPECT_NEAR(slider->value(), 8, 1e-5);
}

TEST_F(ADoubleClickOnASlider, IsTwoClicksWhereThereIsNoNeutralValue)
{
    slider->setSteps({});
    slider->setValue(5);
    doubleClick(thumb(5));
    EXPECT_EQ(slider->value(), 5);
}

TEST_F(ADoubleClickOnASlider, SetsNothingAfterAListenerCancelsIt)
{
    slider->setValue(5);
    slider->onEvent = [&](toolkit::ControlEvent) { window->touchCancel(); };
    doubleClick(thumb(5));
    EXPECT_EQ(slider->value(), 5);
}

using HoldingASlider = ASliderInAWindow;

TEST_F(HoldingASlider, SendsTheEventsOfADragForEveryValue)
{
    slider->begin();
    slider->set(4.5);
    EXPECT_EQ(slider->value(), 4.5f);
    EXPECT_THAT(log.take(), ElementsAre("down", "value", "drag inside"));
    slider->set(4.5);
    EXPECT_THAT(log.take(), ElementsAre("drag inside"));
    slider->set(99, Slider::Side::Outside);
    EXPECT_EQ(slider->value(), 12);
    EXPECT_THAT(log.take(), ElementsAre("value", "exit", "drag outside"));
    slider->set(1);
    EXPECT_THAT(log.take(), ElementsAre("value", "enter", "drag inside"));
    slider->set(2, Slider::Side::Outside);
    slider->commit(Slider::Side::Outside);
    EXPECT_THAT(log.take(), ElementsAre("value", "exit", "drag outside", "up outside"));
}

TEST_F(HoldingASlider, IsNeededToSetItAsADragDoes)
{
    slider->set(4.5);
    EXPECT_EQ(slider->value(), 0);
    EXPECT_THAT(log.take(), IsEmpty());
    slider->begin();
    window->touchCancel();
    log.take();
    slider->set(4.5);
    EXPECT_EQ(slider->value(), 0);
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(HoldingASlider, SendsNoDragAfterAListenerCancelsIt)
{
    std::vector<toolkit::ControlEvent> events;
    slider->onEvent = [&](toolkit::ControlEvent event) {
        events.push_back(event);
        if (event == toolkit::ControlEvent::ValueChanged)
            window->touchCancel();
    };
    EXPECT_TRUE(slider->slideTo(3));
    EXPECT_EQ(slider->value(), 3);
    EXPECT_THAT(events,
        ElementsAre(toolkit::ControlEvent::TouchDown, toolkit::ControlEvent::ValueChanged,
            toolkit::ControlEvent::TouchCancel));
}

using SlidingASlider = ASliderInAWindow;

TEST_F(SlidingASlider, SendsTheEventsOfAWholeDrag)
{
    EXPECT_TRUE(slider->slideTo(4.5));
    EXPECT_EQ(slider->value(), 4.5f);
    EXPECT_THAT(log.take(), ElementsAre("down", "value", "drag inside", "up inside"));
    EXPECT_FALSE(window->isTouched());
}

TEST_F(SlidingASlider, FailsWhereAFingerCouldNotTouchIt)
{
    window->add(*make<toolkit::View>(window->bounds()));
    EXPECT_FALSE(slider->slideTo(4.5));
    EXPECT_FALSE(slider->stepBy(1));
    EXPECT_EQ(slider->value(), 0);
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(SlidingASlider, ByStepsEndsOnAWholeSmallStep)
{
    slider->setSteps({ .small = 0.1, .large = 1 });
    slider->setValue(1.23f);
    EXPECT_TRUE(slider->stepBy(1));
    EXPECT_FLOAT_EQ(slider->value(), 1.3f);
    EXPECT_THAT(log.take(), ElementsAre("down", "value", "drag inside", "up inside"));
    slider->stepBy(-4);
    EXPECT_FLOAT_EQ(slider->value(), 0.9f);
    slider->stepBy(1000);
    EXPECT_EQ(slider->value(), 12);
}

TEST_F(ASliderInAWindow, IsReadByItsValueInWords)
{
    slider->setLabel("170");
    slider->setSteps({ .small = 0.1, .large = 1, .unit = "dB", .words = [](double value) {
                          return std::to_string(std::lround(value * 10)) + " tenths";
                      } });
    slider->setValue(4.53f);
    const auto accessible = slider->accessible();
    EXPECT_EQ(accessible.role, toolkit::Role::Slider);
    EXPECT_EQ(accessible.name, "170");
    EXPECT_EQ(accessible.description, "dB");
    EXPECT_EQ(accessible.value, "45 tenths");
    ASSERT_TRUE(accessible.range);
    EXPECT_DOUBLE_EQ(accessible.range->value, 4.5);
    EXPECT_EQ(accessible.range->minimum, -12);
    EXPECT_EQ(accessible.range->maximum, 12);
    EXPECT_EQ(accessible.range->step, 0.1);
}

TEST_F(ASliderInAWindow, IsReadByItsNumberWhenItHasNoWords)
{
    EXPECT_EQ(slider->accessible().value, "");
    EXPECT_EQ(slider->accessible().description, "");
    slider->setValue(0.126f);
    EXPECT_DOUBLE_EQ(slider->accessible().range->value, 0.13);
}

TEST_F(ASliderInAWindow, IsReadWithoutTheSignOfAZero)
{
    slider->setValue(-0.001f);
    EXPECT_FALSE(std::signbit(slider->accessible().range->value));
}

TEST_F(ASliderInAWindow, TellsAssistiveTechnologyOfEveryNewValue)
{
    int changes = 0;
    window->onAccessibleChange = [&](toolkit::View& view, toolkit::AccessibleChange change) {
        changes += &view == slider.get() && change == toolkit::AccessibleChange::ValueChanged ? 1 : 0;
    };
    slider->setValue(3);
    EXPECT_EQ(changes, 1);
    slider->setValue(3);
    EXPECT_EQ(changes, 1);
    slider->slideTo(4);
    EXPECT_EQ(changes, 2);
}

} // namespace

} // namespace brimsound::tests
