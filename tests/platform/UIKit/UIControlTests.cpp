#include "platform/desktop/UIKit/Window.h"
#include "tests/platform/UIKit/Controls.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::Window;
using testing::ElementsAre;
using testing::IsEmpty;

class ATouchOnAButton : public testing::Test {
protected:
    ATouchOnAButton()
    {
        window->addSubview(*button);
        log->listenTo(*button);
    }

    static constexpr CGPoint inside { 210, 210 };

    const RetainPtr<Window> window = make<Window>(CGSize { 500, 500 });
    const RetainPtr<Button> button = make<Button>(CGRectMake(200, 200, 50, 40));
    const RetainPtr<EventLog> log = make<EventLog>();
};

TEST_F(ATouchOnAButton, SendsDownThenUpInside)
{
    window->touchDown({ inside });
    EXPECT_THAT(log->take(), ElementsAre("down"));
    EXPECT_TRUE(window->isTouched());
    window->touchUp(inside);
    EXPECT_THAT(log->take(), ElementsAre("up inside"));
    EXPECT_FALSE(window->isTouched());
}

TEST_F(ATouchOnAButton, SendsADragForEveryMove)
{
    window->touchDown({ inside });
    window->touchMove({ 220, 210 });
    window->touchMove({ 230, 210 });
    EXPECT_THAT(log->take(), ElementsAre("down", "drag inside", "drag inside"));
}

TEST_F(ATouchOnAButton, SendsAnExitOnLeavingAndAnEnterOnComingBack)
{
    window->touchDown({ inside });
    log->take();
    window->touchMove({ 210, 400 });
    EXPECT_THAT(log->take(), ElementsAre("exit", "drag outside"));
    window->touchMove({ 210, 410 });
    EXPECT_THAT(log->take(), ElementsAre("drag outside"));
    window->touchMove(inside);
    EXPECT_THAT(log->take(), ElementsAre("enter", "drag inside"));
}

TEST_F(ATouchOnAButton, CountsAsInsideUpToSeventyPointsAround)
{
    window->touchDown({ inside });
    for (const auto& point : { CGPoint { 130, 220 }, { 319.5, 220 }, { 220, 130 }, { 220, 309.5 } }) {
        log->take();
        window->touchMove(point);
        EXPECT_THAT(log->take(), ElementsAre("drag inside")) << point.x << ", " << point.y;
    }
    for (const auto& point : { CGPoint { 129.5, 220 }, { 320, 220 }, { 220, 129.5 }, { 220, 310 } }) {
        window->touchMove(inside);
        log->take();
        window->touchMove(point);
        EXPECT_THAT(log->take(), ElementsAre("exit", "drag outside")) << point.x << ", " << point.y;
    }
}

TEST_F(ATouchOnAButton, EndsInsideOrOutsideByWhereItIsLifted)
{
    window->touchDown({ inside });
    window->touchUp({ 300, 290 });
    EXPECT_THAT(log->take(), ElementsAre("down", "up inside"));
    window->touchDown({ inside });
    window->touchUp({ 400, 210 });
    EXPECT_THAT(log->take(), ElementsAre("down", "up outside"));
}

TEST_F(ATouchOnAButton, SendsCancelAndNothingAfterwards)
{
    window->touchDown({ inside });
    window->touchCancel();
    window->touchMove({ 220, 210 });
    window->touchUp(inside);
    EXPECT_THAT(log->take(), ElementsAre("down", "cancel"));
}

TEST_F(ATouchOnAButton, StaysWithItWhereverItGoes)
{
    const auto other = make<Button>(CGRectMake(0, 0, 50, 50));
    window->addSubview(*other);
    const auto otherLog = make<EventLog>();
    otherLog->listenTo(*other);
    window->touchDown({ inside });
    window->touchMove({ 10, 10 });
    window->touchUp({ 10, 10 });
    EXPECT_THAT(log->take(), ElementsAre("down", "exit", "drag outside", "up outside"));
    EXPECT_THAT(otherLog->take(), IsEmpty());
}

