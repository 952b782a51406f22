#include "platform/UIKit/UITextField.h"
#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/TextFieldPeer.h"
#include "platform/desktop/UIKit/Window.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::Key;
using desktop::KeyStroke;
using desktop::Pointer;
using testing::ElementsAre;

/// Writes down the texts of the fields whose return key was pressed.
class Reader : public UITextFieldDelegate {
public:
    bool textFieldShouldReturn(UITextField* field) override
    {
        read.push_back(field->text());
        return false;
    }

    std::vector<std::string> read;
};

class ATextField : public testing::Test {
protected:
    ATextField()
    {
        strip->addSubview(*field);
        window->addSubview(*strip);
        field->setDelegate(&reader);
    }

    void tap(CGPoint place) const
    {
        window->touchDown({ place, Pointer::Finger });
        window->touchUp(place);
    }

    Reader reader;
    const RetainPtr<desktop::Window> window = make<desktop::Window>(CGSize { 320, 400 });
    const RetainPtr<UIView> strip = make<UIView>(CGRectMake(0, 100, 232, 44));
    const RetainPtr<UITextField> field = make<UITextField>(CGRectMake(20, 8, 192, 28));
};

TEST_F(ATextField, IsEmptyAndBlackAtFirst)
{
    const auto fresh = make<UITextField>(CGRectMake(1, 2, 3, 4));
    EXPECT_EQ(fresh->frame(), CGRectMake(1, 2, 3, 4));
    EXPECT_EQ(fresh->text(), "");
    EXPECT_EQ(desktop::colorOf(fresh->textColor()), (desktop::Color { 0, 0, 0, 1 }));
    EXPECT_EQ(fresh->font()->pointSize(), 17);
    EXPECT_EQ(fresh->delegate(), nullptr);
    EXPECT_EQ(fresh->keyboardAppearance(), UIKeyboardAppearance::Default);
    EXPECT_EQ(fresh->returnKeyType(), UIReturnKeyType::Default);
    EXPECT_EQ(fresh->autocapitalizationType(), UITextAutocapitalizationType::Sentences);
    EXPECT_FALSE(fresh->isFirstResponder());
}

TEST_F(ATextField, KeepsWhatItIsGiven)
{
    const auto font = UIFont::fontWithNameSize("HelveticaNeue-Bold", 18);
    field->setFont(font);
    field->setKeyboardAppearance(UIKeyboardAppearance::Dark);
    field->setReturnKeyType(UIReturnKeyType::Done);
    field->setAutocapitalizationType(UITextAutocapitalizationType::Words);
    EXPECT_EQ(field->font(), font);
    EXPECT_EQ(field->delegate(), &reader);
    EXPECT_EQ(field->keyboardAppearance(), UIKeyboardAppearance::Dark);
    EXPECT_EQ(field->returnKeyType(), UIReturnKeyType::Done);
    EXPECT_EQ(field->autocapitalizationType(), UITextAutocapitalizationType::Words);
}

TEST_F(ATextField, IsTypedIntoWhileItIsTheFirstResponder)
{
    EXPECT_FALSE(window->typeText("x"));
    EXPECT_TRUE(field->becomeFirstResponder());
    EXPECT_TRUE(field->isFirstResponder());
    EXPECT_TRUE(window->typeText("Rock"));
    EXPECT_EQ(field->text(), "Rock");
    EXPECT_TRUE(window->typeText(" \xF0\x9F\x8E\xB8 \xC3\xBC"));
    EXPECT_EQ(field->text(), "Rock \xF0\x9F\x8E\xB8 \xC3\xBC");
    field->resignFirstResponder();
    EXPECT_FALSE(field->isFirstResponder());
    EXPECT_FALSE(window->typeText("x"));
    EXPECT_EQ(field->text(), "Rock \xF0\x9F\x8E\xB8 \xC3\xBC");
}

TEST_F(ATextField, TakesTenThousandCharacters)
{
    field->becomeFirstResponder();
    const std::string text(10000, 'm');
    window->typeText(text);
    EXPECT_EQ(field->text(), text);
}

