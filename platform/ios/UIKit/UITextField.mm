#include "platform/UIKit/UITextField.h"

#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"

#import <UIKit/UIKit.h>
#import <objc/runtime.h>

/// Forwards the field's calls to the product's delegate. The field retains it.
@interface BRTextFieldDelegate : NSObject <UITextFieldDelegate> {
@public
    brimsound::UITextFieldDelegate* _delegate;
}
@end

@implementation BRTextFieldDelegate

- (BOOL)textFieldShouldReturn:(UITextField*)field
{
    return _delegate->textFieldShouldReturn(brimsound::ios::objectOf<brimsound::UITextField>(field));
}

@end

namespace brimsound {

using ios::retainedObjectOf;

namespace {

const char delegateKey = 0;

::UITextField* nativeOf(const UITextField& field)
{
    return ios::nativeOf(field);
}

} // namespace

UITextField::UITextField(const CGRect& frame)
    : UIControl(ios::peer([[::UITextField alloc] initWithFrame:ios::native(frame)]))
{
}

std::string UITextField::text() const
{
    return ios::textOf([nativeOf(*this) text]);
}

void UITextField::setText(const std::string& text)
{
    [nativeOf(*this) setText:ios::nativeText(text)];
}

RetainPtr<UIFont> UITextField::font() const
{
    return retainedObjectOf<UIFont>([nativeOf(*this) font]);
}

void UITextField::setFont(RetainPtr<UIFont> font)
{
    [nativeOf(*this) setFont:ios::nativeOf(font.get())];
}

RetainPtr<UIColor> UITextField::textColor() const
{
    return retainedObjectOf<UIColor>([nativeOf(*this) textColor]);
}

void UITextField::setTextColor(RetainPtr<UIColor> color)
{
    [nativeOf(*this) setTextColor:ios::nativeOf(color.get())];
}

UITextFieldDelegate* UITextField::delegate() const
{
    BRTextFieldDelegate* native = objc_getAssociatedObject(nativeOf(*this), &delegateKey);
    return native ? native->_delegate : nullptr;
}

void UITextField::setDelegate(UITextFieldDelegate* delegate)
{
    BRTextFieldDelegate* native = nil;
    if (delegate) {
        native = [[[BRTextFieldDelegate alloc] init] autorelease];
        native->_delegate = delegate;
    }
    [nativeOf(*this) setDelegate:native];
    objc_setAssociatedObject(nativeOf(*this), &delegateKey, native, OBJC_ASSOCIATION_RETAIN_NONATOMIC);
}

UIKeyboardAppearance UITextField::keyboardAppearance() const
{
    return static_cast<UIKeyboardAppearance>([nativeOf(*this) keyboardAppearance]);
}

void UITextField::setKeyboardAppearance(UIKeyboardAppearance appearance)
{
    [nativeOf(*this) setKeyboardAppearance:static_cast<::UIKeyboardAppearance>(appearance)];
}

UIReturnKeyType UITextField::returnKeyType() const
{
    return static_cast<UIReturnKeyType>([nativeOf(*this) returnKeyType]);
}

void UITextField::setReturnKeyType(UIReturnKeyType type)
{
    [nativeOf(*this) setReturnKeyType:static_cast<::UIReturnKeyType>(type)];
}

UITextAutocapitalizationType UITextField::autocapitalizationType() const
{
    return static_cast<UITextAutocapitalizationType>([nativeOf(*this) autocapitalizationType]);
}

void UITextField::setAutocapitalizationType(UITextAutocapitalizationType type)
{
    [nativeOf(*this) setAutocapitalizationType:static_cast<::UITextAutocapitalizationType>(type)];
}

} // namespace brimsound
