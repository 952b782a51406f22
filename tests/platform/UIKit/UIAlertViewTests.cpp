#include "platform/desktop/UIKit/AlertPeer.h"
#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/Window.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace brimsound::tests {

namespace {

using desktop::Clock;
using desktop::Key;
using desktop::Pointer;
using testing::ElementsAre;
using testing::IsEmpty;

/// Writes down which alert was answered with which button.
class Answers : public UIAlertViewDelegate {
public:
    void alertViewClickedButtonAtIndex(UIAlertView& alert, long buttonIndex) override
    {
        heard.push_back(desktop::peerOf(alert).message + " " + std::to_string(buttonIndex));
    }

    std::vector<std::string> heard;
};

class AnAlert : public testing::Test {
protected:
    ~AnAlert() override
    {
        window->alerts().dismissAll();
        Clock::shared().advance(2);
    }

    void show(const std::string& message)
    {
        make<UIAlertView>("", message, &answers, "No", std::vector<std::string> { "Yes" })->show();
        window->layOut();
    }
    UIAlertView* shown() const { return window->alerts().current(); }
    desktop::TextButton& button(std::size_t index) const { return *desktop::peerOf(*shown()).buttons[index]; }
    static CGPoint middleOf(const UIView& view)
    {
        const auto size = view.bounds().size;
        return desktop::convertToWindow({ size.width / 2, size.height / 2 }, view);
    }
    void tap(CGPoint place) const
    {
        window->touchDown({ place, Pointer::Finger });
        window->touchUp(place);
    }

    Answers answers;
    RetainPtr<desktop::Window> window = make<desktop::Window>(CGSize { 320, 568 });
};

TEST_F(AnAlert, StandsInTheMiddleOverTheDimmedWindow)
{
    show("Really?");
    const auto frame = shown()->frame();
    EXPECT_EQ(frame.size.width, 270);
    EXPECT_NEAR(frame.origin.x + frame.size.width / 2, 160, 0.51);
    EXPECT_NEAR(frame.origin.y + frame.size.height / 2, 284, 0.51);
    const auto* overlay = window->subviews().back().get();
    EXPECT_EQ(overlay->frame(), window->bounds());
    EXPECT_EQ(desktop::colorOf(overlay->backgroundColor()), (desktop::Color { 0, 0, 0, 0.4 }));
    EXPECT_LT(overlay->alpha(), 1);
    Clock::shared().advance(1);
    EXPECT_EQ(overlay->alpha(), 1);
}

TEST_F(AnAlert, FitsAWindowOf200Points)
{
    window->setFrame(CGRectMake(0, 0, 200, 200));
    show("In order to remove the equalizer from the control center, you will need to respring.");
    const auto frame = shown()->frame();
    EXPECT_TRUE(desktop::contains(window->bounds(), frame));
    EXPECT_EQ(frame.size.width, 184);
    const auto message = desktop::peerOf(*shown()).messageRect(frame.size.width);
    EXPECT_LE(message.origin.y + message.size.height, button(0).frame().origin.y);
    tap(middleOf(button(1)));
    EXPECT_THAT(answers.heard, testing::SizeIs(1));
}

TEST_F(AnAlert, KeepsItsButtonsOnViewInALowerWindow)
{
    window->setFrame(CGRectMake(0, 0, 200, 120));
    show(std::string(400, 'x') + " " + std::string(400, 'y'));
    EXPECT_EQ(shown()->frame().size.height, 120);
    tap(middleOf(button(0)));
    EXPECT_THAT(answers.heard, testing::SizeIs(1));
}

TEST_F(AnAlert, FollowsItsWindow)
{
    show("Really?");
    window->setFrame(CGRectMake(0, 0, 200, 300));
    for (const auto& overlay : window->subviews())
        overlay->setFrame(window->bounds());
    window->layOut();
    EXPECT_EQ(shown()->frame().size.width, 184);
}

TEST_F(AnAlert, IsAnsweredByATapOnAButton)
{
    show("Really?");
    tap(middleOf(button(1)));
    EXPECT_THAT(answers.heard, ElementsAre("Really? 1"));
    EXPECT_EQ(shown(), nullptr);
}

TEST_F(AnAlert, IsNotAnsweredByATapBeside)
{
    show("Really?");
    tap({ 5, 5 });
    tap(middleOf(*shown()));
    EXPECT_THAT(answers.heard, IsEmpty());
    EXPECT_TRUE(shown());
}

TEST_F(AnAlert, IsNotAnsweredByATouchThatLeavesTheButton)
{
    show("Really?");
    window->touchDown({ middleOf(button(1)), Pointer::Finger });
    window->touchUp(middleOf(button(0)));
    EXPECT_THAT(answers.heard, IsEmpty());
}

TEST_F(AnAlert, IsAnsweredOnceHoweverOftenItIsPressedOnItsWayOut)
{
    show("Really?");
    const auto yes = retain(&button(1));
    yes->press();
    yes->press();
    EXPECT_THAT(answers.heard, ElementsAre("Really? 1"));
    Clock::shared().advance(1);
    EXPECT_THAT(window->subviews(), IsEmpty());
}

TEST_F(AnAlert, WaitsForTheOneBefore)
{
    show("First");
    show("Second");
    EXPECT_EQ(window->subviews().size(), 1u);
    button(0).press();
    button(1).press();
    EXPECT_THAT(answers.heard, ElementsAre("First 0", "Second 1"));
    EXPECT_EQ(shown(), nullptr);
}

TEST_F(AnAlert, TakesReturnForTheCancelButtonUntilTabHandedTheKeyboardOn)
{
    show("First");
    EXPECT_TRUE(window->keyPressed(Key::Return));
    show("Second");
    window->keyPressed(Key::Tab);
    EXPECT_EQ(window->focus().view(), &button(1));
    window->keyPressed(Key::Return);
    show("Third");
    window->keyPressed(Key::Tab);
    window->keyPressed(Key::Backtab);
    EXPECT_EQ(window->focus().view(), &button(0));
    window->keyPressed(Key::Space);
    EXPECT_THAT(answers.heard, ElementsAre("First 0", "Second 1", "Third 0"));
}

TEST_F(AnAlert, TakesEscapeForTheCancelButtonWhereverTheKeyboardIs)
{
    show("Really?");
    window->keyPressed(Key::Tab);
    window->keyPressed(Key::Escape);
    EXPECT_THAT(answers.heard, ElementsAre("Really? 0"));
}

TEST_F(AnAlert, LeavesTheKeysAloneWhenNoneIsShown)
{
    EXPECT_FALSE(window->keyPressed(Key::Return));
}

TEST_F(AnAlert, IsForgottenUnanswered)
{
    show("First");
    show("Second");
    window->alerts().dismissAll();
    EXPECT_EQ(shown(), nullptr);
    EXPECT_THAT(answers.heard, IsEmpty());
}

TEST_F(AnAlert, WithManyButtonsPutsThemOneBelowTheOther)
{
    make<UIAlertView>("Title", "Which?", &answers, "None", std::vector<std::string> { "A", "B" })->show();
    window->layOut();
    const auto y = [&](std::size_t index) { return button(index).frame().origin.y; };
    EXPECT_LT(y(1), y(2));
    EXPECT_LT(y(2), y(0));
    EXPECT_EQ(button(0).frame().size.width, 270);
}

} // namespace

} // namespace brimsound::tests
