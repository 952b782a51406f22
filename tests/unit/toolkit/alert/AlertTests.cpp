#include "tests/unit/toolkit/BlankCanvas.h"
#include "tests/unit/toolkit/Geometry.h"
#include "toolkit/alert/Alert.h"
#include "toolkit/time/Clock.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using toolkit::AccessibleChange;
using toolkit::Alert;
using toolkit::Clock;
using toolkit::Color;
using toolkit::keep;
using toolkit::Key;
using toolkit::KeyStroke;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Point;
using toolkit::Pointer;
using toolkit::Rect;
using toolkit::Ref;
using toolkit::View;
using toolkit::Window;

/// Records where an alert draws its paragraphs and how they are clipped.
class Look : public BlankCanvas {
public:
    explicit Look(const Alert& alert) { alert.draw(*this); }

    void clip(const Rect& rect) override { visible = rect; }
    void drawParagraph(const std::string& text, const Rect& rect, const toolkit::Font&, const Color&,
        toolkit::Alignment) override
    {
        texts.push_back(text);
        places.push_back(rect);
    }

    Rect visible;
    std::vector<std::string> texts;
    std::vector<Rect> places;
};

/// Alerts in a window. Records which of them appeared, and the indexes of the buttons that answered them.
class AnAlert : public testing::Test {
protected:
    ~AnAlert() override
    {
        window->alerts().dismissAll();
        Clock::shared().advance(2);
    }

    void show(const std::string& message, const std::vector<std::string>& buttons = { "No", "Yes" })
    {
        const auto alert = make<Alert>("", message, buttons);
        alert->onShown = [this, message] { appeared.push_back(message); };
        alert->onAnswer = [this, message](std::size_t button) {
            answers.push_back(message + " " + std::to_string(button));
        };
        window->alerts().add(*alert);
        window->layOutAll();
    }

    Alert* shown() const { return window->alerts().current(); }
    toolkit::TextButton& button(std::size_t index) const { return *shown()->buttons()[index]; }
    static Point middleOf(const View& view) { return view.toWindow(view.bounds().middle()); }
    void tap(Point place) const
    {
        window->touchDown({ place, Pointer::Finger });
        window->touchUp(place);
    }
    bool press(Key key) const { return window->keyPressed(key, KeyStroke::First); }

    std::vector<std::string> appeared;
    std::vector<std::string> answers;
    const Ref<Window> window = make<Window>(toolkit::Size { 320, 568 });
};

TEST_F(AnAlert, AppearsInTheMiddleOfTheDimmedWindow)
{
    show("Really?");
    const auto frame = shown()->frame();
    EXPECT_EQ(frame.size.width, 270);
    EXPECT_NEAR(frame.middle().x, 160, 0.51);
    EXPECT_NEAR(frame.middle().y, 284, 0.51);
    const auto& overlay = *window->children().back();
    EXPECT_EQ(overlay.frame(), window->bounds());
    EXPECT_EQ(overlay.background(), (Color { 0, 0, 0, 0.4 }));
    EXPECT_LT(overlay.alpha(), 1);
    Clock::shared().advance(1);
    EXPECT_EQ(overlay.alpha(), 1);
}

TEST_F(AnAlert, FitsAWindowOf200Points)
{
    window->setFrame(makeRect(0, 0, 200, 200));
    show("In order to remove the equalizer from the control center, you will need to respring.");
    const auto frame = shown()->frame();
    EXPECT_TRUE(contains(window->bounds(), frame));
    EXPECT_EQ(frame.size.width, 184);
    ASSERT_THAT(Look(*shown()).places, SizeIs(1));
    EXPECT_LE(Look(*shown()).places[0].bottom(), button(0).frame().top());
    tap(middleOf(button(1)));
    EXPECT_THAT(answers, SizeIs(1));
}

