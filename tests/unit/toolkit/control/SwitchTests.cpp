#include "tests/unit/toolkit/EventLog.h"
#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/control/KnobFinder.h"
#include "toolkit/control/Switch.h"
#include "toolkit/time/Clock.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace brimsound::tests {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using toolkit::Clock;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Point;
using toolkit::Ref;
using toolkit::Switch;
using toolkit::Window;

class ASwitch : public testing::Test {
protected:
    ASwitch()
    {
        toggle->setFrame(makeRect(100, 100, 51, 31));
        window->add(*toggle);
        log.listenTo(*toggle);
    }

    /// The position of the drawn knob: 0 for off, 1 for on.
    double knob() const
    {
        const auto disc = knobOf(*toggle);
        const double margin = disc.top();
        return (disc.left() - margin) / (51 - 2 * margin - disc.size.width);
    }

    static constexpr Point middle { 125, 115 };

    EventLog log;
    const Ref<Window> window = make<Window>(toolkit::Size { 320, 480 });
    const Ref<Switch> toggle = make<Switch>();
};

TEST_F(ASwitch, IsOffAtFirst)
{
    EXPECT_FALSE(make<Switch>()->isOn());
    EXPECT_EQ(make<Switch>()->bounds().size, (toolkit::Size { 51, 31 }));
    EXPECT_EQ(knob(), 0);
}

