// Scrolling lists of rows in sections.
#pragma once

#include "toolkit/scroll/ScrollView.h"
#include "toolkit/table/Cell.h"
#include "toolkit/table/RowKeys.h"
#include "toolkit/table/RowTouches.h"
#include "toolkit/table/Swipe.h"
#include "toolkit/table/TableLayout.h"
#include "toolkit/table/TableSource.h"

#include <map>
#include <optional>
#include <set>
#include <vector>

namespace brimsound::toolkit {

/// Asks its source for the rows on view and keeps the cells of those that scrolled off for reuse. What is
/// around the rows of a grouped table (headers, footers, the white groups) is drawn by the table itself,
/// below its cells.
class Table : public ScrollView {
public:
    enum class Style {
        /// One list of rows, which takes the keyboard for its rows.
        List,
        /// Groups of rows with texts above and below.
        Grouped,
    };
    Table(const Rect& frame, Style);

    Style style() const { return _style; }
    /// Not owned; null for none. Reloads the table.
    void setSource(TableSource*);
    /// Forgets all rows (their cells can be reused) and what was selected; the rows on view are asked for
    /// anew before the next drawing.
    void reload();
    /// Removes rows that the source no longer has. All others keep their cells; those below move up.
    void removeRows(const std::set<RowPath>&);
    /// A cell that was made with the identifier and is not on view; null when there is none.
    Ref<Cell> takeReusableCell(const std::string& identifier);
    /// The hairlines between rows; nothing for the theme's color.
    std::optional<Color> separatorColor() const { return _separatorColor; }
    void setSeparatorColor(std::optional<Color>);

    /// As last measured, which is before the table is drawn.
    const TableLayout& rows() const { return _rows; }
    /// Whether the rows were measured since the last reload.
    bool isMeasured() const { return _measuredSize.has_value(); }
    /// Measured now where the rows or the width changed since.
    const TableLayout& measuredRows();
    /// The cell of a row that is on view, else null.
    Cell* cellOf(RowPath) const;
    /// The row that the cell stands for; nothing when it is not on view.
    std::optional<RowPath> rowOf(const Cell&) const;
    /// Scrolls as little as it takes to show the row, which then has its cell.
    void scrollToRow(RowPath);

    /// Does what a tap on the row does: closes an open swipe, else selects the row.
    void press(RowPath);
    void select(RowPath);
    bool canDelete(RowPath) const;
    /// Has the source delete the row. False when the row cannot be deleted.
    bool deleteRow(RowPath);
    Swipe& swipe() { return _swipe; }

    double contentHeight() const override { return _rows.height(); }
    void layOut() override;
    void draw(Canvas&) const override;
    Role role() const override { return _style == Style::Grouped ? Role::Table : Role::List; }
    bool isFocusable() const override { return _style == Style::List && !_cells.empty(); }
    Accessible accessible() const override;

    bool takesTouches() const override { return true; }
    bool yieldsToScrolling() const override { return !_touches.isSwiping(); }
    void touchBegan(const Touch& touch) override { _touches.began(touch); }
    void touchMoved(const Touch& touch) override { _touches.moved(touch); }
    void touchEnded(const Touch& touch) override { _touches.ended(touch); }
    void touchCancelled() override { _touches.cancelled(); }
    bool keyPressed(Key, KeyStroke) override;
    FocusRing focusRing() const override;
    View& focusedPart() override;
    void focusOn(View&) override;
    void scrollToFocus() override;

private:
    friend class Swipe;

    void measure();
    void makeCells(double distanceBelow);
    void placeCells();
    RowAppearance appearanceOf(RowPath) const;
    Color shownSeparatorColor() const;
    void putAside(const Ref<Cell>&);
    void slideOut(RowPath, const Ref<Cell>&);

    const Style _style;
    TableSource* _source = nullptr;
    std::optional<Color> _separatorColor;
    TableLayout _rows;
    /// What the rows were measured for; unset when the data changed since.
    std::optional<Size> _measuredSize;
    std::map<RowPath, Ref<Cell>> _cells;
    std::multimap<std::string, Ref<Cell>> _reusable;
    /// Cells of removed rows on their way out.
    std::vector<Ref<Cell>> _leaving;
    std::optional<RowPath> _selectedRow;
    RowTouches _touches { *this };
    Swipe _swipe { *this };
    RowKeys _keys { *this };
    /// Counts changes of the rows, so that a function that asks the source about them notices changes.
    unsigned _changes = 0;
};

} // namespace brimsound::toolkit
