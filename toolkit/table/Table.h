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

/// A scrolling list of rows in sections. It requests cells for the visible rows from its source, and keeps
/// the cells of rows that scrolled away for reuse. In a grouped table it draws the headers, the footers and
/// the white groups itself, below the cells.
class Table : public ScrollView {
public:
    enum class Style {
        /// One list of rows. The table has the keyboard focus for them.
        List,
        /// Groups of rows with texts above and below.
        Grouped,
    };
    Table(const Rect& frame, Style);

    Style style() const { return _style; }
    /// Not owned; may be null. Reloads the table.
    void setSource(TableSource*);
    /// Drops all rows and the selection; the cells can be reused. The visible rows are requested again before
    /// the next drawing.
    void reload();
    /// Removes rows that the source no longer has. The other rows keep their cells; those below move up.
    void removeRows(const std::set<RowPath>&);
    /// A cell with this identifier that is not in use; may be null.
    Ref<Cell> takeReusableCell(const std::string& identifier);
    /// The color of the hairlines between rows; nothing for the theme's color.
    std::optional<Color> separatorColor() const { return _separatorColor; }
    void setSeparatorColor(std::optional<Color>);

    /// The layout when the rows were last measured, which is before the table is drawn.
    const TableLayout& rows() const { return _rows; }
    /// Whether the rows were measured since the last reload.
    bool isMeasured() const { return _measuredSize.has_value(); }
    /// Measures the rows first if they or the width changed.
    const TableLayout& measuredRows();
    /// The cell of a visible row, otherwise null.
    Cell* cellOf(RowPath) const;
    /// The row that the cell shows; nothing when it is not in use.
    std::optional<RowPath> rowOf(const Cell&) const;
    /// Scrolls as little as necessary to show the row. It then has a cell.
    void scrollToRow(RowPath);

    /// Has the effect of a tap on the row: closes an open swipe, otherwise selects the row.
    void press(RowPath);
    void select(RowPath);
    bool canDelete(RowPath) const;
    /// Asks the source to delete the row. Returns false when the row cannot be deleted.
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
    void touchCanceled() override { _touches.canceled(); }
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
    /// The size for which the rows were measured; unset when the data changed since.
    std::optional<Size> _measuredSize;
    std::map<RowPath, Ref<Cell>> _cells;
    std::multimap<std::string, Ref<Cell>> _reusable;
    /// Cells of removed rows while they move out.
    std::vector<Ref<Cell>> _leaving;
    std::optional<RowPath> _selectedRow;
    RowTouches _touches { *this };
    Swipe _swipe { *this };
    RowKeys _keys { *this };
    /// Counts changes of the rows. Functions that call the source use it to notice changes.
    unsigned _changes = 0;
};

} // namespace brimsound::toolkit
