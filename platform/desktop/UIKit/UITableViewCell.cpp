#include "platform/UIKit/UITableViewCell.h"

#include "platform/desktop/UIKit/HostedView.h"
#include "toolkit/table/Cell.h"

namespace brimsound {

namespace {

toolkit::Cell& native(const UITableViewCell& cell)
{
    return desktop::nativeOf<toolkit::Cell>(cell);
}

toolkit::Cell::Style nativeStyle(UITableViewCellStyle style)
{
    return style == UITableViewCellStyle::Subtitle ? toolkit::Cell::Style::Subtitle
                                                   : toolkit::Cell::Style::OneText;
}

} // namespace

UITableViewCell::UITableViewCell(UITableViewCellStyle style, const std::string& reuseIdentifier)
    : UITableViewCell(desktop::peer(new desktop::Hosted<toolkit::Cell>(nativeStyle(style), reuseIdentifier)))
{
}

UITableViewCell::UITableViewCell(Peer* peer)
    : UIView(peer)
{
}

std::string UITableViewCell::reuseIdentifier() const
{
    return native(*this).reuseIdentifier();
}

UIView& UITableViewCell::contentView() const
{
    return *desktop::viewOf(&native(*this).content());
}

UILabel& UITableViewCell::textLabel() const
{
    return desktop::objectOf<UILabel>(native(*this).textLabel());
}

UILabel* UITableViewCell::detailTextLabel() const
{
    auto* label = native(*this).detailLabel();
    return label ? &desktop::objectOf<UILabel>(*label) : nullptr;
}

UIImageView& UITableViewCell::imageView() const
{
    return desktop::objectOf<UIImageView>(native(*this).imageView());
}

UIView* UITableViewCell::accessoryView() const
{
    return desktop::viewOf(native(*this).accessory());
}

void UITableViewCell::setAccessoryView(RetainPtr<UIView> view)
{
    native(*this).setAccessory(desktop::nativeOf<toolkit::View>(view.get()));
}

UIView* UITableViewCell::backgroundView() const
{
    return desktop::viewOf(native(*this).backgroundView());
}

void UITableViewCell::setBackgroundView(RetainPtr<UIView> view)
{
    native(*this).setBackgroundView(desktop::nativeOf<toolkit::View>(view.get()));
}

UIView* UITableViewCell::selectedBackgroundView() const
{
    return desktop::viewOf(native(*this).selectedBackgroundView());
}

void UITableViewCell::setSelectedBackgroundView(RetainPtr<UIView> view)
{
    native(*this).setSelectedBackgroundView(desktop::nativeOf<toolkit::View>(view.get()));
}

bool UITableViewCell::isSelected() const
{
    return native(*this).isSelected();
}

void UITableViewCell::setSelected(bool selected, Animated animated)
{
    native(*this).setSelected(selected, animated == Animated::Yes);
}

bool UITableViewCell::isHighlighted() const
{
    return native(*this).isHighlighted();
}

UITableViewCellSelectionStyle UITableViewCell::selectionStyle() const
{
    return native(*this).isSelectable() ? UITableViewCellSelectionStyle::Default
                                        : UITableViewCellSelectionStyle::None;
}

void UITableViewCell::setSelectionStyle(UITableViewCellSelectionStyle style)
{
    native(*this).setSelectable(style != UITableViewCellSelectionStyle::None);
}

void UITableViewCell::layoutSubviews()
{
    UIView::layoutSubviews();
}

} // namespace brimsound
