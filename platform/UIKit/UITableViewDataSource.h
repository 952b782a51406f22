// Where a table gets its contents.
#pragma once

#include "platform/Foundation/NSIndexPath.h"
#include "platform/UIKit/UITableViewCell.h"

#include <cstddef>
#include <string>

namespace brimsound {

class UITableView;

/// Asked by a table for its contents. Not retained by it.
class UITableViewDataSource {
public:
    virtual ~UITableViewDataSource() = default;

    virtual std::size_t numberOfSectionsInTableView(UITableView&) { return 1; }
    virtual std::size_t tableViewNumberOfRowsInSection(UITableView&, std::size_t section) = 0;
    virtual RetainPtr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView&, const NSIndexPath&) = 0;
    /// Empty for a section without one.
    virtual std::string tableViewTitleForHeaderInSection(UITableView&, std::size_t /*section*/) { return {}; }
    virtual std::string tableViewTitleForFooterInSection(UITableView&, std::size_t /*section*/) { return {}; }
};

} // namespace brimsound
