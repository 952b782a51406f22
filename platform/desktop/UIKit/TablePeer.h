// What stands behind a UITableView.
#pragma once

#include "platform/UIKit/UITableView.h"
#include "platform/desktop/UIKit/ScrollPeer.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace brimsound::desktop {

/// Where the parts of one section stand, in the table's own coordinates.
struct TableSection {
    std::string header;
    CGRect headerRect;
    std::string footer;
    CGRect footerRect;
    /// Around all rows.
    CGRect rowsRect;
    /// The top of each row, and below them the bottom of the last.
    std::vector<double> rowTops;
};

/// Keeps cells for the rows on view only. The looks of a grouped table (headers, footers, the white groups
/// with their hairlines, the pressed row) are drawn by the table itself, below its cells.
struct TablePeer : ScrollPeer {
    explicit TablePeer(UITableViewStyle);

    const UITableViewStyle style;
    UITableViewDataSource* dataSource = nullptr;
    UITableViewDelegate* delegate = nullptr;
    std::vector<TableSection> sections;
    /// What the sections were measured for; unset when the data changed since.
    std::optional<CGSize> measuredSize;
    double height = 0;
    std::map<NSIndexPath, RetainPtr<UITableViewCell>> cells;
    std::multimap<std::string, RetainPtr<UITableViewCell>> reusable;
    std::optional<NSIndexPath> pressedRow;
    bool isPressed = false;
    double pressedAlpha = 0;

    double contentHeight() const override { return height; }
    void willLayOut() override;
    void draw(Canvas&) const override;
    Accessible accessible() const override;
    bool takesTouches() const override { return true; }
    void touchBegan(const Touch&) override;
    void touchMoved(const Touch&) override;
    void touchEnded(const Touch&) override;
    void touchCancelled() override;

    UITableView& table() const { return static_cast<UITableView&>(*view); }
    CGRect rowRect(const NSIndexPath&) const;
    std::optional<NSIndexPath> rowAt(CGPoint) const;
    /// Asks the data source for the rows that came on view and puts those that left aside for reuse.
    void tile();
    void forgetRows();
    void select(const NSIndexPath&);

private:
    void measure();
    void putAside(const RetainPtr<UITableViewCell>&);
    void setPressed(bool);
    void fadePress();
};

TablePeer& peerOf(const UITableView&);

} // namespace brimsound::desktop
