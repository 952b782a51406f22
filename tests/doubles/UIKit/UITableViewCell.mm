#include "tests/doubles/UIKit/Forward.h"
#include "toolkit/table/Cell.h"

namespace doubles = brimsound::doubles;
namespace toolkit = brimsound::toolkit;
using toolkit::Cell;

namespace {

Cell& native(UITableViewCell* cell)
{
    return doubles::nativeOf<Cell>(cell);
}

} // namespace

@implementation UITableViewCell

- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString*)reuseIdentifier
{
    // The platform's cells do not know for which row they are made.
    Cell::setSizeOfNewCells({ 320, 44 });
    return [self
        initWithNative:new doubles::Hosted<Cell>(style == UITableViewCellStyleDefault ? Cell::Style::OneText
                                                                                      : Cell::Style::Subtitle,
                           doubles::toToolkit(reuseIdentifier))];
}

- (instancetype)initWithFrame:(CGRect)frame
{
    self = [self initWithStyle:UITableViewCellStyleDefault reuseIdentifier:nil];
    [self setFrame:frame];
    return self;
}

FORWARD_GETTER(NSString*, reuseIdentifier, reuseIdentifier)
FORWARD_GETTER(UIView*, contentView, content)
FORWARD_GETTER(UILabel*, textLabel, textLabel)
FORWARD_GETTER(UILabel*, detailTextLabel, detailLabel)
FORWARD_GETTER(UIImageView*, imageView, imageView)
FORWARD_PROPERTY(UIView*, accessoryView, setAccessoryView, accessory, setAccessory)
FORWARD_PROPERTY(UIView*, backgroundView, setBackgroundView, backgroundView, setBackgroundView)
FORWARD_PROPERTY(UIView*, selectedBackgroundView, setSelectedBackgroundView, selectedBackgroundView,
    setSelectedBackgroundView)

- (UITableViewCellSelectionStyle)selectionStyle
{
    return native(self).isSelectable() ? UITableViewCellSelectionStyleDefault
                                       : UITableViewCellSelectionStyleNone;
}

- (void)setSelectionStyle:(UITableViewCellSelectionStyle)style
{
    native(self).setSelectable(style != UITableViewCellSelectionStyleNone);
}

FORWARD_GETTER(BOOL, isSelected, isSelected)

- (void)setSelected:(BOOL)selected
{
    [self setSelected:selected animated:NO];
}

- (void)setSelected:(BOOL)selected animated:(BOOL)animated
{
    native(self).setSelected(selected, animated);
}

FORWARD_PROPERTY(BOOL, isHighlighted, setHighlighted, isHighlighted, setHighlighted)

@end
