#include "platform/UIKit/UITableView.h"

#include "platform/desktop/UIKit/TablePeer.h"
#include "platform/desktop/UIKit/Theme.h"

namespace brimsound {

using desktop::peerOf;
using desktop::TablePeer;

UITableView::UITableView(Peer* peer)
    : UIScrollView(peer)
{
}

UITableView::UITableView(const CGRect& frame, UITableViewStyle style)
    : UITableView(new TablePeer(style))
{
    auto& peer = peerOf(*this);
    peer.frame = frame;
    const auto color
        = style == UITableViewStyle::Grouped ? desktop::theme::background : desktop::theme::rowBackground;
    setBackgroundColor(UIColor::colorWithRedGreenBlueAlpha(color.red, color.green, color.blue, color.alpha));
}

void UITableView::setDataSource(UITableViewDataSource* dataSource)
{
    peerOf(*this).dataSource = dataSource;
    reloadData();
}

void UITableView::setDelegate(UITableViewDelegate* delegate)
{
    peerOf(*this).delegate = delegate;
    reloadData();
}

void UITableView::reloadData()
{
    peerOf(*this).forgetRows();
    setNeedsLayout();
    desktop::setNeedsDisplay(*this);
}

void UITableView::deleteRowsAtIndexPathsWithRowAnimation(
    const std::vector<NSIndexPath>& rows, UITableViewRowAnimation)
{
    peerOf(*this).removeRows({ rows.begin(), rows.end() });
}

RetainPtr<UITableViewCell> UITableView::dequeueReusableCellWithIdentifier(const std::string& identifier)
{
    auto cell = peerOf(*this).reusable.extract(identifier);
    return cell ? cell.mapped() : nullptr;
}

CGRect UITableView::rectForRowAtIndexPath(const NSIndexPath& indexPath) const
{
    auto& peer = peerOf(*this);
    peer.willLayOut();
    return peer.hasRow(indexPath) ? peer.rowRect(indexPath) : CGRect();
}

UITableViewCell* UITableView::cellForRowAtIndexPath(const NSIndexPath& indexPath) const
{
    const auto& cells = peerOf(*this).cells;
    const auto found = cells.find(indexPath);
    return found == cells.end() ? nullptr : found->second.get();
}

RetainPtr<UIColor> UITableView::separatorColor() const
{
    return peerOf(*this).separatorColor;
}

void UITableView::setSeparatorColor(RetainPtr<UIColor> color)
{
    peerOf(*this).separatorColor = std::move(color);
    setNeedsLayout();
    desktop::setNeedsDisplay(*this);
}

void UITableView::layoutSubviews()
{
    peerOf(*this).tile();
}

} // namespace brimsound
