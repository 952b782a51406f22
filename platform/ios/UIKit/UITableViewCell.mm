#include "platform/UIKit/UITableViewCell.h"

#include "platform/ios/CoreGraphics/Geometry.h"
#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/UIKit/NativeView.h"

using brimsound::ios::existingObjectOf;
using brimsound::ios::ours;

/// The peer of a cell class that can be derived from.
@interface BRTableViewCell : UITableViewCell
@end

@implementation BRTableViewCell

- (void)dealloc
{
    brimsound::ios::destroyObjectOf(self);
    [super dealloc];
}

- (void)setFrame:(CGRect)frame
{
    if (auto* cell = existingObjectOf<brimsound::UITableViewCell>(self))
        cell->setFrame(ours(frame));
    else
        [super setFrame:frame];
}

- (void)br_baseSetFrame:(CGRect)frame
{
    [super setFrame:frame];
}

- (void)layoutSubviews
{
    if (auto* cell = existingObjectOf<brimsound::UITableViewCell>(self))
        cell->layoutSubviews();
    else
        [super layoutSubviews];
}

- (void)br_baseLayoutSubviews
{
    [super layoutSubviews];
}

@end

namespace brimsound {

using ios::objectOf;

namespace {

::UITableViewCell* nativeOf(const UITableViewCell& cell)
{
    return ios::nativeOf(cell);
}

} // namespace

UITableViewCell::UITableViewCell(UITableViewCellStyle style, const std::string& reuseIdentifier)
    : UITableViewCell(
        ios::peer([[BRTableViewCell alloc] initWithStyle:static_cast<::UITableViewCellStyle>(style)
                                         reuseIdentifier:ios::nativeText(reuseIdentifier)]))
{
}

UITableViewCell::UITableViewCell(Peer* peer)
    : UIView(peer)
{
}

std::string UITableViewCell::reuseIdentifier() const
{
    return ios::textOf([nativeOf(*this) reuseIdentifier]);
}

UIView& UITableViewCell::contentView() const
{
    return *objectOf<UIView>([nativeOf(*this) contentView]);
}

UILabel& UITableViewCell::textLabel() const
{
    return *objectOf<UILabel>([nativeOf(*this) textLabel]);
}

UILabel* UITableViewCell::detailTextLabel() const
{
    return objectOf<UILabel>([nativeOf(*this) detailTextLabel]);
}

UIImageView& UITableViewCell::imageView() const
{
    return *objectOf<UIImageView>([nativeOf(*this) imageView]);
}

UIView* UITableViewCell::accessoryView() const
{
    return objectOf<UIView>([nativeOf(*this) accessoryView]);
}

void UITableViewCell::setAccessoryView(RetainPtr<UIView> view)
{
    [nativeOf(*this) setAccessoryView:ios::nativeOf(view.get())];
}

UIView* UITableViewCell::backgroundView() const
{
    return objectOf<UIView>([nativeOf(*this) backgroundView]);
}

void UITableViewCell::setBackgroundView(RetainPtr<UIView> view)
{
    [nativeOf(*this) setBackgroundView:ios::nativeOf(view.get())];
}

UIView* UITableViewCell::selectedBackgroundView() const
{
    return objectOf<UIView>([nativeOf(*this) selectedBackgroundView]);
}

void UITableViewCell::setSelectedBackgroundView(RetainPtr<UIView> view)
{
    [nativeOf(*this) setSelectedBackgroundView:ios::nativeOf(view.get())];
}

bool UITableViewCell::isSelected() const
{
    return [nativeOf(*this) isSelected];
}

void UITableViewCell::setSelected(bool selected, Animated animated)
{
    [nativeOf(*this) setSelected:selected animated:animated == Animated::Yes];
}

bool UITableViewCell::isHighlighted() const
{
    return [nativeOf(*this) isHighlighted];
}

UITableViewCellSelectionStyle UITableViewCell::selectionStyle() const
{
    return static_cast<UITableViewCellSelectionStyle>([nativeOf(*this) selectionStyle]);
}

void UITableViewCell::setSelectionStyle(UITableViewCellSelectionStyle style)
{
    [nativeOf(*this) setSelectionStyle:static_cast<::UITableViewCellSelectionStyle>(style)];
}

void UITableViewCell::layoutSubviews()
{
    UIView::layoutSubviews();
}

} // namespace brimsound
