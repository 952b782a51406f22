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

} // namespace

UITableViewCell::UITableViewCell(UITableViewCellStyle, const std::string& reuseIdentifier)
    : UITableViewCell(new CellPeer)
{
    auto& peer = peerOf(*this);
    peer.reuseIdentifier = reuseIdentifier;
    peer.frame.size = sizeOfNewCells;
    peer.contentView = make<UIView>(bounds());
    addSubview(*peer.contentView);
    peer.textLabel = make<UILabel>();
    peer.contentView->addSubview(*peer.textLabel);
}

UITableViewCell::UITableViewCell(Peer* peer)
    : UIView(peer)
{
}

const std::string& UITableViewCell::reuseIdentifier() const
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
    contentView().setFrame(CGRectMake(0, 0, free, height));
    textLabel().setFrame(CGRectMake(theme::rowMargin, 0, std::max(0.0, free - 2 * theme::rowMargin), height));
}

namespace desktop {

Accessible CellPeer::accessible() const
{
    if (selectionStyle == UITableViewCellSelectionStyle::None || !textLabel)
        return {};
    return { .role = AccessibleRole::Button, .name = textLabel->text(), .focusable = true };
}

CellPeer& peerOf(const UITableViewCell& cell)
{
    return static_cast<CellPeer&>(cell.peer());
}

void setSizeOfNewCells(CGSize size)
{
    sizeOfNewCells = size;
}

} // namespace desktop

} // namespace brimsound