TEST_F(AnAlert, KeepsItsButtonsVisibleInALowWindow)
{
    window->setFrame(makeRect(0, 0, 200, 120));
    show(std::string(400, 'x') + " " + std::string(400, 'y'));
    EXPECT_EQ(shown()->frame().size.height, 120);
    EXPECT_EQ(Look(*shown()).visible.bottom(), button(0).frame().top()) << "the text is cut off above them";
    tap(middleOf(button(0)));
    EXPECT_THAT(answers, SizeIs(1));
}

TEST_F(AnAlert, FollowsTheSizeOfItsWindow)
{
    show("Really?");
    window->setFrame(makeRect(0, 0, 200, 300));
    for (const auto& overlay : window->children())
        overlay->setFrame(window->bounds());
    window->layOutAll();
    EXPECT_EQ(shown()->frame().size.width, 184);
}

TEST_F(AnAlert, IsAnsweredByATapOnAButton)
{
    show("Really?");
    tap(middleOf(button(1)));
    EXPECT_THAT(answers, ElementsAre("Really? 1"));
    EXPECT_EQ(shown(), nullptr);
}

TEST_F(AnAlert, IsNotAnsweredByATapBesideItsButtons)
{
    show("Really?");
    tap({ 5, 5 });
    tap(middleOf(*shown()));
    EXPECT_THAT(answers, IsEmpty());
    EXPECT_TRUE(shown());
}

TEST_F(AnAlert, IsNotAnsweredByATouchThatLeavesTheButton)
{
    show("Really?");
    window->touchDown({ middleOf(button(1)), Pointer::Finger });
    window->touchUp(middleOf(button(0)));
    EXPECT_THAT(answers, IsEmpty());
}

TEST_F(AnAlert, IsAnsweredOnceWhenItsButtonIsPressedAgainWhileItFades)
{
    show("Really?");
    const auto yes = keep(&button(1));
    EXPECT_TRUE(yes->press());
    EXPECT_FALSE(yes->press());
    EXPECT_THAT(answers, ElementsAre("Really? 1"));
    Clock::shared().advance(1);
    EXPECT_THAT(window->children(), IsEmpty());
}

TEST_F(AnAlert, IsNotAnsweredByAButtonThatIsReleasedAfterItWasDismissed)
{
    show("Really?");
    const auto yes = keep(&button(1));
    yes->begin();
    window->alerts().dismissCurrent();
    yes->commit();
    EXPECT_THAT(answers, IsEmpty());
}

TEST_F(AnAlert, WaitsForTheOneBefore)
{
    show("First");
    show("Second");
    EXPECT_EQ(window->children().size(), 1u);
    EXPECT_THAT(appeared, ElementsAre("First"));
    button(0).press();
    EXPECT_THAT(appeared, ElementsAre("First", "Second"));
    button(1).press();
    EXPECT_THAT(answers, ElementsAre("First 0", "Second 1"));
    EXPECT_EQ(shown(), nullptr);
}

TEST_F(AnAlert, IsNoLongerShownWhenItIsAnsweredAndMayShowAnotherOne)
{
    show("First");
    shown()->onAnswer = [this](std::size_t) {
        EXPECT_EQ(shown(), nullptr);
        show("Second");
    };
    button(1).press();
    ASSERT_TRUE(shown());
    EXPECT_EQ(shown()->message(), "Second");
}

TEST_F(AnAlert, GivesTheKeyboardToItsCancelButtonUntilTabMovesIt)
{
    show("First");
    EXPECT_TRUE(press(Key::Return));
    show("Second");
    press(Key::Tab);
    EXPECT_EQ(window->focus().view(), &button(1));
    press(Key::Return);
    show("Third");
    press(Key::Tab);
    press(Key::Backtab);
    EXPECT_EQ(window->focus().view(), &button(0));
    press(Key::Space);
    EXPECT_THAT(answers, ElementsAre("First 0", "Second 1", "Third 0"));
}

TEST_F(AnAlert, IsCanceledByEscapeWhicheverButtonHasTheKeyboard)
{
    show("Really?");
    press(Key::Tab);
    press(Key::Escape);
    EXPECT_THAT(answers, ElementsAre("Really? 0"));
}

