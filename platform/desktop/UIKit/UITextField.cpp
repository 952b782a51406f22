#include "platform/UIKit/UITextField.h"

#include "platform/desktop/UIKit/Text.h"
#include "platform/desktop/UIKit/TextFieldPeer.h"

#include <algorithm>

namespace brimsound {

namespace desktop {

namespace {

constexpr double caretWidth = 2;
/// The caret's height for a font of size 1.
constexpr double caretHeight = 1.2;

} // namespace

TextFieldPeer& peerOf(const UITextField& field)
{
    return static_cast<TextFieldPeer&>(field.peer());
}

void TextFieldPeer::endTracking(CGPoint, bool inside)
{
    if (inside)
        view->becomeFirstResponder();
}

bool TextFieldPeer::keyPressed(Key key, KeyStroke stroke)
{
    if (key == Key::Return && stroke == KeyStroke::First)
        confirm();
    return true;
}

void TextFieldPeer::confirm()
{
    // The delegate may take the field away.
    const auto kept = brimsound::retain(view);
    if (delegate)
        delegate->textFieldShouldReturn(&field());
}

CGRect TextFieldPeer::textArea() const
{
    auto area = boundsOf(*this);
    if (hasKeyboard)
        area.size.width = std::max(0.0, area.size.width - returnKey->width());
    return area;
}

void TextFieldPeer::willLayOut()
{
    const auto [width, height] = frame.size;
    const double keyWidth = std::min(width, returnKey->width());
    returnKey->setFrame(CGRectMake(width - keyWidth, 0, keyWidth, height));
}

void TextFieldPeer::type(const std::string& typed)
{
    field().setText(text + typed);
}

void TextFieldPeer::draw(Canvas& canvas) const
{
    if (isDrawnByEditor || !font)
        return;
    const auto bounds = textArea();
    const auto color = colorOf(textColor);
    if (!hasKeyboard) {
        canvas.drawLine(text, bounds, *font, color, NSTextAlignment::Left);
        return;
    }
    const double width = widthOfLine(text, *font);
    const double caret = std::min(width, bounds.size.width - caretWidth);
    const double height = font->pointSize() * caretHeight;
    canvas.save();
    canvas.clip(bounds);
    // A little wider than the text, as one that just fits may end in an ellipsis.
    canvas.drawLine(text, CGRectMake(caret - width, 0, width + 1, bounds.size.height), *font, color,
        NSTextAlignment::Left);
    canvas.fillRect(CGRectMake(caret, (bounds.size.height - height) / 2, caretWidth, height), theme::tint);
    canvas.restore();
}

Accessible TextFieldPeer::accessible() const
{
    // The editor speaks for itself.
    if (hasEditor)
        return {};
    return {
        .role = AccessibleRole::TextField, .name = accessibilityLabel, .value = text, .focusable = true
    };
}

} // namespace desktop

using desktop::peerOf;
using desktop::TextFieldPeer;

UITextField::UITextField(const CGRect& frame)
    : UIControl(new TextFieldPeer)
{
    auto& peer = peerOf(*this);
    peer.frame = frame;
    peer.returnKey = make<desktop::ReturnKey>();
    addSubview(*peer.returnKey);
}

std::string UITextField::text() const
{
    return peerOf(*this).text;
}

void UITextField::setText(const std::string& text)
{
    if (peerOf(*this).text == text)
        return;
    desktop::accessibleChanged(*this, desktop::AccessibleChange::TextWillChange);
    peerOf(*this).text = text;
    desktop::setNeedsDisplay(*this);
    desktop::accessibleChanged(*this, desktop::AccessibleChange::TextChanged);
}

RetainPtr<UIFont> UITextField::font() const
{
    return peerOf(*this).font;
}

void UITextField::setFont(RetainPtr<UIFont> font)
{
    if (peerOf(*this).font == font)
        return;
    peerOf(*this).font = std::move(font);
    desktop::setNeedsDisplay(*this);
}

RetainPtr<UIColor> UITextField::textColor() const
{
    return peerOf(*this).textColor;
}

void UITextField::setTextColor(RetainPtr<UIColor> color)
{
    peerOf(*this).textColor = std::move(color);
    desktop::setNeedsDisplay(*this);
}

UITextFieldDelegate* UITextField::delegate() const
{
    return peerOf(*this).delegate;
}

void UITextField::setDelegate(UITextFieldDelegate* delegate)
{
    peerOf(*this).delegate = delegate;
}

UIKeyboardAppearance UITextField::keyboardAppearance() const
{
    return peerOf(*this).keyboardAppearance;
}

void UITextField::setKeyboardAppearance(UIKeyboardAppearance appearance)
{
    peerOf(*this).keyboardAppearance = appearance;
}

UIReturnKeyType UITextField::returnKeyType() const
{
    return peerOf(*this).returnKeyType;
}

void UITextField::setReturnKeyType(UIReturnKeyType type)
{
    peerOf(*this).returnKeyType = type;
    setNeedsLayout();
}

UITextAutocapitalizationType UITextField::autocapitalizationType() const
{
    return peerOf(*this).autocapitalizationType;
}

void UITextField::setAutocapitalizationType(UITextAutocapitalizationType type)
{
    peerOf(*this).autocapitalizationType = type;
}

} // namespace brimsound