TEST_F(ATouchOnAButton, ReachesItThroughASubviewThatTakesNoTouches)
{
    button->addSubview(*make<UIView>(CGRectMake(0, 0, 50, 40)));
    window->touchDown({ inside });
    EXPECT_THAT(log->take(), ElementsAre("down"));
}

TEST_F(ATouchOnAButton, IsNotDisturbedByASecondOne)
{
    const auto other = make<Button>(CGRectMake(0, 0, 50, 50));
    window->addSubview(*other);
    const auto otherLog = make<EventLog>();
    otherLog->listenTo(*other);
    window->touchDown({ inside });
    window->touchDown({ { 10, 10 } });
    window->touchUp(inside);
    EXPECT_THAT(log->take(), ElementsAre("down", "up inside"));
    EXPECT_THAT(otherLog->take(), IsEmpty());
}

TEST_F(ATouchOnAButton, IsIgnoredWhereNothingTakesIt)
{
    window->touchDown({ { 10, 10 } });
    EXPECT_FALSE(window->isTouched());
    window->touchMove(inside);
    window->touchUp(inside);
    window->touchCancel();
    EXPECT_THAT(log->take(), IsEmpty());
}

/// Does something when a control calls it.
class Reaction : public NSObject {
public:
    std::function<void(UIControl&)> action;

    std::span<const Method> methods() const override
    {
        static const std::array table { method<&Reaction::react>("react:") };
        return table;
    }

private:
    void react(UIControl& sender) { action(sender); }
};

TEST_F(ATouchOnAButton, EndsWithTheCancelWhenAnActionTakesItAway)
{
    const auto reaction = make<Reaction>();
    reaction->action = [&](UIControl&) { window->touchCancel(); };
    for (const auto event :
        { UIControlEventTouchDown, UIControlEventTouchDragExit, UIControlEventTouchUpInside }) {
        const auto closing = make<Button>(CGRectMake(0, 0, 50, 50));
        window->addSubview(*closing);
        log->listenTo(*closing);
        closing->addTargetActionForControlEvents(*reaction, "react:", event);
        window->touchDown({ { 10, 10 } });
        window->touchMove({ 10, 400 });
        window->touchMove({ 10, 10 });
        window->touchUp({ 10, 10 });
        const auto events = log->take();
        EXPECT_EQ(events.back(), event == UIControlEventTouchUpInside ? "up inside" : "cancel");
        EXPECT_FALSE(window->isTouched());
        closing->removeFromSuperview();
    }
}

TEST_F(ATouchOnAButton, KeepsItAliveWhenAnActionRemovesIt)
{
    const auto reaction = make<Reaction>();
    reaction->action = [&](UIControl& sender) {
        sender.removeFromSuperview();
        window->touchCancel();
    };
    for (const auto event : { UIControlEventTouchDown, UIControlEventTouchDragInside,
             UIControlEventTouchDragExit, UIControlEventTouchUpInside }) {
        auto closing = make<Button>(CGRectMake(0, 0, 50, 50));
        closing->addTargetActionForControlEvents(*reaction, "react:", event);
        window->addSubview(*closing);
        closing = nullptr;
        window->touchDown({ { 10, 10 } });
        window->touchMove({ 12, 12 });
        window->touchMove({ 10, 400 });
        window->touchMove({ 10, 10 });
        window->touchUp({ 10, 10 });
        EXPECT_FALSE(window->isTouched());
        EXPECT_EQ(window->subviews().size(), 1u);
    }
}

/// Writes the names of its methods down as they are called, on a list that it shares.
class Caller : public NSObject {
public:
    Caller(std::string name, std::vector<std::string>& calls)
        : _name(std::move(name))
        , _calls(calls)
    {
    }

    std::span<const Method> methods() const override
    {
        static const std::array table { method<&Caller::first>("first:"),
            method<&Caller::second>("second:") };
        return table;
    }

private:
    void first(UIControl&) { _calls.push_back(_name + " first"); }
    void second(UIControl&) { _calls.push_back(_name + " second"); }

    std::string _name;
    std::vector<std::string>& _calls;
};

