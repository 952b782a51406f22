// Who decides on a table's looks and hears of its rows being tapped.
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSIndexPath.h"

namespace brimsound {

class UITableView;
class UITableViewCell;

/// Asked and told by a table. Not retained by it.
class UITableViewDelegate {
public:
    virtual ~UITableViewDelegate() = default;

    /// In points.
    virtual CGFloat tableViewHeightForRowAtIndexPath(UITableView&, const NSIndexPath&) { return 44; }
    /// Called just before the row's cell appears, when it has its frame.
    virtual void tableViewWillDisplayCellForRowAtIndexPath(UITableView&, UITableViewCell&, const NSIndexPath&)
    {
    }
    virtual void tableViewDidSelectRowAtIndexPath(UITableView&, const NSIndexPath&) { }
};

} // namespace brimsound
