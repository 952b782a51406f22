#include "platform/UIKit/UITableView.h"

#include "platform/desktop/UIKit/TablePeer.h"
#include "platform/desktop/UIKit/Theme.h"

namespace brimsound {

using desktop::peerOf;
using desktop::TablePeer;

UITableView::UITableView(const CGRect& frame, UITableViewStyle style)
    : UIView(new TablePeer(style))
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

RetainPtr<UITableViewCell> UITableView::dequeueReusableCellWithIdentifier(const std::string& identifier)
{
    auto cell = peerOf(*this).reusable.extract(identifier);
    return cell ? cell.mapped() : nullptr;
}

UITableViewCell* UITableView::cellForRowAtIndexPath(const NSIndexPath& indexPath) const
{
    const auto& cells = peerOf(*this).cells;
    const auto found = cells.find(indexPath);
    return found == cells.end() ? nullptr : found->second.get();
}

void UITableView::layoutSubviews()
{
    peerOf(*this).tile();
}

} // namespace brimsound