class AControlsTargets : public testing::Test {
protected:
    const RetainPtr<Button> button = make<Button>(CGRectMake(0, 0, 50, 50));
    std::vector<std::string> calls;
    const RetainPtr<Caller> a = make<Caller>("a", calls);
    const RetainPtr<Caller> b = make<Caller>("b", calls);
};

TEST_F(AControlsTargets, AreCalledInTheOrderInWhichTheyWereAdded)
{
    button->addTargetActionForControlEvents(*b, "second:", UIControlEventTouchDown);
    button->addTargetActionForControlEvents(*a, "first:", UIControlEventTouchDown);
    button->addTargetActionForControlEvents(*b, "first:", UIControlEventTouchDown);
    button->sendActionsForControlEvents(UIControlEventTouchDown);
    EXPECT_THAT(calls, ElementsAre("b second", "a first", "b first"));
}

TEST_F(AControlsTargets, AreCalledOnTheirOwnEventsOnly)
{
    button->addTargetActionForControlEvents(
        *a, "first:", UIControlEventTouchDown | UIControlEventTouchCancel);
    button->sendActionsForControlEvents(UIControlEventTouchUpInside | UIControlEventValueChanged);
    EXPECT_THAT(calls, IsEmpty());
    button->sendActionsForControlEvents(UIControlEventTouchCancel);
    EXPECT_THAT(calls, ElementsAre("a first"));
}

TEST_F(AControlsTargets, AreCalledOnceWhenSeveralOfTheirEventsHappenTogether)
{
    button->addTargetActionForControlEvents(
        *a, "first:", UIControlEventTouchDown | UIControlEventTouchCancel);
    button->sendActionsForControlEvents(UIControlEventTouchDown | UIControlEventTouchCancel);
    EXPECT_THAT(calls, ElementsAre("a first"));
}

TEST_F(AControlsTargets, GetFurtherEventsWhenTheyAreAddedAgain)
{
    button->addTargetActionForControlEvents(*a, "first:", UIControlEventTouchDown);
    button->addTargetActionForControlEvents(*b, "first:", UIControlEventTouchDown);
    button->addTargetActionForControlEvents(*a, "first:", UIControlEventTouchCancel);
    button->sendActionsForControlEvents(UIControlEventTouchDown);
    EXPECT_THAT(calls, ElementsAre("a first", "b first"));
    calls.clear();
    button->sendActionsForControlEvents(UIControlEventTouchCancel);
    EXPECT_THAT(calls, ElementsAre("a first"));
}

TEST_F(AControlsTargets, AreNotTroubledByAnActionThatTheyDoNotAnswer)
{
    button->addTargetActionForControlEvents(*a, "third:", UIControlEventTouchDown);
    button->addTargetActionForControlEvents(*b, "first:", UIControlEventTouchDown);
    button->sendActionsForControlEvents(UIControlEventTouchDown);
    EXPECT_THAT(calls, ElementsAre("b first"));
}

TEST_F(AControlsTargets, AreNotRetained)
{
    button->addTargetActionForControlEvents(*a, "first:", UIControlEventTouchDown);
    EXPECT_EQ(a->retainCount(), 1u);
}

TEST_F(AControlsTargets, GetTheControlAsTheSender)
{
    const auto reaction = make<Reaction>();
    UIControl* sender = nullptr;
    reaction->action = [&](UIControl& control) { sender = &control; };
    button->addTargetActionForControlEvents(*reaction, "react:", UIControlEventTouchDown);
    button->sendActionsForControlEvents(UIControlEventTouchDown);
    EXPECT_EQ(sender, button.get());
}

TEST_F(AControlsTargets, CanAddTargetsWhileTheyAreCalled)
{
    const auto reaction = make<Reaction>();
    reaction->action = [&](UIControl& control) {
        for (const auto* action : { "first:", "second:" })
            control.addTargetActionForControlEvents(*a, action, UIControlEventTouchDown);
    };
    button->addTargetActionForControlEvents(*reaction, "react:", UIControlEventTouchDown);
    button->sendActionsForControlEvents(UIControlEventTouchDown);
    EXPECT_THAT(calls, ElementsAre("a first", "a second"));
}

} // namespace

} // namespace brimsound::tests
