#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/SwitchPeer.h"
#include "platform/desktop/UIKit/Window.h"
#include "tests/platform/UIKit/Controls.h"
#include "tests/platform/UIKit/Geometry.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::Clock;
using desktop::Window;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class ASwitch : public testing::Test {
protected:
    ASwitch()
    {
        toggle->setFrame(CGRectMake(100, 100, 51, 31));
        window->addSubview(*toggle);
        log->listenTo(*toggle);
    }

    double knob() const { return static_cast<desktop::SwitchPeer&>(toggle->peer()).knob; }

    static constexpr CGPoint middle { 125, 115 };

    const RetainPtr<Window> window = make<Window>(CGSize { 320, 480 });
    const RetainPtr<UISwitch> toggle = make<UISwitch>();
    const RetainPtr<EventLog> log = make<EventLog>();
};

TEST_F(ASwitch, IsOffAtFirst)
{
    EXPECT_FALSE(make<UISwitch>()->isOn());
    EXPECT_EQ(make<UISwitch>()->bounds().size, (CGSize { 51, 31 }));
}

TEST_F(ASwitch, SendsNothingWhenItIsSetInCode)
{
    toggle->setOn(true, Animated::No);
    EXPECT_TRUE(toggle->isOn());
    toggle->setOn(false, Animated::Yes);
    EXPECT_FALSE(toggle->isOn());
    EXPECT_THAT(log->take(), IsEmpty());
}

TEST_F(ASwitch, FlipsAndSendsItsValueOnceOnATap)
{
    window->touchDown({ middle });
    EXPECT_FALSE(toggle->isOn());
    window->touchUp(middle);
    EXPECT_TRUE(toggle->isOn());
    EXPECT_THAT(log->take(), ElementsAre("down", "value", "up inside"));
    window->touchDown({ middle });
    window->touchUp(middle);
    EXPECT_FALSE(toggle->isOn());
    EXPECT_THAT(log->take(), ElementsAre("down", "value", "up inside"));
}

TEST_F(ASwitch, DoesNotFlipWhenTheFingerIsLiftedFarAwayOrTakenAway)
{
    window->touchDown({ middle });
    window->touchUp({ 125, 400 });
    EXPECT_FALSE(toggle->isOn());
    window->touchDown({ middle });
    window->touchCancel();
    EXPECT_FALSE(toggle->isOn());
    EXPECT_THAT(log->take(), Not(Contains("value")));
}

TEST_F(ASwitch, GoesOnWhenItIsDrawnToTheRightAndStaysWhenItIsLifted)
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
        log->take(), ElementsAre("down", "drag inside", "value", "drag inside", "drag inside", "up inside"));
}

TEST_F(ASwitch, GoesOffWhenItIsDrawnToTheLeft)
{
    toggle->setOn(true, Animated::No);
    window->touchDown({ middle });
    window->touchMove({ 110, 115 });
    EXPECT_FALSE(toggle->isOn());
    window->touchUp({ 110, 115 });
    EXPECT_FALSE(toggle->isOn());
}

TEST_F(ASwitch, StaysWhenItIsDrawnToTheSideWhereItIs)
{
    toggle->setOn(true, Animated::No);
    window->touchDown({ middle });
    window->touchMove({ 145, 115 });
    window->touchUp({ 145, 115 });
    EXPECT_TRUE(toggle->isOn());
    EXPECT_THAT(log->take(), Not(Contains("value")));
}

TEST_F(ASwitch, CanBeDrawnToAndFro)
{
    window->touchDown({ middle });
    window->touchMove({ 140, 115 });
    window->touchMove({ 120, 115 });
    window->touchUp({ 120, 115 });
    EXPECT_FALSE(toggle->isOn());
    EXPECT_EQ(std::ranges::count(log->take(), "value"), 2);
}

TEST_F(ASwitch, ShowsItsNewSideAtOnceWithoutAMovement)
{
    toggle->setOn(true, Animated::No);
    EXPECT_EQ(knob(), 1);
}

TEST_F(ASwitch, SlidesItsKnobOverInAFifthOfASecond)
{
    toggle->setOn(true, Animated::Yes);
    EXPECT_EQ(knob(), 0);
    Clock::shared().advance(0.1);
    EXPECT_GT(knob(), 0.3);
    EXPECT_LT(knob(), 0.95);
    Clock::shared().advance(0.11);
    EXPECT_EQ(knob(), 1);
}

TEST_F(ASwitch, SlidesBackFromWhereItsKnobStands)
{
    toggle->setOn(true, Animated::Yes);
    Clock::shared().advance(0.05);
    const double before = knob();
    toggle->setOn(false, Animated::Yes);
    Clock::shared().advance(1.0 / 60);
    EXPECT_LT(knob(), before);
    EXPECT_GT(knob(), before / 2);
    Clock::shared().advance(1);
    EXPECT_EQ(knob(), 0);
}

TEST_F(ASwitch, EndsItsSlideWhenItIsSetWithoutAMovement)
{
    toggle->setOn(true, Animated::Yes);
    Clock::shared().advance(0.05);
    toggle->setOn(true, Animated::No);
    EXPECT_EQ(knob(), 1);
    Clock::shared().advance(0.02);
    EXPECT_EQ(knob(), 1);
}

TEST_F(ASwitch, IsNotKeptAliveByItsSlideForLongerThanItTakes)
{
    auto other = make<UISwitch>();
    other->setOn(true, Animated::Yes);
    EXPECT_GT(other->retainCount(), 1u);
    Clock::shared().advance(1);
    EXPECT_EQ(other->retainCount(), 1u);
}

} // namespace

} // namespace brimsound::tests
