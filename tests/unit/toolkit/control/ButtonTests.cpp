#include "tests/unit/toolkit/BlankCanvas.h"
#include "tests/unit/toolkit/EventLog.h"
#include "toolkit/control/Button.h"
#include "toolkit/drawing/Theme.h"
#include "toolkit/text/Label.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Button;
using toolkit::Color;
using toolkit::Label;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Pointer;
using toolkit::Rect;
using toolkit::Ref;
using toolkit::Role;
using toolkit::TextButton;
using toolkit::View;
using toolkit::Window;

/// A bar of 100 x 44 points with a label, and an invisible button over it that is larger than the bar.
class AButton : public testing::Test {
protected:
    AButton()
    {
        label->setText("Cancel");
        label->setRead(false);
        button->setLabel("Cancel");
        window->add(*bar);
        bar->add(*label);
        bar->add(*button);
        log.listenTo(*button);
        window->layOutAll();
    }

    EventLog log;
    const Ref<Window> window = make<Window>(toolkit::Size { 320, 400 });
    const Ref<View> bar = make<View>(makeRect(110, 100, 100, 44));
    const Ref<Label> label = make<Label>(makeRect(0, 0, 100, 44));
    const Ref<Button> button = make<Button>(makeRect(0, 0, 320, 88));
};

TEST_F(AButton, SendsWhatTheTouchDoes)
{
    window->touchDown({ { 150, 120 }, Pointer::Finger });
    window->touchUp({ 150, 120 });
    EXPECT_THAT(log.take(), ElementsAre("down", "up inside"));
    window->touchDown({ { 150, 120 }, Pointer::Finger });
    window->touchUp({ 150, 390 });
    EXPECT_THAT(log.take(), ElementsAre("down", "up outside"));
    window->touchDown({ { 150, 120 }, Pointer::Finger });
    window->touchCancel();
    EXPECT_THAT(log.take(), ElementsAre("down", "cancel"));
}

TEST_F(AButton, IsNotTouchedOutsideOfItsParent)
{
    window->touchDown({ { 150, 150 }, Pointer::Finger });
    window->touchUp({ 150, 150 });
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST_F(AButton, IsReadByItsLabel)
{
    EXPECT_EQ(button->role(), Role::Button);
    EXPECT_EQ(button->accessible().role, Role::Button);
    EXPECT_EQ(button->accessible().name, "Cancel");
    EXPECT_TRUE(button->isFocusable());
}

TEST_F(AButton, IsReadInPlaceOfTheTextBelowIt)
{
    EXPECT_THAT(window->accessibleChildren(), ElementsAre(button.get()));
}

TEST_F(AButton, IsNotReadWithoutALabel)
{
    button->setLabel("");
    EXPECT_EQ(button->role(), Role::None);
    EXPECT_THAT(window->accessibleChildren(), IsEmpty());
}

/// Records whether the button fills its bounds with the color of pressed rows, and the titles that it draws.
class Look : public BlankCanvas {
public:
    explicit Look(const TextButton& button) { button.draw(*this); }

    void fillRect(const Rect&, const Color& color) override
    {
        isShaded |= color == toolkit::theme::rowPressed;
    }
    void drawLine(
        const std::string& text, const Rect&, const toolkit::Font&, const Color&, toolkit::Alignment) override
    {
        titles.push_back(text);
    }

    bool isShaded = false;
    std::vector<std::string> titles;
};

/// A text button of 100 x 40 points. Counts how often it was pressed.
class ATextButton : public testing::Test {
protected:
    ATextButton() { window->add(*button); }

    int presses = 0;
    const Ref<Window> window = make<Window>(toolkit::Size { 320, 400 });
    const Ref<TextButton> button = [this] {
        auto made = make<TextButton>("Done", toolkit::Font {}, [this] { ++presses; });
        made->setFrame(makeRect(100, 100, 100, 40));
        return made;
    }();
};

TEST_F(ATextButton, IsPressedOnceByATap)
{
    window->touchDown({ { 150, 120 } });
    EXPECT_EQ(presses, 0);
    window->touchUp({ 150, 120 });
    EXPECT_EQ(presses, 1);
}

TEST_F(ATextButton, IsPressedByATouchThatComesBack)
{
    window->touchDown({ { 150, 120 } });
    window->touchMove({ 150, 300 });
    window->touchMove({ 150, 120 });
    window->touchUp({ 150, 120 });
    EXPECT_EQ(presses, 1);
}

TEST_F(ATextButton, IsNotPressedByATouchThatEndsBesideIt)
{
    window->touchDown({ { 150, 120 } });
    window->touchUp({ 150, 140.5 });
    EXPECT_EQ(presses, 0);
}

TEST_F(ATextButton, IsNotPressedByATouchThatIsCanceled)
{
    window->touchDown({ { 150, 120 } });
    window->touchCancel();
    EXPECT_EQ(presses, 0);
}

TEST_F(ATextButton, IsPressedByACommitInsideAndNotOutside)
{
    button->begin();
    button->commit(toolkit::Control::Side::Outside);
    EXPECT_EQ(presses, 0);
    EXPECT_TRUE(button->press());
    EXPECT_EQ(presses, 1);
}

TEST_F(ATextButton, IsShadedWhileATouchIsWithinIt)
{
    EXPECT_FALSE(Look(*button).isShaded);
    window->touchDown({ { 150, 120 } });
    EXPECT_TRUE(Look(*button).isShaded);
    window->touchMove({ 150, 300 });
    EXPECT_FALSE(Look(*button).isShaded);
    window->touchMove({ 150, 120 });
    EXPECT_TRUE(Look(*button).isShaded);
    window->touchUp({ 150, 120 });
    EXPECT_FALSE(Look(*button).isShaded);
}

TEST_F(ATextButton, IsDrawnAgainWhenATouchBeginsMovesAndEnds)
{
    int drawn = 0;
    window->onInvalidate = [&](const Rect&) { ++drawn; };
    const auto isDrawnAgain = [&] { return std::exchange(drawn, 0) > 0; };
    window->touchDown({ { 150, 120 } });
    EXPECT_TRUE(isDrawnAgain());
    window->touchMove({ 150, 300 });
    EXPECT_TRUE(isDrawnAgain());
    window->touchUp({ 150, 300 });
    EXPECT_TRUE(isDrawnAgain());
}

TEST_F(ATextButton, ShowsItsTitleAndIsReadByIt)
{
    EXPECT_EQ(button->title(), "Done");
    EXPECT_THAT(Look(*button).titles, ElementsAre("Done"));
    EXPECT_EQ(button->accessible().role, Role::Button);
    EXPECT_EQ(button->accessible().name, "Done");
}

TEST_F(ATextButton, MayBeDestroyedByWhatItDoes)
{
    bool isDestroyed = false;
    TextButton* pressed = nullptr;
    auto closing = make<TextButton>("Close", toolkit::Font {}, [&] {
        pressed->removeFromParent();
        EXPECT_FALSE(isDestroyed);
    });
    pressed = closing.get();
    closing->onDestroyed = [&] { isDestroyed = true; };
    closing->setFrame(makeRect(0, 0, 50, 50));
    window->add(*closing);
    closing = nullptr;
    window->touchDown({ { 10, 10 } });
    window->touchUp({ 10, 10 });
    EXPECT_TRUE(isDestroyed);
}

} // namespace

} // namespace brimsound::tests
