// Text fields: one line of text to be edited.
#pragma once

#include "platform/UIKit/UIControl.h"
#include "platform/UIKit/UIFont.h"
#include "platform/UIKit/UITextFieldDelegate.h"

#include <string>

namespace brimsound {

enum class UIKeyboardAppearance {
    Default = 0,
    Dark = 1,
};

enum class UIReturnKeyType {
    Default = 0,
    Done = 9,
};

enum class UITextAutocapitalizationType {
    None = 0,
    Words = 1,
    Sentences = 2,
};

/// Edits its text while it is the first responder, which a touch makes it. It has no border and no background
/// of its own. Text that does not fit scrolls while it is edited and ends in an ellipsis otherwise. How the
/// keyboard looks, what its return key says and what it capitalizes by itself are wishes to a keyboard on the
/// screen; one with keys of its own types what it types.
class UITextField : public UIControl {
public:
    explicit UITextField(const CGRect& frame = {});

    /// UTF-8, as it stands after each change; at first empty.
    std::string text() const;
    void setText(const std::string&);
    /// At first the default text font at 17 points.
    RetainPtr<UIFont> font() const;
    void setFont(RetainPtr<UIFont>);
    /// At first black.
    RetainPtr<UIColor> textColor() const;
    void setTextColor(RetainPtr<UIColor>);

    /// Not retained; null for none.
    UITextFieldDelegate* delegate() const;
    void setDelegate(UITextFieldDelegate*);

    UIKeyboardAppearance keyboardAppearance() const;
    void setKeyboardAppearance(UIKeyboardAppearance);
    UIReturnKeyType returnKeyType() const;
    void setReturnKeyType(UIReturnKeyType);
    /// At first sentences.
    UITextAutocapitalizationType autocapitalizationType() const;
    void setAutocapitalizationType(UITextAutocapitalizationType);

    bool canBecomeFirstResponder() const override { return true; }
};

} // namespace brimsound
