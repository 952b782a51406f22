// Tables: scrolling lists of rows in sections.
#pragma once

#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UITableViewDataSource.h"
#include "platform/UIKit/UITableViewDelegate.h"

#include <string>
#include <vector>

namespace brimsound {

enum class UITableViewStyle {
    Plain = 0,
    Grouped = 1,
};

/// How rows come and go.
enum class UITableViewRowAnimation {
    /// As the platform thinks best.
    Automatic = 100,
};

/// A list that asks its data source for the rows on view and keeps those that scrolled off for reuse.
class UITableView : public UIScrollView {
public:
    UITableView(const CGRect& frame, UITableViewStyle);

    /// Both reload the table. Neither object is retained; null for none.
    void setDataSource(UITableViewDataSource*);
    void setDelegate(UITableViewDelegate*);

    /// Forgets all rows (they can be reused) and what was selected, and asks for the rows on view anew before
    /// the next drawing.
    void reloadData();
    /// Takes rows away, of which the data source has let go already: it is asked for the number of rows anew.
    /// All other rows keep their cells; those below move up.
    void deleteRowsAtIndexPathsWithRowAnimation(const std::vector<NSIndexPath>&, UITableViewRowAnimation);

    /// A cell that was made with the identifier and is no longer on view; null when there is none.
    RetainPtr<UITableViewCell> dequeueReusableCellWithIdentifier(const std::string& identifier);
    /// Where a row stands in the table's contents; empty for a row that there is not.
    CGRect rectForRowAtIndexPath(const NSIndexPath&) const;
    /// The cell of a row that is on view, else null.
    UITableViewCell* cellForRowAtIndexPath(const NSIndexPath&) const;

    /// The hairlines between rows; null (as at first) for the platform's own color.
    RetainPtr<UIColor> separatorColor() const;
    void setSeparatorColor(RetainPtr<UIColor>);

    void layoutSubviews() override;

protected:
    explicit UITableView(Peer*);
};

} // namespace brimsound
