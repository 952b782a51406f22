// What stands behind a UITextField.
#pragma once

#include "platform/UIKit/UITextField.h"
#include "platform/desktop/UIKit/ControlPeer.h"
#include "platform/desktop/UIKit/ReturnKey.h"
#include "platform/desktop/UIKit/Theme.h"

#include <string>

namespace brimsound::desktop {

/// Draws its text and, while it has the keyboard, a caret behind it and the return key at the right end. In a
/// real window an editor of the desktop's own lies over the text then, which knows selections, the clipboard
/// and input methods.
struct TextFieldPeer : ControlPeer {
    std::string text;
    RetainPtr<UIFont> font = UIFont::systemFontOfSize(theme::textSize);
    RetainPtr<UIColor> textColor = UIColor::blackColor();
    UITextFieldDelegate* delegate = nullptr;
    UIKeyboardAppearance keyboardAppearance = UIKeyboardAppearance::Default;
    UIReturnKeyType returnKeyType = UIReturnKeyType::Default;
    UITextAutocapitalizationType autocapitalizationType = UITextAutocapitalizationType::Sentences;
    RetainPtr<ReturnKey> returnKey;

    /// Whether an editor lies over the field, and whether it draws the text instead of the field.
    bool hasEditor = false;
    bool isDrawnByEditor = false;

    void endTracking(CGPoint, bool inside) override;
    bool keyPressed(Key, KeyStroke) override;
    /// None: the caret shows it.
    FocusRing focusRing() const override { return {}; }
    void willLayOut() override;
    void draw(Canvas&) const override;
    Accessible accessible() const override;

    UITextField& field() const { return static_cast<UITextField&>(*view); }
    /// Puts the text where the caret is: at the end.
    void type(const std::string&);
    /// Does what the return key does: tells the delegate.
    void confirm();
    /// The part of the field that the text has, in the field's own coordinates.
    CGRect textArea() const;
};

TextFieldPeer& peerOf(const UITextField&);

} // namespace brimsound::desktop
