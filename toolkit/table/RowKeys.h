// What keys do to the rows of a list.
#pragma once

#include "toolkit/input/Key.h"
#include "toolkit/table/RowPath.h"

#include <optional>

namespace brimsound::toolkit {

class Table;

/// The row of a list that has the keyboard. The arrows, Page Up, Page Down, Home and End move to another row,
/// Return and Space press the row, Delete deletes it.
class RowKeys {
public:
    /// The table owns this.
    explicit RowKeys(Table& table)
        : _table(table)
    {
    }

    /// False for a table without rows.
    bool pressed(Key, KeyStroke);

    /// Where the keyboard was moved to; there may be no such row any more.
    RowPath row() const { return _row; }
    void moveTo(RowPath row) { _row = row; }
    void forget() { _row = {}; }
    /// The row that has the keyboard: that one or, where it is gone, one beside it. Nothing without rows.
    std::optional<RowPath> shownRow() const;

private:
    void show(RowPath);

    Table& _table;
    RowPath _row;
};

} // namespace brimsound::toolkit
