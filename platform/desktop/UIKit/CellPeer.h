// What stands behind a UITableViewCell.
#pragma once

#include "platform/UIKit/UITableViewCell.h"
#include "platform/desktop/UIKit/ViewPeer.h"

#include <string>

namespace brimsound::desktop {

struct CellPeer : ViewPeer {
    std::string reuseIdentifier;
    RetainPtr<UIView> contentView;
    RetainPtr<UILabel> textLabel;
    RetainPtr<UIView> accessoryView;
    UITableViewCellSelectionStyle selectionStyle = UITableViewCellSelectionStyle::Default;

    Accessible accessible() const override;
};

CellPeer& peerOf(const UITableViewCell&);

/// The size of the cells that are made from now on: that of the row which a table is asking for. Without it a
/// cell would be laid out for some other width before it is ever seen.
void setSizeOfNewCells(CGSize);

} // namespace brimsound::desktop
