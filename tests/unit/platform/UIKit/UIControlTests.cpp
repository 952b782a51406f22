#include "platform/UIKit/UIControl.h"

#include "platform/UIKit/UIButton.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "toolkit/control/Control.h"

#include <gmock/gmock.h>

#include <array>
#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::ControlEvent;

/// Every event of a toolkit control and the platform's number for it.
constexpr std::array<std::pair<ControlEvent, UIControlEvents>, 9> events { {
    { ControlEvent::TouchDown, UIControlEventTouchDown },
    { ControlEvent::DragInside, UIControlEventTouchDragInside },
    { ControlEvent::DragOutside, UIControlEventTouchDragOutside },
    { ControlEvent::DragEnter, UIControlEventTouchDragEnter },
    { ControlEvent::DragExit, UIControlEventTouchDragExit },
    { ControlEvent::TouchUpInside, UIControlEventTouchUpInside },
    { ControlEvent::TouchUpOutside, UIControlEventTouchUpOutside },
    { ControlEvent::TouchCancel, UIControlEventTouchCancel },
    { ControlEvent::ValueChanged, UIControlEventValueChanged },
} };

/// Calls a function when a control calls it.
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
    const RetainPtr<UIButton> button = make<UIButton>(CGRectMake(0, 0, 50, 50));
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

TEST_F(AControlsTargets, AreCalledAfterOneThatDoesNotKnowItsAction)
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

TEST_F(AControlsTargets, GetEveryEventOfTheNativeControl)
{
    for (const auto& [event, number] : events) {
        const auto reaction = make<Reaction>();
        int received = 0;
        reaction->action = [&](UIControl&) { ++received; };
        const auto control = make<UIButton>(CGRectMake(0, 0, 50, 50));
        control->addTargetActionForControlEvents(*reaction, "react:", number);
        const auto& native = desktop::nativeOf<toolkit::Control>(*control);
        for (const auto& [sent, sentNumber] : events) {
            native.onEvent(sent);
            EXPECT_EQ(std::exchange(received, 0), sent == event ? 1 : 0) << number << ", " << sentNumber;
        }
    }
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

TEST_F(AControlsTargets, MayReleaseTheControl)
{
    const auto reaction = make<Reaction>();
    auto closing = make<UIButton>(CGRectMake(0, 0, 50, 50));
    std::size_t count = 0;
    reaction->action = [&](UIControl& control) {
        closing = nullptr;
        count = control.retainCount();
    };
    closing->addTargetActionForControlEvents(*reaction, "react:", UIControlEventTouchDown);
    closing->addTargetActionForControlEvents(*a, "first:", UIControlEventTouchDown);
    closing->sendActionsForControlEvents(UIControlEventTouchDown);
    EXPECT_EQ(count, 1u);
    EXPECT_THAT(calls, ElementsAre("a first"));
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
