// Tables: scrolling lists of rows in sections.
#pragma once

#include "platform/UIKit/UITableViewDataSource.h"
#include "platform/UIKit/UITableViewDelegate.h"

#include <string>

namespace brimsound {

enum class UITableViewStyle {
    Plain = 0,
    Grouped = 1,
};

/// A list that asks its data source for the rows on view and keeps those that scrolled off for reuse.
class UITableView : public UIView {
public:
    UITableView(const CGRect& frame, UITableViewStyle);

    /// Neither is retained; null for none.
    void setDataSource(UITableViewDataSource*);
    void setDelegate(UITableViewDelegate*);

    /// Forgets all rows (they can be reused) and asks for those on view anew.
    void reloadData();

    /// A cell that was made with the identifier and is no longer on view; null when there is none.
    RetainPtr<UITableViewCell> dequeueReusableCellWithIdentifier(const std::string& identifier);
    /// The cell of a row that is on view, else null.
    UITableViewCell* cellForRowAtIndexPath(const NSIndexPath&) const;

    void layoutSubviews() override;
};

} // namespace brimsound