TEST_F(ATextField, IsEditedOnceATouchEndsInIt)
{
    window->touchDown({ { 60, 120 }, Pointer::Finger });
    EXPECT_FALSE(field->isFirstResponder());
    window->touchUp({ 60, 120 });
    EXPECT_TRUE(field->isFirstResponder());
}

TEST_F(ATextField, IsNotEditedWhenTheTouchLeavesIt)
{
    window->touchDown({ { 60, 120 }, Pointer::Finger });
    window->touchUp({ 60, 390 });
    EXPECT_FALSE(field->isFirstResponder());
}

TEST_F(ATextField, HasAReturnKeyAtItsRightEndWhileItIsEdited)
{
    field->setReturnKeyType(UIReturnKeyType::Done);
    window->layOut();
    const CGPoint key { 205, 122 };
    tap(key);
    EXPECT_THAT(reader.read, ElementsAre()) << "it is no key yet, but begins the editing";
    ASSERT_TRUE(field->isFirstResponder());
    window->typeText("Rock");
    tap(key);
    EXPECT_THAT(reader.read, ElementsAre("Rock"));
    EXPECT_TRUE(field->isFirstResponder()) << "until the delegate takes the keyboard away";
}

TEST_F(ATextField, SaysOnItsReturnKeyWhatItsTypeIs)
{
    const auto& key = *desktop::peerOf(*field).returnKey;
    EXPECT_EQ(key.title(), "Return");
    field->setReturnKeyType(UIReturnKeyType::Done);
    EXPECT_EQ(key.title(), "Done");
    EXPECT_EQ(desktop::peerOf(key).accessible().name, "Done");
    EXPECT_EQ(desktop::peerOf(key).accessible().role, desktop::AccessibleRole::Button);
}

TEST_F(ATextField, KeepsItsTextClearOfTheReturnKey)
{
    field->setReturnKeyType(UIReturnKeyType::Done);
    window->layOut();
    const auto& key = *desktop::peerOf(*field).returnKey;
    EXPECT_EQ(desktop::peerOf(*field).textArea(), field->bounds());
    field->becomeFirstResponder();
    const auto area = desktop::peerOf(*field).textArea();
    EXPECT_EQ(area.origin.x + area.size.width, key.frame().origin.x);
    EXPECT_EQ(key.frame().origin.x + key.frame().size.width, 192);
    EXPECT_EQ(key.frame().size.height, 28);
    EXPECT_GT(area.size.width, 120);

    field->setFrame(CGRectMake(20, 8, 30, 28));
    window->layOut();
    EXPECT_EQ(key.frame(), CGRectMake(0, 0, 30, 28)) << "in a field with no room for more";
    EXPECT_EQ(desktop::peerOf(*field).textArea().size.width, 0);
}

TEST_F(ATextField, IsNotConfirmedByATouchThatLeavesTheReturnKey)
{
    field->becomeFirstResponder();
    window->layOut();
    window->touchDown({ { 205, 122 }, Pointer::Mouse });
    window->touchUp({ 60, 122 });
    EXPECT_THAT(reader.read, ElementsAre());
}

TEST_F(ATextField, LetsTheKeyboardPassItsReturnKeyBy)
{
    const auto other = make<UITextField>(CGRectMake(20, 50, 192, 28));
    window->addSubview(*other);
    field->becomeFirstResponder();
    window->layOut();
    window->keyPressed(Key::Tab);
    EXPECT_TRUE(other->isFirstResponder());
}

TEST_F(ATextField, StaysTheFirstResponderWhenSomethingElseIsTouched)
{
    field->becomeFirstResponder();
    tap({ 5, 5 });
    EXPECT_TRUE(field->isFirstResponder());
}

TEST_F(ATextField, HandsTheKeyboardOverToAnother)
{
    const auto other = make<UITextField>(CGRectMake(0, 0, 100, 30));
    window->addSubview(*other);
    field->becomeFirstResponder();
    other->becomeFirstResponder();
    EXPECT_FALSE(field->isFirstResponder());
    window->typeText("x");
    EXPECT_EQ(field->text(), "");
    EXPECT_EQ(other->text(), "x");
}

