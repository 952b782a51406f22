#include "platform/UIKit/UITextField.h"

#include "platform/desktop/UIKit/Color.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "tests/unit/platform/UIKit/Geometry.h"
#include "toolkit/text/TextField.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

#include <vector>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;

/// Writes down the fields whose return key was pressed.
class Delegate : public UITextFieldDelegate {
public:
    bool textFieldShouldReturn(UITextField* field) override
    {
        returned.push_back(field);
        return false;
    }

    std::vector<UITextField*> returned;
};

class AUITextField : public testing::Test {
protected:
    AUITextField() { window->add(native); }

    Delegate delegate;
    const toolkit::Ref<toolkit::Window> window = toolkit::make<toolkit::Window>(toolkit::Size { 320, 400 });
    const RetainPtr<UITextField> field = make<UITextField>(CGRectMake(20, 8, 192, 28));
    toolkit::TextField& native = desktop::nativeOf<toolkit::TextField>(*field);
};

TEST_F(AUITextField, HasThePlatformsDefaultsAtFirst)
{
    EXPECT_EQ(field->frame(), CGRectMake(20, 8, 192, 28));
    EXPECT_EQ(field->text(), "");
    EXPECT_EQ(desktop::colorOf(field->textColor()), (desktop::Color { 0, 0, 0, 1 }));
    EXPECT_EQ(field->font()->pointSize(), 17);
    EXPECT_EQ(field->delegate(), nullptr);
    EXPECT_EQ(field->keyboardAppearance(), UIKeyboardAppearance::Default);
    EXPECT_EQ(field->returnKeyType(), UIReturnKeyType::Default);
    EXPECT_EQ(field->autocapitalizationType(), UITextAutocapitalizationType::Sentences);
    EXPECT_FALSE(field->isFirstResponder());
}

TEST_F(AUITextField, KeepsWhatItIsGiven)
{
    const auto font = UIFont::fontWithNameSize("HelveticaNeue-Bold", 18);
    field->setText("Rock");
    field->setFont(font);
    field->setTextColor(UIColor::yellowColor());
    field->setDelegate(&delegate);
    field->setKeyboardAppearance(UIKeyboardAppearance::Dark);
    field->setReturnKeyType(UIReturnKeyType::Done);
    field->setAutocapitalizationType(UITextAutocapitalizationType::Words);
    EXPECT_EQ(field->text(), "Rock");
    EXPECT_EQ(native.text(), "Rock");
    EXPECT_EQ(field->font()->fontName(), font->fontName());
    EXPECT_EQ(field->font()->pointSize(), 18);
    EXPECT_EQ(desktop::colorOf(field->textColor()), (desktop::Color { 1, 1, 0, 1 }));
    EXPECT_EQ(native.color(), (desktop::Color { 1, 1, 0, 1 }));
    EXPECT_EQ(field->delegate(), &delegate);
    EXPECT_EQ(field->keyboardAppearance(), UIKeyboardAppearance::Dark);
    EXPECT_EQ(field->returnKeyType(), UIReturnKeyType::Done);
    EXPECT_EQ(field->autocapitalizationType(), UITextAutocapitalizationType::Words);
}

TEST_F(AUITextField, NamesItsReturnKeyByTheType)
{
    EXPECT_EQ(native.returnKey().title(), "Return");
    field->setReturnKeyType(UIReturnKeyType::Done);
    EXPECT_EQ(native.returnKey().title(), "Done");
    field->setReturnKeyType(UIReturnKeyType::Default);
    EXPECT_EQ(native.returnKey().title(), "Return");
}

TEST_F(AUITextField, IsTheFirstResponderWhileItHasTheKeyboard)
{
    EXPECT_TRUE(field->becomeFirstResponder());
    EXPECT_TRUE(field->isFirstResponder());
    EXPECT_TRUE(native.hasKeyboard());
    field->resignFirstResponder();
    EXPECT_FALSE(field->isFirstResponder());
    EXPECT_FALSE(native.hasKeyboard());
}

TEST_F(AUITextField, CannotBecomeTheFirstResponderOutsideOfAWindow)
{
    EXPECT_FALSE(make<UITextField>()->becomeFirstResponder());
}

TEST_F(AUITextField, LeavesTheKeyboardToAnotherWhenItResignsWithoutHavingIt)
{
    const auto other = make<UITextField>(CGRectMake(20, 50, 192, 28));
    window->add(desktop::nativeView(*other));
    other->becomeFirstResponder();
    field->resignFirstResponder();
    EXPECT_TRUE(other->isFirstResponder());
}

TEST_F(AUITextField, TellsItsDelegateWhenItIsConfirmed)
{
    native.confirm();
    field->setDelegate(&delegate);
    native.confirm();
    EXPECT_THAT(delegate.returned, ElementsAre(field.get()));
    field->setDelegate(nullptr);
    native.confirm();
    EXPECT_THAT(delegate.returned, ElementsAre(field.get()));
}

TEST(AUIView, CannotBecomeTheFirstResponder)
{
    const auto window = toolkit::make<toolkit::Window>(toolkit::Size { 320, 400 });
    const auto view = make<UIView>();
    window->add(desktop::nativeView(*view));
    EXPECT_FALSE(view->becomeFirstResponder());
    EXPECT_FALSE(view->isFirstResponder());
    view->resignFirstResponder();
}

} // namespace

} // namespace brimsound::tests
