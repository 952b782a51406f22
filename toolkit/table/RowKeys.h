#pragma once

#include "toolkit/input/Key.h"
#include "toolkit/table/RowPath.h"

#include <optional>

namespace brimsound::toolkit {

class Table;

/// The keyboard control of the rows of a list. The arrow keys, Page Up, Page Down, Home and End move to
/// another row, Return and Space press the row, Delete deletes it.
class RowKeys {
public:
    /// The table owns this object.
    explicit RowKeys(Table& table)
        : _table(table)
    {
    }

    /// False for a table without rows.
    bool pressed(Key, KeyStroke);

    /// The row that the keys moved to. It may not exist any more.
    RowPath row() const { return _row; }
    void moveTo(RowPath row) { _row = row; }
    void forget() { _row = {}; }
    /// The focused row: row(), or the nearest one when that does not exist. Nothing without rows.
    std::optional<RowPath> shownRow() const;

private:
    void show(RowPath);

    Table& _table;
    RowPath _row;
};

} // namespace brimsound::toolkit
