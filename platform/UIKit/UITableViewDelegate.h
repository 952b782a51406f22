#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSIndexPath.h"

namespace brimsound {

class UITableView;
class UITableViewCell;

/// Decides how a table's rows look and is called when a row is tapped. The table does not retain it.
class UITableViewDelegate {
public:
    virtual ~UITableViewDelegate() = default;

    /// In points.
    virtual CGFloat tableViewHeightForRowAtIndexPath(UITableView&, const NSIndexPath&) { return 44; }
    /// Called just before the row's cell appears. The cell already has its frame.
    virtual void tableViewWillDisplayCellForRowAtIndexPath(UITableView&, UITableViewCell&, const NSIndexPath&)
    {
    }
    virtual void tableViewDidSelectRowAtIndexPath(UITableView&, const NSIndexPath&) { }
};

} // namespace brimsound
