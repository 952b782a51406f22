#include "toolkit/table/RowKeys.h"

#include "toolkit/table/Table.h"

#include <limits>

namespace brimsound::toolkit {

namespace {

constexpr double everything = std::numeric_limits<double>::infinity();

} // namespace

bool RowKeys::pressed(Key key, KeyStroke stroke)
{
    const auto row = shownRow();
    if (!row)
        return false;
    const auto& rows = _table.rows();
    const double page = _table.frame().size.height;
    switch (key) {
    case Key::Up:
        show(rows.rowAway(*row, Direction::Previous, 0));
        break;
    case Key::Down:
        show(rows.rowAway(*row, Direction::Next, 0));
        break;
    case Key::PageUp:
        show(rows.rowAway(*row, Direction::Previous, page));
        break;
    case Key::PageDown:
        show(rows.rowAway(*row, Direction::Next, page));
        break;
    case Key::Home:
        show(rows.rowAway(*row, Direction::Previous, everything));
        break;
    case Key::End:
        show(rows.rowAway(*row, Direction::Next, everything));
        break;
    case Key::Return:
    case Key::Space:
        _table.scrollToRow(*row);
        if (auto* cell = _table.cellOf(*row); cell && stroke == KeyStroke::First)
            cell->activate();
        break;
    case Key::Delete:
        if (stroke == KeyStroke::First)
            _table.deleteRow(*row);
        break;
    default:
        break;
    }
    return true;
}

std::optional<RowPath> RowKeys::shownRow() const
{
    const auto& rows = _table.rows();
    if (rows.hasRow(_row))
        return _row;
    if (const auto before = rows.rowBeside(_row, Direction::Previous))
        return before;
    return rows.rowBeside(_row, Direction::Next);
}

void RowKeys::show(RowPath row)
{
    _row = row;
    _table.scrollToRow(row);
    _table.setNeedsDisplay();
    _table.focusedPart().accessibleChanged(AccessibleChange::FocusMoved);
}

} // namespace brimsound::toolkit
