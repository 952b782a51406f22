#include "platform/UIKit/UITableViewCell.h"

#include "platform/desktop/UIKit/CellPeer.h"
#include "platform/desktop/UIKit/Theme.h"

namespace brimsound {

using desktop::CellPeer;
using desktop::peerOf;
namespace theme = desktop::theme;

namespace {

/// The platform's own size of a new cell.
CGSize sizeOfNewCells { 320, 44 };

constexpr double detailTextSize = 12;

} // namespace

UITableViewCell::UITableViewCell(UITableViewCellStyle style, const std::string& reuseIdentifier)
    : UITableViewCell(new CellPeer)
{
    auto& peer = peerOf(*this);
    peer.reuseIdentifier = reuseIdentifier;
    peer.frame.size = sizeOfNewCells;
    peer.contentView = make<UIView>(bounds());
    addSubview(*peer.contentView);
    peer.textLabel = make<UILabel>();
    peer.contentView->addSubview(*peer.textLabel);
    if (style == UITableViewCellStyle::Subtitle) {
        peer.detailTextLabel = make<UILabel>();
        peer.detailTextLabel->setFont(UIFont::systemFontOfSize(detailTextSize));
        peer.contentView->addSubview(*peer.detailTextLabel);
    }
    peer.selectedBackgroundView = desktop::makeSelectedBackground();
    peer.selectedBackgroundView->setFrame(bounds());
}

UITableViewCell::UITableViewCell(Peer* peer)
    : UIView(peer)
{
}

std::string UITableViewCell::reuseIdentifier() const
{
    return peerOf(*this).reuseIdentifier;
}

UIView& UITableViewCell::contentView() const
{
    return *peerOf(*this).contentView;
}

UILabel& UITableViewCell::textLabel() const
{
    return *peerOf(*this).textLabel;
}

UILabel* UITableViewCell::detailTextLabel() const
{
    return peerOf(*this).detailTextLabel.get();
}

UIImageView& UITableViewCell::imageView() const
{
    auto& peer = peerOf(*this);
    if (!peer.imageView) {
        peer.imageView = make<UIImageView>();
        peer.contentView->addSubview(*peer.imageView);
    }
    return *peer.imageView;
}

UIView* UITableViewCell::accessoryView() const
{
    return peerOf(*this).accessoryView.get();
}

void UITableViewCell::setAccessoryView(RetainPtr<UIView> view)
{
    auto& peer = peerOf(*this);
    if (peer.accessoryView)
        peer.accessoryView->removeFromSuperview();
    peer.accessoryView = std::move(view);
    if (peer.accessoryView)
        addSubview(*peer.accessoryView);
    setNeedsLayout();
}

UIView* UITableViewCell::backgroundView() const
{
    return peerOf(*this).backgroundView.get();
}

void UITableViewCell::setBackgroundView(RetainPtr<UIView> view)
{
    auto& peer = peerOf(*this);
    if (peer.backgroundView)
        peer.backgroundView->removeFromSuperview();
    peer.backgroundView = std::move(view);
    if (peer.backgroundView)
        desktop::insertSubview(*this, *peer.backgroundView, 0);
    setNeedsLayout();
}

UIView* UITableViewCell::selectedBackgroundView() const
{
    return peerOf(*this).selectedBackgroundView.get();
}

void UITableViewCell::setSelectedBackgroundView(RetainPtr<UIView> view)
{
    auto& peer = peerOf(*this);
    if (peer.selectedBackgroundView)
        peer.selectedBackgroundView->removeFromSuperview();
    peer.selectedBackgroundView = std::move(view);
    peer.placeSelectedBackground();
}

bool UITableViewCell::isSelected() const
{
    return peerOf(*this).isSelected;
}

void UITableViewCell::setSelected(bool selected, Animated animated)
{
    auto& peer = peerOf(*this);
    if (std::exchange(peer.isSelected, selected) != selected)
        desktop::accessibleChanged(*this, desktop::AccessibleChange::StateChanged);
    peer.showState(animated);
}

bool UITableViewCell::isHighlighted() const
{
    return peerOf(*this).isHighlighted;
}

UITableViewCellSelectionStyle UITableViewCell::selectionStyle() const
{
    return peerOf(*this).selectionStyle;
}

void UITableViewCell::setSelectionStyle(UITableViewCellSelectionStyle style)
{
    peerOf(*this).selectionStyle = style;
}

void UITableViewCell::layoutSubviews()
{
    const auto& peer = peerOf(*this);
    const auto [width, height] = bounds().size;
    double free = width;
    if (peer.accessoryView) {
        const auto size = peer.accessoryView->bounds().size;
        free = width - theme::rowMargin - size.width;
        peer.accessoryView->setFrame(CGRectMake(free, (height - size.height) / 2, size.width, size.height));
    }
    for (const auto& background : { peer.backgroundView, peer.selectedBackgroundView }) {
        if (background)
            background->setFrame(bounds());
    }
    contentView().setFrame(CGRectMake(0, 0, free, height));
    peer.placeContents();
}

namespace desktop {

void setSizeOfNewCells(CGSize size)
{
    sizeOfNewCells = size;
}

} // namespace desktop

} // namespace brimsound
