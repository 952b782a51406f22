// What stands behind a UITextField.
#pragma once

#include "platform/UIKit/UITextField.h"
#include "platform/desktop/UIKit/ControlPeer.h"
#include "platform/desktop/UIKit/Theme.h"

#include <string>

namespace brimsound::desktop {

/// Draws its text and, while it has the keyboard, a caret behind it. In a real window an editor of the
/// desktop's own lies over the field then, which knows selections, the clipboard and input methods.
struct TextFieldPeer : ControlPeer {
    std::string text;
    RetainPtr<UIFont> font = UIFont::systemFontOfSize(theme::textSize);
    RetainPtr<UIColor> textColor = UIColor::blackColor();
    UITextFieldDelegate* delegate = nullptr;
    UIKeyboardAppearance keyboardAppearance = UIKeyboardAppearance::Default;
    UIReturnKeyType returnKeyType = UIReturnKeyType::Default;
    UITextAutocapitalizationType autocapitalizationType = UITextAutocapitalizationType::Sentences;

    /// Whether an editor lies over the field, and whether it draws the text instead of the field.
    bool hasEditor = false;
    bool isDrawnByEditor = false;

    void endTracking(CGPoint, bool inside) override;
    bool keyPressed(Key, KeyStroke) override;
    /// None: the caret shows it.
    FocusRing focusRing() const override { return {}; }
    void draw(Canvas&) const override;
    Accessible accessible() const override;

    UITextField& field() const { return static_cast<UITextField&>(*view); }
    /// Puts the text where the caret is: at the end.
    void type(const std::string&);
};

TextFieldPeer& peerOf(const UITextField&);

} // namespace brimsound::desktop
