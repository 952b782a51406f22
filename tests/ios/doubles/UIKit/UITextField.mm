#include "tests/ios/doubles/Doubles.h"
#include "tests/ios/doubles/UIKit/Color.h"
#include "tests/ios/doubles/UIKit/Font.h"
#include "tests/ios/doubles/UIKit/HostedView.h"
#include "tests/ios/doubles/UIKit/Text.h"
#include "toolkit/text/TextField.h"

using namespace brimsound;

namespace {

/// A field that tells its UITextField when typing begins and ends.
class Field : public doubles::Hosted<toolkit::TextField> {
public:
    using Hosted::Hosted;

private:
    void keyboardChanged() override
    {
        Hosted::keyboardChanged();
        auto* const field = static_cast<UITextField*>(doubles::existingViewOf(*this));
        [field sendActionsForControlEvents:hasKeyboard() ? UIControlEventEditingDidBegin
                                                         : UIControlEventEditingDidEnd];
    }
};

toolkit::TextField& native(UITextField* field)
{
    return doubles::nativeOf<toolkit::TextField>(field);
}

} // namespace

@implementation UITextField

@synthesize delegate = _delegate;
@synthesize keyboardAppearance = _keyboardAppearance;
@synthesize returnKeyType = _returnKeyType;
@synthesize autocapitalizationType = _autocapitalizationType;

- (instancetype)initWithFrame:(CGRect)frame
{
    self = [self initWithNative:new Field(doubles::toolkitRect(frame))];
    if (self) {
        native(self).onReturn = [self] { [self returnPressed]; };
        _autocapitalizationType = UITextAutocapitalizationTypeSentences;
    }
    return self;
}

- (void)returnPressed
{
    if (![_delegate respondsToSelector:@selector(textFieldShouldReturn:)] ||
        [_delegate textFieldShouldReturn:self])
        [self sendActionsForControlEvents:UIControlEventEditingDidEndOnExit];
}

- (NSString*)text
{
    return doubles::nsString(native(self).text());
}

- (void)setText:(NSString*)text
{
    native(self).setText(doubles::textOf(text));
}

- (UIFont*)font
{
    return doubles::uiFont(native(self).font());
}

- (void)setFont:(UIFont*)font
{
    native(self).setFont(doubles::toolkitFont(font));
}

- (UIColor*)textColor
{
    return doubles::uiColor(native(self).color());
}

- (void)setTextColor:(UIColor*)color
{
    native(self).setColor(doubles::toolkitColor(color).value_or(toolkit::Color {}));
}

- (BOOL)canBecomeFirstResponder
{
    return YES;
}

@end

namespace brimsound::doubles {

void type(UITextField* field, NSString* text)
{
    [field becomeFirstResponder];
    native(field).type(textOf(text));
    [field sendActionsForControlEvents:UIControlEventEditingChanged];
}

void pressReturn(UITextField* field)
{
    native(field).confirm();
}

} // namespace brimsound::doubles
