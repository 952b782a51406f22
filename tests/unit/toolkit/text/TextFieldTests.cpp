#include "tests/unit/toolkit/BlankCanvas.h"
#include "tests/unit/toolkit/Geometry.h"
#include "toolkit/text/TextField.h"
#include "toolkit/time/Clock.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Clock;
using toolkit::Color;
using toolkit::Font;
using toolkit::Key;
using toolkit::KeyStroke;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Point;
using toolkit::Pointer;
using toolkit::Rect;
using toolkit::Ref;
using toolkit::Role;
using toolkit::TextField;
using toolkit::View;
using toolkit::Window;

/// A text field in a strip in a window. Records its text when the return key is pressed.
class ATextField : public testing::Test {
protected:
    ATextField()
    {
        strip->add(*field);
        window->add(*strip);
        field->onReturn = [this] { returned.push_back(field->text()); };
    }

    toolkit::Focus& focus() const { return window->focus(); }

    void tap(Point place) const
    {
        window->touchDown({ place, Pointer::Finger });
        window->touchUp(place);
    }

    bool press(Key key, KeyStroke stroke = KeyStroke::First) const { return window->keyPressed(key, stroke); }

    std::vector<std::string> returned;
    const Ref<Window> window = make<Window>(toolkit::Size { 320, 400 });
    const Ref<View> strip = make<View>(makeRect(0, 100, 232, 44));
    const Ref<TextField> field = make<TextField>(makeRect(20, 8, 192, 28));
};

TEST_F(ATextField, IsEmptyAndBlackAtFirst)
{
    const auto fresh = make<TextField>(makeRect(1, 2, 3, 4));
    EXPECT_EQ(fresh->frame(), makeRect(1, 2, 3, 4));
    EXPECT_EQ(fresh->text(), "");
    EXPECT_EQ(fresh->color(), (Color { 0, 0, 0, 1 }));
    EXPECT_EQ(fresh->font(), (Font { "", 17 }));
    EXPECT_FALSE(fresh->hasKeyboard());
    EXPECT_FALSE(focus().isGivenTo(*field));
}

TEST_F(ATextField, KeepsItsFontAndColor)
{
    const Font font { "HelveticaNeue-Bold", 18 };
    field->setFont(font);
    field->setColor({ 1, 0, 0 });
    EXPECT_EQ(field->font(), font);
    EXPECT_EQ(field->color(), (Color { 1, 0, 0 }));
}

TEST_F(ATextField, IsTypedIntoWhileItHasTheKeyboard)
{
    EXPECT_FALSE(window->typeText("x"));
    focus().giveTo(*field);
    EXPECT_TRUE(focus().isGivenTo(*field));
    EXPECT_TRUE(field->hasKeyboard());
    EXPECT_TRUE(window->typeText("Rock"));
    EXPECT_EQ(field->text(), "Rock");
    EXPECT_TRUE(window->typeText(" \xF0\x9F\x8E\xB8 \xC3\xBC"));
    EXPECT_EQ(field->text(), "Rock \xF0\x9F\x8E\xB8 \xC3\xBC");
    focus().takeFrom(*field);
    EXPECT_FALSE(focus().isGivenTo(*field));
    EXPECT_FALSE(field->hasKeyboard());
    EXPECT_FALSE(window->typeText("x"));
    EXPECT_EQ(field->text(), "Rock \xF0\x9F\x8E\xB8 \xC3\xBC");
}

TEST_F(ATextField, HoldsTenThousandCharacters)
{
    focus().giveTo(*field);
    const std::string text(10000, 'm');
    window->typeText(text);
    EXPECT_EQ(field->text(), text);
}

TEST_F(ATextField, TakesTheKeyboardWhenATouchEndsInIt)
{
    window->touchDown({ { 60, 120 }, Pointer::Finger });
    EXPECT_FALSE(focus().isGivenTo(*field));
    window->touchUp({ 60, 120 });
    EXPECT_TRUE(focus().isGivenTo(*field));
}

TEST_F(ATextField, DoesNotTakeTheKeyboardWhenTheTouchEndsElsewhere)
{
    window->touchDown({ { 60, 120 }, Pointer::Finger });
    window->touchUp({ 60, 390 });
    EXPECT_FALSE(focus().isGivenTo(*field));
}

TEST_F(ATextField, HasAReturnKeyAtItsRightEndWhileItHasTheKeyboard)
{
    field->setReturnTitle("Done");
    window->layOutAll();
    const Point key { 205, 122 };
    tap(key);
    EXPECT_THAT(returned, IsEmpty()) << "the first tap begins the editing";
    ASSERT_TRUE(focus().isGivenTo(*field));
    window->typeText("Rock");
    tap(key);
    EXPECT_THAT(returned, ElementsAre("Rock"));
    EXPECT_TRUE(focus().isGivenTo(*field)) << "until it is taken from the field";
}

