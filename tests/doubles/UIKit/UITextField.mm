#include "tests/doubles/Doubles.h"
#include "tests/doubles/UIKit/Forward.h"
#include "toolkit/text/TextField.h"

namespace doubles = brimsound::doubles;
namespace toolkit = brimsound::toolkit;

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
    self = [self initWithNative:new Field(doubles::toToolkit(frame))];
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
    return doubles::toPlatform(native(self).text());
}

- (void)setText:(NSString*)text
{
    native(self).setText(doubles::toToolkit(text));
}

FORWARD_PROPERTY(UIFont*, font, setFont, font, setFont)
FORWARD_GETTER(UIColor*, textColor, color)

- (void)setTextColor:(UIColor*)color
{
    native(self).setColor(doubles::toToolkit(color).value_or(toolkit::Color {}));
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
    native(field).type(doubles::toToolkit(text));
    [field sendActionsForControlEvents:UIControlEventEditingChanged];
}

void pressReturn(UITextField* field)
{
    native(field).confirm();
}

} // namespace brimsound::doubles
