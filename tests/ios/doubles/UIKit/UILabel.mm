#include "tests/ios/doubles/UIKit/Assign.h"
#include "tests/ios/doubles/UIKit/UITableViewCellState.h"

using brimsound::doubles::assignCopied;
using brimsound::doubles::assignRetained;

struct UILabelState {
    NSString* text = nil;
    UIFont* font = [[UIFont systemFontOfSize:17] retain];
    UIColor* textColor = [[UIColor blackColor] retain];
    UIColor* highlightedTextColor = nil;
    bool isHighlighted = false;
    NSTextAlignment textAlignment = NSTextAlignmentLeft;
};

@implementation UILabel

- (instancetype)initWithFrame:(CGRect)frame
{
    self = [super initWithFrame:frame];
    if (self) {
        _labelState = new UILabelState;
        [self setUserInteractionEnabled:NO];
    }
    return self;
}

- (void)dealloc
{
    [_labelState->text release];
    [_labelState->font release];
    [_labelState->textColor release];
    [_labelState->highlightedTextColor release];
    delete _labelState;
    [super dealloc];
}

- (NSString*)text
{
    return _labelState->text;
}

- (void)setText:(NSString*)text
{
    assignCopied(_labelState->text, text);
    brimsound::doubles::rowContentsChanged(self);
}

- (UIFont*)font
{
    return _labelState->font;
}

- (void)setFont:(UIFont*)font
{
    assignRetained(_labelState->font, font ? font : [UIFont systemFontOfSize:17]);
    brimsound::doubles::rowContentsChanged(self);
}

- (UIColor*)textColor
{
    return _labelState->textColor;
}

- (void)setTextColor:(UIColor*)color
{
    assignRetained(_labelState->textColor, color ? color : [UIColor blackColor]);
}

- (UIColor*)highlightedTextColor
{
    return _labelState->highlightedTextColor;
}

- (void)setHighlightedTextColor:(UIColor*)color
{
    assignRetained(_labelState->highlightedTextColor, color);
}

- (BOOL)isHighlighted
{
    return _labelState->isHighlighted;
}

- (void)setHighlighted:(BOOL)highlighted
{
    _labelState->isHighlighted = highlighted;
}

- (NSTextAlignment)textAlignment
{
    return _labelState->textAlignment;
}

- (void)setTextAlignment:(NSTextAlignment)alignment
{
    _labelState->textAlignment = alignment;
}

@end