TEST_F(ATextField, HandsTheKeyboardOverEvenWhileItIsHidden)
{
    const auto other = make<UITextField>(CGRectMake(0, 0, 100, 30));
    window->addSubview(*other);
    field->becomeFirstResponder();
    strip->setHidden(true);
    other->becomeFirstResponder();
    EXPECT_FALSE(field->isFirstResponder());
}

TEST_F(ATextField, CannotBeTheFirstResponderOutsideOfAWindow)
{
    EXPECT_FALSE(make<UITextField>()->becomeFirstResponder());
}

TEST_F(ATextField, IsNoLongerTheFirstResponderWhenItLeavesTheWindow)
{
    field->becomeFirstResponder();
    strip->removeFromSuperview();
    EXPECT_FALSE(field->isFirstResponder());
    window->addSubview(*strip);
    EXPECT_FALSE(field->isFirstResponder());
}

TEST_F(ATextField, BecomesTheFirstResponderBeforeItHasFadedIn)
{
    strip->setAlpha(0);
    EXPECT_TRUE(field->becomeFirstResponder());
    EXPECT_TRUE(field->isFirstResponder());
    UIView::animateWithDurationAnimations(0.2, [&] { strip->setAlpha(1); });
    EXPECT_TRUE(window->typeText("x"));
    EXPECT_EQ(field->text(), "x");
    desktop::Clock::shared().advance(1);
}

TEST_F(ATextField, CannotBeTypedIntoWhileItIsHidden)
{
    field->becomeFirstResponder();
    strip->setHidden(true);
    EXPECT_TRUE(field->isFirstResponder());
    EXPECT_FALSE(window->typeText("x"));
    strip->setHidden(false);
    EXPECT_TRUE(window->typeText("y"));
    EXPECT_EQ(field->text(), "y");
}

TEST_F(ATextField, AsksItsDelegateWhenReturnIsPressed)
{
    EXPECT_FALSE(window->keyPressed(Key::Return));
    field->becomeFirstResponder();
    window->typeText("Rock");
    EXPECT_TRUE(window->keyPressed(Key::Return));
    EXPECT_THAT(reader.read, ElementsAre("Rock"));
    window->keyPressed(Key::Return, KeyStroke::Repeated);
    EXPECT_THAT(reader.read, ElementsAre("Rock"));
    field->setDelegate(nullptr);
    EXPECT_TRUE(window->keyPressed(Key::Return));
}

TEST_F(ATextField, SurvivesADelegateThatTakesItAway)
{
    class Remover : public UITextFieldDelegate {
    public:
        bool textFieldShouldReturn(UITextField* field) override
        {
            field->removeFromSuperview();
            return true;
        }
    } remover;
    auto* doomed = new UITextField(CGRectMake(0, 0, 50, 20));
    window->addSubview(*doomed);
    doomed->release();
    doomed->setDelegate(&remover);
    doomed->becomeFirstResponder();
    EXPECT_TRUE(window->keyPressed(Key::Return));
    EXPECT_FALSE(window->typeText("x"));
}

TEST_F(ATextField, TellsAScreenReaderItsText)
{
    field->setText("Rock");
    const auto accessible = desktop::peerOf(*field).accessible();
    EXPECT_EQ(accessible.role, desktop::AccessibleRole::TextField);
    EXPECT_EQ(accessible.value, "Rock");
    EXPECT_TRUE(accessible.focusable);
}

TEST(AView, CannotBecomeTheFirstResponder)
{
    const auto window = make<desktop::Window>(CGSize { 320, 400 });
    const auto view = make<UIView>();
    window->addSubview(*view);
    EXPECT_FALSE(view->becomeFirstResponder());
    EXPECT_FALSE(view->isFirstResponder());
    view->resignFirstResponder();
}

} // namespace

} // namespace brimsound::tests
