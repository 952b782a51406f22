#include "tests/unit/toolkit/EventLog.h"
#include "tests/unit/toolkit/Switches.h"
#include "toolkit/control/Slider.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Key;
using toolkit::KeyStroke;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Pointer;
using toolkit::Ref;
using toolkit::Size;
using toolkit::Slider;
using toolkit::Switch;
using toolkit::Window;

/// A slider from -12 to 12 with the keyboard focus.
class AKeyOnASlider : public testing::Test {
protected:
    AKeyOnASlider()
    {
        slider->setMaximum(12);
        slider->setMinimum(-12);
        slider->setValue(0);
        slider->setSteps({ .small = 0.1, .large = 1, .neutral = 2 });
        slider->setFrame(makeRect(35, 50, 250, 44));
        window->add(*slider);
        window->add(*other);
        window->keyPressed(Key::Tab, KeyStroke::First);
        log.listenTo(*slider);
    }

    void press(Key key) const { EXPECT_TRUE(window->keyPressed(key, KeyStroke::First)); }
    void hold(Key key) const { window->keyPressed(key, KeyStroke::Repeated); }
    void release(Key key) const { window->keyReleased(key); }
    float valueAfter(Key key) const
    {
        press(key);
        release(key);
        return slider->value();
    }

    EventLog log;
    const Ref<Window> window = make<Window>(Size { 320, 400 });
    const Ref<Slider> slider = make<Slider>();
    const Ref<Switch> other = switchAt(0, 200);
};

TEST_F(AKeyOnASlider, MovesItByASmallStepOrByALargeOneOrToItsEnds)
{
    EXPECT_EQ(valueAfter(Key::Right), 0.1f);
    EXPECT_EQ(valueAfter(Key::Up), 0.2f);
    EXPECT_EQ(valueAfter(Key::Up), 0.3f);
    EXPECT_EQ(valueAfter(Key::Left), 0.2f);
    EXPECT_EQ(valueAfter(Key::Down), 0.1f);
    EXPECT_EQ(valueAfter(Key::PageDown), -0.9f);
    EXPECT_EQ(valueAfter(Key::PageUp), 0.1f);
    EXPECT_EQ(valueAfter(Key::End), 12);
    EXPECT_EQ(valueAfter(Key::PageUp), 12);
    EXPECT_EQ(valueAfter(Key::Home), -12);
    EXPECT_EQ(valueAfter(Key::Left), -12);
    EXPECT_EQ(valueAfter(Key::Zero), 2);
}

TEST_F(AKeyOnASlider, DoesNothingWithoutANeutralValueToSet)
{
    slider->setSteps({ .small = 0.1, .large = 1 });
    slider->setValue(3);
    EXPECT_FALSE(window->keyPressed(Key::Zero, KeyStroke::First));
    EXPECT_EQ(slider->value(), 3);
}

TEST_F(AKeyOnASlider, MovesItToWholeSteps)
{
    slider->setValue(-1.95f);
    EXPECT_EQ(valueAfter(Key::Right), -1.9f);
    for (int i = 0; i < 38; ++i)
        valueAfter(Key::Right);
    EXPECT_EQ(slider->value(), 1.9f);
}

TEST_F(AKeyOnASlider, HoldsItUntilTheKeyIsReleased)
{
    press(Key::Right);
    EXPECT_THAT(log.take(), ElementsAre("down", "value", "drag inside"));
    hold(Key::Right);
    hold(Key::Right);
    EXPECT_THAT(log.take(), ElementsAre("value", "drag inside", "value", "drag inside"));
    EXPECT_EQ(slider->value(), 0.3f);
    release(Key::Right);
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
    release(Key::Right);
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(AKeyOnASlider, ContinuesTheHoldOfTheKeyBefore)
{
    press(Key::Right);
    press(Key::Up);
    release(Key::Right);
    EXPECT_THAT(log.take(), ElementsAre("down", "value", "drag inside", "value", "drag inside"));
    release(Key::Up);
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
}

TEST_F(AKeyOnASlider, EndsItsHoldWhenTheWindowLosesTheKeyboard)
{
    press(Key::Right);
    log.take();
    window->releaseKeys();
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
    hold(Key::Right);
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(AKeyOnASlider, EndsItsHoldWhenTheFocusMovesOn)
{
    press(Key::Right);
    log.take();
    press(Key::Tab);
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
    hold(Key::Right);
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(AKeyOnASlider, EndsItsHoldWhenTabComesBackToTheSlider)
{
    other->setHidden(true);
    press(Key::Right);
    log.take();
    press(Key::Tab);
    EXPECT_EQ(window->focus().view(), slider.get());
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
}

TEST_F(AKeyOnASlider, CancelsItsHoldWhenTheSliderLeavesTheWindow)
{
    press(Key::Right);
    log.take();
    slider->removeFromParent();
    window->layOutAll();
    EXPECT_FALSE(window->isTouched());
    EXPECT_THAT(log.take(), ElementsAre("cancel"));
}

TEST_F(AKeyOnASlider, EndsItsHoldWhenSomethingIsTouched)
{
    press(Key::Right);
    log.take();
    window->touchDown({ { 10, 210 }, Pointer::Mouse });
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
    hold(Key::Right);
    release(Key::Right);
    EXPECT_TRUE(window->isTouched());
    window->touchUp({ 10, 210 });
    EXPECT_TRUE(other->isOn());
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(AKeyOnASlider, HoldsItNoLongerWhenTheTouchIsCanceled)
{
    press(Key::Right);
    log.take();
    window->touchCancel();
    EXPECT_THAT(log.take(), ElementsAre("cancel"));
    hold(Key::Right);
    EXPECT_THAT(log.take(), IsEmpty());
    press(Key::Right);
    EXPECT_THAT(log.take(), ElementsAre("down", "value", "drag inside"));
    release(Key::Right);
    EXPECT_THAT(log.take(), ElementsAre("up inside"));
}

TEST_F(AKeyOnASlider, DoesNothingWhileTheSliderIsTouched)
{
    window->touchDown({ { 160, 72 }, Pointer::Mouse });
    log.take();
    press(Key::Right);
    release(Key::Right);
    EXPECT_THAT(log.take(), IsEmpty());
    EXPECT_EQ(slider->value(), 0);
}

TEST_F(AKeyOnASlider, DoesNotPressIt)
{
    press(Key::Space);
    press(Key::Return);
    EXPECT_THAT(log.take(), IsEmpty());
}

} // namespace

} // namespace brimsound::tests