TEST_F(AnAlert, TakesNoKeysWhenItIsNotShown)
{
    EXPECT_FALSE(press(Key::Return));
}

TEST_F(AnAlert, IsNotAnsweredWhenAllAreDismissed)
{
    show("First");
    show("Second");
    window->alerts().dismissAll();
    EXPECT_EQ(shown(), nullptr);
    EXPECT_THAT(answers, IsEmpty());
    EXPECT_THAT(appeared, ElementsAre("First"));
}

TEST_F(AnAlert, LinesUpMoreThanTwoButtonsWithTheCancelButtonAtTheBottom)
{
    show("Which?", { "None", "A", "B" });
    const auto y = [&](std::size_t index) { return button(index).frame().top(); };
    EXPECT_LT(y(1), y(2));
    EXPECT_LT(y(2), y(0));
    EXPECT_EQ(button(0).frame().size.width, 270);
    EXPECT_EQ(button(0).frame().bottom(), shown()->frame().size.height);
}

TEST_F(AnAlert, ShowsTwoButtonsSideBySideWithTheCancelButtonOnTheLeft)
{
    show("Really?");
    EXPECT_EQ(button(0).frame().origin.x, 0);
    EXPECT_EQ(button(1).frame().origin.x, 135);
    EXPECT_EQ(button(0).frame().top(), button(1).frame().top());
    EXPECT_EQ(button(0).frame().bottom(), shown()->frame().size.height);
}

TEST_F(AnAlert, ShowsItsTitleAboveItsMessage)
{
    const auto alert = make<Alert>("Title", "Message", std::vector<std::string> { "OK" });
    const auto size = alert->sizeIn(window->bounds().size);
    alert->setFrame({ {}, size });
    alert->layOutIfNeeded();
    const Look look(*alert);
    EXPECT_THAT(look.texts, ElementsAre("Title", "Message"));
    EXPECT_LE(look.places[0].bottom(), look.places[1].top());
    EXPECT_LE(look.places[1].bottom(), alert->buttons()[0]->frame().top());
    const auto untitled = make<Alert>("", "Message", std::vector<std::string> { "OK" });
    EXPECT_LT(untitled->sizeIn(window->bounds().size).height, size.height);
}

TEST_F(AnAlert, IsReadByItsMessageAndTellsWhenItAppearsAndDisappears)
{
    const auto alert = make<Alert>("Title", "Message", std::vector<std::string> { "OK", "More" });
    std::vector<AccessibleChange> changes;
    window->onAccessibleChange = [&](const View& view, AccessibleChange change) {
        if (&view == alert.get())
            changes.push_back(change);
    };
    EXPECT_EQ(alert->accessible().role, toolkit::Role::Alert);
    EXPECT_EQ(alert->accessible().name, "Message");
    EXPECT_EQ(alert->accessible().description, "Title");
    EXPECT_THAT(alert->buttonTitles(), ElementsAre("OK", "More"));
    window->alerts().add(*alert);
    EXPECT_THAT(changes, ElementsAre(AccessibleChange::AlertShown));
    window->alerts().dismissCurrent();
    EXPECT_THAT(changes, ElementsAre(AccessibleChange::AlertShown, AccessibleChange::WillHide));
    window->onAccessibleChange = nullptr;
}

TEST_F(AnAlert, IsHeldUntilItHasFaded)
{
    auto alert = make<Alert>("", "Message", std::vector<std::string> { "OK" });
    bool isDestroyed = false;
    alert->onDestroyed = [&] { isDestroyed = true; };
    window->alerts().add(*alert);
    alert = nullptr;
    EXPECT_FALSE(isDestroyed);
    window->alerts().dismissCurrent();
    EXPECT_FALSE(isDestroyed);
    Clock::shared().advance(1);
    EXPECT_TRUE(isDestroyed);
}

} // namespace

} // namespace brimsound::tests
