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

/// The animation of rows that are inserted or deleted.
enum class UITableViewRowAnimation {
    /// The platform chooses.
    Automatic = 100,
};

/// A scrolling list of rows in sections. It asks its data source for the rows in view and keeps the cells of
/// rows that scrolled out of view for reuse.
class UITableView : public UIScrollView {
public:
    UITableView(const CGRect& frame, UITableViewStyle);

    /// Both setters reload the table. Neither object is retained; both may be null.
    void setDataSource(UITableViewDataSource*);
    void setDelegate(UITableViewDelegate*);

    /// Drops all rows (their cells can be reused) and the selection, and asks for the rows in view again
    /// before the next drawing.
    void reloadData();
    /// Deletes rows that the data source has already removed: it is asked for the number of rows again. All
    /// other rows keep their cells; those below move up.
    void deleteRowsAtIndexPathsWithRowAnimation(const std::vector<NSIndexPath>&, UITableViewRowAnimation);

    /// A cell with that identifier that is no longer in view; null when there is none.
    RetainPtr<UITableViewCell> dequeueReusableCellWithIdentifier(const std::string& identifier);
    /// The frame of a row in the table's content; empty when the row does not exist.
    CGRect rectForRowAtIndexPath(const NSIndexPath&) const;
    /// The cell of a row in view; otherwise null.
    UITableViewCell* cellForRowAtIndexPath(const NSIndexPath&) const;

    /// The color of the lines between rows; null (the initial value) for the platform's default.
    RetainPtr<UIColor> separatorColor() const;
    void setSeparatorColor(RetainPtr<UIColor>);

    void layoutSubviews() override;

protected:
    explicit UITableView(Peer*);
};

} // namespace brimsound
