// What stands behind a UITableView.
#pragma once

#include "platform/UIKit/UITableView.h"
#include "platform/desktop/UIKit/CellPeer.h"
#include "platform/desktop/UIKit/ScrollPeer.h"

#include <map>
#include <optional>
#include <set>
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

/// The row that a touch of the table began on.
struct TouchedRow {
    NSIndexPath row;
    /// In the table's own coordinates.
    CGPoint start;
};

/// A row that is drawn to the left, and the button that this uncovers at its right.
struct SwipedRow {
    NSIndexPath row;
    RetainPtr<UIView> button;
    /// How far the table was scrolled then, and how far the row is drawn, in points.
    double offset = 0;
    double distance = 0;
};

/// Keeps cells for the rows on view only. The looks of a grouped table (headers, footers, the white groups)
/// are drawn by the table itself, below its cells.
struct TablePeer : ScrollPeer {
    explicit TablePeer(UITableViewStyle);

    const UITableViewStyle style;
    UITableViewDataSource* dataSource = nullptr;
    UITableViewDelegate* delegate = nullptr;
    RetainPtr<UIColor> separatorColor;
    std::vector<TableSection> sections;
    /// What the sections were measured for; unset when the data changed since.
    std::optional<CGSize> measuredSize;
    double height = 0;
    std::map<NSIndexPath, RetainPtr<UITableViewCell>> cells;
    std::multimap<std::string, RetainPtr<UITableViewCell>> reusable;
    /// Cells of deleted rows on their way out.
    std::vector<RetainPtr<UITableViewCell>> leaving;
    std::optional<NSIndexPath> selectedRow;
    std::optional<TouchedRow> touchedRow;
    std::optional<SwipedRow> swipedRow;
    /// The row of a list that the keyboard was moved to.
    std::optional<NSIndexPath> focusedRow;

    double contentHeight() const override { return height; }
    void willLayOut() override;
    void draw(Canvas&) const override;
    Accessible accessible() const override;
    bool takesTouches() const override { return true; }
    bool yieldsToScrolling() const override { return !touchedRow || !swipedRow; }
    void touchBegan(const Touch&) override;
    void touchMoved(const Touch&) override;
    void touchEnded(const Touch&) override;
    void touchCancelled() override;
    /// A list takes the keyboard for its rows: the arrows, Page Up, Page Down, Home and End move to another
    /// one, Return and Space tap it, Delete deletes it.
    bool keyPressed(Key, KeyStroke) override;
    FocusRing focusRing() const override;
    UIView& focusedPart() const override;
    void focusOn(UIView&) override;
    void scrollToFocus() override;

    UITableView& table() const { return static_cast<UITableView&>(*view); }
    bool hasRow(const NSIndexPath&) const;
    CGRect rowRect(const NSIndexPath&) const;
    std::optional<NSIndexPath> rowAt(CGPoint) const;
    /// The row that the cell stands for; nothing when it is not on view.
    std::optional<NSIndexPath> rowOf(const UITableViewCell&) const;
    /// Scrolls as little as it takes to show the row, which then has its cell.
    void scrollToRow(const NSIndexPath&);

    /// Asks the data source for the rows that came on view and puts those that left aside for reuse.
    void tile();
    void forgetRows();

    /// Does what a tap on the row does.
    void select(const NSIndexPath&);
    bool canDelete(const NSIndexPath&) const;
    /// Asks the data source to delete the row as if its button had been pressed. False when it is not to be
    /// deleted.
    bool deleteRow(const NSIndexPath&);
    /// Draws the row to the left as a swipe does, so that its button shows.
    void revealDelete(const NSIndexPath&);
    void deleteSwipedRow();
    /// Takes rows out that the data source no longer has.
    void removeRows(const std::set<NSIndexPath>&);

private:
    void measure();
    void makeCells(double distanceBelow);
    void placeCells();
    std::vector<NSIndexPath> rowsIn(const CGRect&) const;
    RowSetting settingOf(const NSIndexPath&) const;
    Color shownSeparatorColor() const;
    void putAside(const RetainPtr<UITableViewCell>&);
    void letGo(const NSIndexPath&, const RetainPtr<UITableViewCell>&);

    std::optional<NSIndexPath> keyboardRow() const;
    std::optional<NSIndexPath> rowBeside(const NSIndexPath&, Direction) const;
    NSIndexPath rowAway(NSIndexPath, Direction, double distance) const;
    void moveKeyboardTo(const NSIndexPath&);

    void setPressed(bool);
    void beginSwipe(const NSIndexPath&);
    void drawSwipedRow(double distance);
    void endSwipe();
    void openSwipe();
    void closeSwipe();

    /// Counts changes of the rows, so that whoever asks about them notices that they changed meanwhile.
    unsigned _changes = 0;
};

TablePeer& peerOf(const UITableView&);

} // namespace brimsound::desktop
