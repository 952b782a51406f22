// Where a table gets its rows.
#pragma once

#include "toolkit/object/Object.h"
#include "toolkit/table/RowPath.h"

#include <cstddef>
#include <string>

namespace brimsound::toolkit {

class Cell;

/// Asked by a table for its rows, and told what the user does with them. It may change the table's rows in
/// any of its calls.
class TableSource {
public:
    virtual ~TableSource() = default;

    virtual std::size_t sectionCount() = 0;
    virtual std::size_t rowCount(std::size_t section) = 0;
    /// In points.
    virtual double rowHeight(RowPath) = 0;
    /// Texts above and below a section of a grouped table; empty for none.
    virtual std::string header(std::size_t section) = 0;
    virtual std::string footer(std::size_t section) = 0;
    /// A cell that shows the row, new or out of the table's reuse; null for none.
    virtual Ref<Cell> cell(RowPath) = 0;
    /// The row's cell has its frame and is about to appear.
    virtual void willShow(Cell&, RowPath) = 0;
    virtual void selected(RowPath) = 0;
    virtual bool canDelete(RowPath) = 0;
    /// The user wants the row deleted. The source removes it from what it shows, then from the table.
    virtual void deleteRow(RowPath) = 0;
};

} // namespace brimsound::toolkit
