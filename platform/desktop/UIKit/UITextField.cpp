#include "platform/UIKit/UITextField.h"

#include "platform/desktop/UIKit/Color.h"
#include "platform/desktop/UIKit/ControlTargets.h"
#include "platform/desktop/UIKit/Font.h"
#include "toolkit/text/TextField.h"

namespace brimsound {

namespace {

/// A text field with the properties that only the platform's interface has.
struct FieldView : desktop::HostedControl<toolkit::TextField> {
    using HostedControl::HostedControl;

    UITextFieldDelegate* delegate = nullptr;
    UIKeyboardAppearance keyboardAppearance = UIKeyboardAppearance::Default;
    UIReturnKeyType returnKeyType = UIReturnKeyType::Default;
    UITextAutocapitalizationType autocapitalizationType = UITextAutocapitalizationType::Sentences;
};

FieldView& native(const UITextField& field)
{
    return desktop::nativeOf<FieldView>(field);
}

} // namespace

UITextField::UITextField(const CGRect& frame)
    : UIControl(desktop::peer(new FieldView(desktop::toolkitRect(frame))))
{
    native(*this).onReturn = [this] {
        if (auto* delegate = native(*this).delegate)
            delegate->textFieldShouldReturn(this);
    };
}

std::string UITextField::text() const
{
    return native(*this).text();
}

void UITextField::setText(const std::string& text)
{
    native(*this).setText(text);
}

RetainPtr<UIFont> UITextField::font() const
{
    return desktop::uiFont(native(*this).font());
}

void UITextField::setFont(RetainPtr<UIFont> font)
{
    native(*this).setFont(desktop::toolkitFont(font));
}

RetainPtr<UIColor> UITextField::textColor() const
{
    return desktop::uiColor(native(*this).color());
}

void UITextField::setTextColor(RetainPtr<UIColor> color)
{
    native(*this).setColor(desktop::colorOf(color));
}

UITextFieldDelegate* UITextField::delegate() const
{
    return native(*this).delegate;
}

void UITextField::setDelegate(UITextFieldDelegate* delegate)
{
    native(*this).delegate = delegate;
}

UIKeyboardAppearance UITextField::keyboardAppearance() const
{
    return native(*this).keyboardAppearance;
}

void UITextField::setKeyboardAppearance(UIKeyboardAppearance appearance)
{
    native(*this).keyboardAppearance = appearance;
}

UIReturnKeyType UITextField::returnKeyType() const
{
    return native(*this).returnKeyType;
}

void UITextField::setReturnKeyType(UIReturnKeyType type)
{
    native(*this).returnKeyType = type;
    native(*this).setReturnTitle(type == UIReturnKeyType::Done ? "Done" : "Return");
}

UITextAutocapitalizationType UITextField::autocapitalizationType() const
{
    return native(*this).autocapitalizationType;
}

void UITextField::setAutocapitalizationType(UITextAutocapitalizationType type)
{
    native(*this).autocapitalizationType = type;
}

} // namespace brimsound