TEST_F(ASwitch, SendsNothingWhenItIsSetInCode)
{
    toggle->setOn(true, false);
    EXPECT_TRUE(toggle->isOn());
    toggle->setOn(false, true);
    EXPECT_FALSE(toggle->isOn());
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(ASwitch, FlipsAndSendsItsValueOnceOnATap)
{
    window->touchDown({ middle });
    EXPECT_FALSE(toggle->isOn());
    window->touchUp(middle);
    EXPECT_TRUE(toggle->isOn());
    EXPECT_THAT(log.take(), ElementsAre("down", "value", "up inside"));
    window->touchDown({ middle });
    window->touchUp(middle);
    EXPECT_FALSE(toggle->isOn());
    EXPECT_THAT(log.take(), ElementsAre("down", "value", "up inside"));
}

TEST_F(ASwitch, FlipsWhenItIsPressedAndNotWhenItIsReleasedOutside)
{
    toggle->begin();
    toggle->commit(Switch::Side::Outside);
    EXPECT_FALSE(toggle->isOn());
    EXPECT_THAT(log.take(), ElementsAre("down", "up outside"));
    EXPECT_TRUE(toggle->press());
    EXPECT_TRUE(toggle->isOn());
    EXPECT_THAT(log.take(), ElementsAre("down", "value", "up inside"));
}

TEST_F(ASwitch, DoesNotFlipWhenTheTouchEndsFarAwayOrIsCanceled)
{
    window->touchDown({ middle });
    window->touchUp({ 125, 400 });
    EXPECT_FALSE(toggle->isOn());
    window->touchDown({ middle });
    window->touchCancel();
    EXPECT_FALSE(toggle->isOn());
    EXPECT_THAT(log.take(), Not(Contains("value")));
}

TEST_F(ASwitch, TurnsOnWhenItIsDraggedToTheRightAndStaysOnWhenTheTouchEnds)
{
    window->touchDown({ middle });
    window->touchMove({ 134, 115 });
    EXPECT_FALSE(toggle->isOn());
    window->touchMove({ 135, 115 });
    EXPECT_TRUE(toggle->isOn());
    window->touchMove({ 160, 115 });
    window->touchUp({ 160, 115 });
    EXPECT_TRUE(toggle->isOn());
    EXPECT_THAT(
        log.take(), ElementsAre("down", "drag inside", "value", "drag inside", "drag inside", "up inside"));
}

TEST_F(ASwitch, TurnsOffWhenItIsDraggedToTheLeft)
{
    toggle->setOn(true, false);
    window->touchDown({ middle });
    window->touchMove({ 110, 115 });
    EXPECT_FALSE(toggle->isOn());
    window->touchUp({ 110, 115 });
    EXPECT_FALSE(toggle->isOn());
}

TEST_F(ASwitch, StaysWhenItIsDraggedToTheSideWhereItIs)
{
    toggle->setOn(true, false);
    window->touchDown({ middle });
    window->touchMove({ 145, 115 });
    window->touchUp({ 145, 115 });
    EXPECT_TRUE(toggle->isOn());
    EXPECT_THAT(log.take(), Not(Contains("value")));
}

TEST_F(ASwitch, CanBeDraggedBothWaysInOneTouch)
{
    window->touchDown({ middle });
    window->touchMove({ 140, 115 });
    window->touchMove({ 120, 115 });
    window->touchUp({ 120, 115 });
    EXPECT_FALSE(toggle->isOn());
    const auto events = log.take();
    EXPECT_EQ(std::ranges::count(events, "value"), 2);
}

TEST_F(ASwitch, FlipsOnATapAfterItWasDragged)
{
    window->touchDown({ middle });
    window->touchMove({ 140, 115 });
    window->touchUp({ 400, 115 });
    ASSERT_TRUE(toggle->isOn());
    window->touchDown({ middle });
    window->touchUp(middle);
    EXPECT_FALSE(toggle->isOn());
}

TEST_F(ASwitch, ShowsItsNewSideAtOnceWithoutAnAnimation)
{
    toggle->setOn(true, false);
    EXPECT_EQ(knob(), 1);
}

TEST_F(ASwitch, SlidesItsKnobOverInAFifthOfASecond)
{
    toggle->setOn(true, true);
    EXPECT_EQ(knob(), 0);
    Clock::shared().advance(0.1);
    EXPECT_GT(knob(), 0.3);
    EXPECT_LT(knob(), 0.95);
    Clock::shared().advance(0.11);
    EXPECT_EQ(knob(), 1);
}

TEST_F(ASwitch, SlidesBackFromWhereItsKnobStands)
{
    toggle->setOn(true, true);
    Clock::shared().advance(0.05);
    const double before = knob();
    toggle->setOn(false, true);
    Clock::shared().advance(1.0 / 60);
    EXPECT_LT(knob(), before);
    EXPECT_GT(knob(), before / 2);
    Clock::shared().advance(1);
    EXPECT_EQ(knob(), 0);
}

TEST_F(ASwitch, EndsItsSlideWhenItIsSetWithoutAnAnimation)
{
    toggle->setOn(true, true);
    Clock::shared().advance(0.05);
    toggle->setOn(true, false);
    EXPECT_EQ(knob(), 1);
    Clock::shared().advance(0.02);
    EXPECT_EQ(knob(), 1);
}

TEST_F(ASwitch, IsNotKeptAliveByItsSlide)
{
    auto other = make<Switch>();
    bool isDestroyed = false;
    other->onDestroyed = [&] { isDestroyed = true; };
    other->setOn(true, true);
    Clock::shared().advance(0.05);
    other = nullptr;
    EXPECT_TRUE(isDestroyed);
    Clock::shared().advance(1);
    EXPECT_FALSE(Clock::shared().isAnimating());
}

TEST_F(ASwitch, IsReadWithItsStateAndTellsWhenThatChanges)
{
    int changes = 0;
    window->onAccessibleChange = [&](toolkit::View& view, toolkit::AccessibleChange change) {
        changes += &view == toggle.get() && change == toolkit::AccessibleChange::StateChanged ? 1 : 0;
    };
    toggle->setLabel("Enabled");
    EXPECT_EQ(toggle->accessible().role, toolkit::Role::Switch);
    EXPECT_EQ(toggle->accessible().name, "Enabled");
    EXPECT_FALSE(toggle->accessible().checked);
    toggle->setOn(true, true);
    EXPECT_TRUE(toggle->accessible().checked);
    EXPECT_EQ(changes, 1);
    toggle->setOn(true, false);
    EXPECT_EQ(changes, 1);
}

} // namespace

} // namespace brimsound::tests
