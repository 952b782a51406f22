#include "tests/ios/doubles/UIKit/UIViewState.h"

using brimsound::doubles::assignCopied;
using brimsound::doubles::assignRetained;

struct UITextFieldState {
    NSString* text = @"";
    UIFont* font = [[UIFont systemFontOfSize:17] retain];
    UIColor* textColor = [[UIColor blackColor] retain];
    /// Not retained.
    id<UITextFieldDelegate> delegate = nil;
    UIKeyboardAppearance keyboardAppearance = UIKeyboardAppearanceDefault;
    UIReturnKeyType returnKeyType = UIReturnKeyDefault;
    UITextAutocapitalizationType autocapitalizationType = UITextAutocapitalizationTypeSentences;
};

@implementation UITextField

- (instancetype)initWithFrame:(CGRect)frame
{
    self = [super initWithFrame:frame];
    if (self)
        _textFieldState = new UITextFieldState;
    return self;
}

- (void)dealloc
{
    [_textFieldState->text release];
    [_textFieldState->font release];
    [_textFieldState->textColor release];
    delete _textFieldState;
    [super dealloc];
}

- (NSString*)text
{
    return _textFieldState->text;
}

- (void)setText:(NSString*)text
{
    assignCopied(_textFieldState->text, text ? text : @"");
}

- (UIFont*)font
{
    return _textFieldState->font;
}

- (void)setFont:(UIFont*)font
{
    assignRetained(_textFieldState->font, font);
}

- (UIColor*)textColor
{
    return _textFieldState->textColor;
}

- (void)setTextColor:(UIColor*)color
{
    assignRetained(_textFieldState->textColor, color ? color : [UIColor blackColor]);
}

- (id<UITextFieldDelegate>)delegate
{
    return _textFieldState->delegate;
}

- (void)setDelegate:(id<UITextFieldDelegate>)delegate
{
    _textFieldState->delegate = delegate;
}

- (UIKeyboardAppearance)keyboardAppearance
{
    return _textFieldState->keyboardAppearance;
}

- (void)setKeyboardAppearance:(UIKeyboardAppearance)appearance
{
    _textFieldState->keyboardAppearance = appearance;
}

- (UIReturnKeyType)returnKeyType
{
    return _textFieldState->returnKeyType;
}

- (void)setReturnKeyType:(UIReturnKeyType)type
{
    _textFieldState->returnKeyType = type;
}

- (UITextAutocapitalizationType)autocapitalizationType
{
    return _textFieldState->autocapitalizationType;
}

- (void)setAutocapitalizationType:(UITextAutocapitalizationType)type
{
    _textFieldState->autocapitalizationType = type;
}

- (BOOL)canBecomeFirstResponder
{
    return YES;
}

- (BOOL)becomeFirstResponder
{
    if ([self isFirstResponder])
        return YES;
    if (![super becomeFirstResponder])
        return NO;
    [self sendActionsForControlEvents:UIControlEventEditingDidBegin];
    return YES;
}

- (BOOL)resignFirstResponder
{
    const BOOL wasFirstResponder = [self isFirstResponder];
    const BOOL resigned = [super resignFirstResponder];
    if (wasFirstResponder && resigned)
        [self sendActionsForControlEvents:UIControlEventEditingDidEnd];
    return resigned;
}

@end

namespace brimsound::doubles {

void type(UITextField* field, NSString* text)
{
    [field becomeFirstResponder];
    [field setText:[[field text] stringByAppendingString:text]];
    [field sendActionsForControlEvents:UIControlEventEditingChanged];
}

void pressReturn(UITextField* field)
{
    // The delegate may let go of the field.
    [field retain];
    id delegate = [field delegate];
    if (![delegate respondsToSelector:@selector(textFieldShouldReturn:)] ||
        [delegate textFieldShouldReturn:field])
        [field sendActionsForControlEvents:UIControlEventEditingDidEndOnExit];
    [field release];
}

} // namespace brimsound::doubles