TEST_F(ATextField, HidesItsReturnKeyWhenItLosesTheKeyboard)
{
    window->layOutAll();
    focus().giveTo(*field);
    EXPECT_FALSE(field->returnKey().ignoresTouches());
    focus().takeFrom(*field);
    EXPECT_TRUE(field->returnKey().ignoresTouches());
    tap({ 205, 122 });
    EXPECT_THAT(returned, IsEmpty());
}

TEST_F(ATextField, ShowsItsReturnKeyWithTheTitleThatItIsGiven)
{
    const auto& key = field->returnKey();
    EXPECT_EQ(key.title(), "Return");
    field->setReturnTitle("Done");
    EXPECT_EQ(key.title(), "Done");
    EXPECT_EQ(key.accessible().name, "Done");
    EXPECT_EQ(key.accessible().role, Role::Button);
}

TEST_F(ATextField, KeepsItsTextClearOfTheReturnKey)
{
    field->setReturnTitle("Done");
    window->layOutAll();
    const auto& key = field->returnKey();
    EXPECT_EQ(field->textArea(), field->bounds());
    focus().giveTo(*field);
    const auto area = field->textArea();
    EXPECT_EQ(area.right(), key.frame().left());
    EXPECT_EQ(key.frame().right(), 192);
    EXPECT_EQ(key.frame().size.height, 28);
    EXPECT_GT(area.size.width, 120);
}

TEST_F(ATextField, GivesItsReturnKeyAllOfItWhenItIsTooNarrow)
{
    field->setReturnTitle("Done");
    focus().giveTo(*field);
    field->setFrame(makeRect(20, 8, 30, 28));
    window->layOutAll();
    EXPECT_EQ(field->returnKey().frame(), makeRect(0, 0, 30, 28));
    EXPECT_EQ(field->textArea().size.width, 0);
}

TEST_F(ATextField, IsNotConfirmedByATouchThatLeavesTheReturnKey)
{
    focus().giveTo(*field);
    window->layOutAll();
    window->touchDown({ { 205, 122 }, Pointer::Mouse });
    window->touchUp({ 60, 122 });
    EXPECT_THAT(returned, IsEmpty());
}

TEST_F(ATextField, IsOneTabStopTogetherWithItsReturnKey)
{
    const auto other = make<TextField>(makeRect(20, 50, 192, 28));
    window->add(*other);
    focus().giveTo(*field);
    window->layOutAll();
    press(Key::Tab);
    EXPECT_TRUE(focus().isGivenTo(*other));
}

TEST_F(ATextField, KeepsTheKeyboardWhenSomethingElseIsTouched)
{
    focus().giveTo(*field);
    tap({ 5, 5 });
    EXPECT_TRUE(focus().isGivenTo(*field));
}

TEST_F(ATextField, LosesTheKeyboardToAnotherField)
{
    const auto other = make<TextField>(makeRect(0, 0, 100, 30));
    window->add(*other);
    focus().giveTo(*field);
    focus().giveTo(*other);
    EXPECT_FALSE(focus().isGivenTo(*field));
    window->typeText("x");
    EXPECT_EQ(field->text(), "");
    EXPECT_EQ(other->text(), "x");
}

TEST_F(ATextField, LosesTheKeyboardToAnotherFieldEvenWhileItIsHidden)
{
    const auto other = make<TextField>(makeRect(0, 0, 100, 30));
    window->add(*other);
    focus().giveTo(*field);
    strip->setHidden(true);
    focus().giveTo(*other);
    EXPECT_FALSE(focus().isGivenTo(*field));
}

TEST_F(ATextField, LosesTheKeyboardForGoodWhenItLeavesTheWindow)
{
    focus().giveTo(*field);
    strip->removeFromParent();
    EXPECT_FALSE(focus().isGivenTo(*field));
    EXPECT_FALSE(field->hasKeyboard());
    window->add(*strip);
    EXPECT_FALSE(focus().isGivenTo(*field));
}

TEST_F(ATextField, TakesTheKeyboardBeforeItHasFadedIn)
{
    strip->setAlpha(0);
    focus().giveTo(*field);
    EXPECT_TRUE(focus().isGivenTo(*field));
    View::animate(0.2, [&] { strip->setAlpha(1); });
    EXPECT_TRUE(window->typeText("x"));
    EXPECT_EQ(field->text(), "x");
    Clock::shared().advance(1);
}

TEST_F(ATextField, CannotBeTypedIntoWhileItIsHidden)
{
    focus().giveTo(*field);
    strip->setHidden(true);
    EXPECT_TRUE(focus().isGivenTo(*field));
    EXPECT_FALSE(window->typeText("x"));
    strip->setHidden(false);
    EXPECT_TRUE(window->typeText("y"));
    EXPECT_EQ(field->text(), "y");
}

