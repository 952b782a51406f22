#include "tests/ios/doubles/UIKit/Assign.h"
#include "tests/ios/doubles/UIKit/HostedView.h"
#include "tests/ios/doubles/UIKit/UITableViewCellState.h"

#include <algorithm>
#include <cmath>

using brimsound::doubles::assignRetained;

struct UITableViewCellState {
    NSString* reuseIdentifier = nil;
    UIView* contentView = nil;
    UILabel* textLabel = nil;
    /// Nil in the default style.
    UILabel* detailTextLabel = nil;
    /// Nil until somebody asks for it.
    UIImageView* imageView = nil;
    UIView* accessoryView = nil;
    UIView* backgroundView = nil;
    UIView* selectedBackgroundView = nil;
    UITableViewCellSelectionStyle selectionStyle = UITableViewCellSelectionStyleDefault;
    bool isSelected = false;
    bool isHighlighted = false;
    bool showsSelected = false;
};

namespace {

// In points.
constexpr CGFloat margin = 15;
constexpr CGFloat detailTextSize = 12;
/// The height of a line of text, as a multiple of the font's size.
constexpr CGFloat lineSpacing = 1.2;

void setContentsHighlighted(UIView* view, BOOL highlighted)
{
    if ([view isKindOfClass:[UILabel class]])
        [static_cast<UILabel*>(view) setHighlighted:highlighted];
    else if ([view isKindOfClass:[UIImageView class]])
        [static_cast<UIImageView*>(view) setHighlighted:highlighted];
    for (UIView* subview in [view subviews])
        setContentsHighlighted(subview, highlighted);
}

CGFloat lineHeight(UILabel* label)
{
    return std::ceil([[label font] pointSize] * lineSpacing);
}

UILabel* addLabel(UIView* contentView)
{
    UILabel* const label = [[UILabel alloc] init];
    [contentView addSubview:label];
    return label;
}

} // namespace

@interface UITableViewCell (Placing)
- (void)showState;
- (void)placeSelectedBackground;
- (void)placeContents;
@end

@implementation UITableViewCell

void brimsound::doubles::rowContentsChanged(UIView* view)
{
    UIView* const cell = [[view superview] superview];
    if (![cell isKindOfClass:[UITableViewCell class]])
        return;
    const auto& state = *static_cast<UITableViewCell*>(cell)->_cellState;
    if (view == state.textLabel || view == state.detailTextLabel || view == state.imageView)
        [cell setNeedsLayout];
}

- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString*)reuseIdentifier
{
    self = [super initWithFrame:CGRectMake(0, 0, 320, 44)];
    if (!self)
        return nil;
    _cellState = new UITableViewCellState;
    _cellState->reuseIdentifier = [reuseIdentifier copy];
    UIView* const content = [[UIView alloc] initWithFrame:[self bounds]];
    _cellState->contentView = content;
    [self addSubview:content];
    _cellState->textLabel = addLabel(content);
    if (style != UITableViewCellStyleDefault) {
        _cellState->detailTextLabel = addLabel(content);
        [_cellState->detailTextLabel setFont:[UIFont systemFontOfSize:detailTextSize]];
    }
    _cellState->selectedBackgroundView = [[UIView alloc] initWithFrame:[self bounds]];
    return self;
}

- (instancetype)initWithFrame:(CGRect)frame
{
    self = [self initWithStyle:UITableViewCellStyleDefault reuseIdentifier:nil];
    [self setFrame:frame];
    return self;
}

- (void)dealloc
{
    [_cellState->reuseIdentifier release];
    [_cellState->contentView release];
    [_cellState->textLabel release];
    [_cellState->detailTextLabel release];
    [_cellState->imageView release];
    [_cellState->accessoryView release];
    [_cellState->backgroundView release];
    [_cellState->selectedBackgroundView release];
    delete _cellState;
    [super dealloc];
}

- (NSString*)reuseIdentifier
{
    return _cellState->reuseIdentifier;
}

- (UIView*)contentView
{
    return _cellState->contentView;
}

- (UILabel*)textLabel
{
    return _cellState->textLabel;
}

- (UILabel*)detailTextLabel
{
    return _cellState->detailTextLabel;
}

- (UIImageView*)imageView
{
    if (!_cellState->imageView) {
        _cellState->imageView = [[UIImageView alloc] init];
        [_cellState->contentView addSubview:_cellState->imageView];
    }
    return _cellState->imageView;
}

- (UIView*)accessoryView
{
    return _cellState->accessoryView;
}

