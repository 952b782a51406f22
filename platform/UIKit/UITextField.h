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

/// One line of text. It can be edited while the field is the first responder; a touch makes it so. The field
/// draws no border and no background. Text that does not fit scrolls during editing and is otherwise
/// truncated with an ellipsis. The keyboard's appearance, its return key and automatic capitalization apply
/// to an on-screen keyboard; a physical keyboard ignores them.
class UITextField : public UIControl {
public:
    explicit UITextField(const CGRect& frame = {});

    /// UTF-8. Follows each edit; initially empty.
    std::string text() const;
    void setText(const std::string&);
    /// Initially the default text font at 17 points.
    RetainPtr<UIFont> font() const;
    void setFont(RetainPtr<UIFont>);
    /// Initially black.
    RetainPtr<UIColor> textColor() const;
    void setTextColor(RetainPtr<UIColor>);

    /// Not retained; may be null.
    UITextFieldDelegate* delegate() const;
    void setDelegate(UITextFieldDelegate*);

    UIKeyboardAppearance keyboardAppearance() const;
    void setKeyboardAppearance(UIKeyboardAppearance);
    UIReturnKeyType returnKeyType() const;
    void setReturnKeyType(UIReturnKeyType);
    /// Initially sentences.
    UITextAutocapitalizationType autocapitalizationType() const;
    void setAutocapitalizationType(UITextAutocapitalizationType);

    bool canBecomeFirstResponder() const override { return true; }
};

} // namespace brimsound