TEST_F(ATextField, IsConfirmedByReturnOnceForEachPress)
{
    EXPECT_FALSE(press(Key::Return));
    focus().giveTo(*field);
    window->typeText("Rock");
    EXPECT_TRUE(press(Key::Return));
    EXPECT_THAT(returned, ElementsAre("Rock"));
    press(Key::Return, KeyStroke::Repeated);
    EXPECT_THAT(returned, ElementsAre("Rock"));
    field->onReturn = nullptr;
    EXPECT_TRUE(press(Key::Return));
}

TEST_F(ATextField, MayBeDestroyedWhenItIsConfirmed)
{
    for (const bool byKey : { true, false }) {
        auto doomed = make<TextField>(makeRect(0, 0, 50, 20));
        bool isDestroyed = false;
        doomed->onDestroyed = [&] { isDestroyed = true; };
        doomed->onReturn = [&, view = doomed.get()] {
            view->removeFromParent();
            EXPECT_FALSE(isDestroyed);
        };
        window->add(*doomed);
        focus().giveTo(*doomed);
        auto& confirmed = *doomed;
        doomed = nullptr;
        if (byKey)
            EXPECT_TRUE(press(Key::Return));
        else
            confirmed.confirm();
        EXPECT_FALSE(window->typeText("x"));
        window->releaseKeys();
        EXPECT_TRUE(isDestroyed);
    }
}

TEST_F(ATextField, IsReadWithItsText)
{
    field->setText("Rock");
    field->setLabel("Name");
    EXPECT_EQ(field->accessible().role, Role::TextField);
    EXPECT_EQ(field->accessible().name, "Name");
    EXPECT_EQ(field->accessible().value, "Rock");
    EXPECT_TRUE(field->isFocusable());
}

TEST_F(ATextField, TellsAssistiveTechnologyBeforeAndAfterItsTextChanges)
{
    std::vector<std::string> changes;
    window->onAccessibleChange = [&](View&, toolkit::AccessibleChange change) {
        const bool isBefore = change == toolkit::AccessibleChange::TextWillChange;
        changes.push_back((isBefore ? "before: " : "after: ") + field->text());
    };
    field->setText("Rock");
    EXPECT_THAT(changes, ElementsAre("before: ", "after: Rock"));
    field->setText("Rock");
    EXPECT_THAT(changes, testing::SizeIs(2));
}

TEST_F(ATextField, IsNotReadWhileAnEditorLiesOverIt)
{
    for (const auto editor : { TextField::Editor::Hidden, TextField::Editor::Showing }) {
        field->setEditor(editor);
        EXPECT_EQ(field->role(), Role::None);
        EXPECT_EQ(field->accessible().role, Role::None);
    }
    field->setEditor(TextField::Editor::None);
    EXPECT_EQ(field->role(), Role::TextField);
}

/// The drawn text of a field, its position, and the left end of the caret.
class Look : public BlankCanvas {
public:
    explicit Look(const TextField& field) { field.draw(*this); }

    void drawLine(
        const std::string& drawn, const Rect& rect, const Font&, const Color&, toolkit::Alignment) override
    {
        text = drawn;
        place = rect;
    }
    void fillRect(const Rect& rect, const Color&) override { caret = rect.left(); }

    std::string text;
    Rect place;
    double caret = -1;
};

TEST_F(ATextField, DrawsItsTextAndBehindItACaretWhileItHasTheKeyboard)
{
    field->setText("Rock");
    EXPECT_EQ(Look(*field).text, "Rock");
    EXPECT_EQ(Look(*field).place, field->bounds());
    EXPECT_EQ(Look(*field).caret, -1);
    focus().giveTo(*field);
    EXPECT_EQ(Look(*field).text, "Rock");
    EXPECT_EQ(Look(*field).place.left(), 0);
    EXPECT_EQ(Look(*field).caret, widthOfLine("Rock", *field->font()));
}

TEST_F(ATextField, ScrollsToTheCaretWhenItsTextIsTooLong)
{
    const std::string text(100, 'm');
    field->setText(text);
    focus().giveTo(*field);
    const auto area = field->textArea();
    const double width = widthOfLine(text, *field->font());
    const Look look(*field);
    EXPECT_LT(look.caret, area.right());
    EXPECT_GT(look.caret, area.right() - 5);
    EXPECT_EQ(look.place.left(), look.caret - width);
}

TEST_F(ATextField, DrawsNothingWithoutAFontOrWhileAnEditorShowsItsText)
{
    field->setText("Rock");
    field->setEditor(TextField::Editor::Showing);
    EXPECT_EQ(Look(*field).text, "");
    field->setEditor(TextField::Editor::Hidden);
    EXPECT_EQ(Look(*field).text, "Rock");
    field->setFont(std::nullopt);
    EXPECT_EQ(Look(*field).text, "");
}

} // namespace

} // namespace brimsound::tests
