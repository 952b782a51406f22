#pragma once

#include "platform/Foundation/NSIndexPath.h"
#include "platform/UIKit/UITableViewCell.h"

#include <cstddef>
#include <string>

namespace brimsound {

class UITableView;

/// Provides the contents of a table. The table does not retain it.
class UITableViewDataSource {
public:
    virtual ~UITableViewDataSource() = default;

    virtual std::size_t numberOfSectionsInTableView(UITableView&) { return 1; }
    virtual std::size_t tableViewNumberOfRowsInSection(UITableView&, std::size_t section) = 0;
    virtual RetainPtr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView&, const NSIndexPath&) = 0;
    /// Whether the user may delete the row.
    virtual bool tableViewCanEditRowAtIndexPath(UITableView&, const NSIndexPath&) { return false; }
    /// The user asked to delete the row. The row still exists: the data source removes it and then deletes
    /// the row from the table.
    virtual void tableViewCommitEditingStyleForRowAtIndexPath(
        UITableView&, UITableViewCellEditingStyle, const NSIndexPath&)
    {
    }
    /// Empty for a section without a header. A plain table shows neither headers nor footers.
    virtual std::string tableViewTitleForHeaderInSection(UITableView&, std::size_t /*section*/) { return {}; }
    virtual std::string tableViewTitleForFooterInSection(UITableView&, std::size_t /*section*/) { return {}; }
};

} // namespace brimsound
