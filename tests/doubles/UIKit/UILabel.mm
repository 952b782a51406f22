#include "tests/doubles/UIKit/Forward.h"
#include "toolkit/text/Label.h"

#include <optional>

namespace doubles = brimsound::doubles;
namespace toolkit = brimsound::toolkit;

// Their alignments have the same order.
static_assert(NSTextAlignmentCenter == static_cast<NSInteger>(toolkit::Alignment::Center));
static_assert(NSTextAlignmentRight == static_cast<NSInteger>(toolkit::Alignment::Right));

namespace {

toolkit::Label& native(UILabel* label)
{
    return doubles::nativeOf<toolkit::Label>(label);
}

} // namespace

@implementation UILabel

- (instancetype)initWithFrame:(CGRect)frame
{
    return [self initWithNative:new doubles::Hosted<toolkit::Label>(doubles::toToolkit(frame))];
}

- (instancetype)initWithNative:(toolkit::View*)label
{
    self = [super initWithNative:label];
    [self setUserInteractionEnabled:NO];
    return self;
}

FORWARD_PROPERTY(NSString*, text, setText, text, setText)
FORWARD_PROPERTY(
    UIColor*, highlightedTextColor, setHighlightedTextColor, highlightedColor, setHighlightedColor)
FORWARD_PROPERTY(BOOL, isHighlighted, setHighlighted, isHighlighted, setHighlighted)
FORWARD_GETTER(UIFont*, font, font)
FORWARD_GETTER(UIColor*, textColor, color)

- (void)setFont:(UIFont*)font
{
    native(self).setFont(doubles::toToolkit(font).value_or(toolkit::Font {}));
}

- (void)setTextColor:(UIColor*)color
{
    native(self).setColor(doubles::toToolkit(color).value_or(toolkit::Color {}));
}

- (NSTextAlignment)textAlignment
{
    const auto alignment = native(self).alignment();
    return alignment ? static_cast<NSTextAlignment>(*alignment) : NSTextAlignmentNatural;
}

- (void)setTextAlignment:(NSTextAlignment)alignment
{
    if (alignment == NSTextAlignmentNatural)
        native(self).setAlignment(std::nullopt);
    else
        native(self).setAlignment(static_cast<toolkit::Alignment>(alignment));
}

@end