- (void)setAccessoryView:(UIView*)view
{
    if (view == _cellState->accessoryView)
        return;
    [_cellState->accessoryView removeFromSuperview];
    assignRetained(_cellState->accessoryView, view);
    [self addSubview:view];
    [self setNeedsLayout];
}

- (UIView*)backgroundView
{
    return _cellState->backgroundView;
}

- (void)setBackgroundView:(UIView*)view
{
    if (view == _cellState->backgroundView)
        return;
    [_cellState->backgroundView removeFromSuperview];
    assignRetained(_cellState->backgroundView, view);
    [self insertSubview:view atIndex:0];
    [self setNeedsLayout];
}

- (UIView*)selectedBackgroundView
{
    return _cellState->selectedBackgroundView;
}

- (void)setSelectedBackgroundView:(UIView*)view
{
    if (view == _cellState->selectedBackgroundView)
        return;
    [_cellState->selectedBackgroundView removeFromSuperview];
    assignRetained(_cellState->selectedBackgroundView, view);
    [self placeSelectedBackground];
}

- (UITableViewCellSelectionStyle)selectionStyle
{
    return _cellState->selectionStyle;
}

- (void)setSelectionStyle:(UITableViewCellSelectionStyle)style
{
    _cellState->selectionStyle = style;
    [self showState];
}

- (BOOL)isSelected
{
    return _cellState->isSelected;
}

- (void)setSelected:(BOOL)selected
{
    [self setSelected:selected animated:NO];
}

- (void)setSelected:(BOOL)selected animated:(BOOL)animated
{
    _cellState->isSelected = selected;
    [self showState];
}

- (BOOL)isHighlighted
{
    return _cellState->isHighlighted;
}

- (void)setHighlighted:(BOOL)highlighted
{
    [self setHighlighted:highlighted animated:NO];
}

- (void)setHighlighted:(BOOL)highlighted animated:(BOOL)animated
{
    _cellState->isHighlighted = highlighted;
    [self showState];
}

- (void)prepareForReuse
{
}

- (void)showState
{
    const bool shows = (_cellState->isSelected || _cellState->isHighlighted)
        && _cellState->selectionStyle != UITableViewCellSelectionStyleNone;
    if (shows == _cellState->showsSelected)
        return;
    _cellState->showsSelected = shows;
    if (shows)
        [self placeSelectedBackground];
    else
        [_cellState->selectedBackgroundView removeFromSuperview];
    setContentsHighlighted(_cellState->contentView, shows);
}

- (void)placeSelectedBackground
{
    if (!_cellState->showsSelected)
        return;
    [_cellState->selectedBackgroundView setFrame:[self bounds]];
    [self insertSubview:_cellState->selectedBackgroundView atIndex:_cellState->backgroundView ? 1 : 0];
}

- (void)layoutSubviews
{
    [super layoutSubviews];
    const auto [width, height] = [self bounds].size;
    CGFloat free = width;
    if (UIView* accessory = _cellState->accessoryView) {
        const auto size = [accessory bounds].size;
        free = std::max(0.0, width - margin - size.width);
        [accessory setFrame:CGRectMake(free, (height - size.height) / 2, size.width, size.height)];
    }
    [_cellState->backgroundView setFrame:[self bounds]];
    [_cellState->selectedBackgroundView setFrame:[self bounds]];
    [_cellState->contentView setFrame:CGRectMake(0, 0, free, height)];
    [self placeContents];
}

- (void)placeContents
{
    const auto [width, height] = [_cellState->contentView bounds].size;
    CGFloat left = margin;
    if (UIImage* image = [_cellState->imageView image]) {
        const CGFloat scale = std::min(1.0, height / [image size].height);
        const auto size = CGSizeMake([image size].width * scale, [image size].height * scale);
        [_cellState->imageView
            setFrame:CGRectMake(left, (height - size.height) / 2, size.width, size.height)];
        left += size.width + margin;
    }
    const CGFloat free = std::max(0.0, width - left - margin);
    if ([[_cellState->detailTextLabel text] length] == 0) {
        [_cellState->textLabel setFrame:CGRectMake(left, 0, free, height)];
        return;
    }
    const CGFloat textHeight = lineHeight(_cellState->textLabel);
    const CGFloat detailHeight = lineHeight(_cellState->detailTextLabel);
    const CGFloat top = std::round((height - textHeight - detailHeight) / 2);
    [_cellState->textLabel setFrame:CGRectMake(left, top, free, textHeight)];
    [_cellState->detailTextLabel setFrame:CGRectMake(left, top + textHeight, free, detailHeight)];
}

@end
