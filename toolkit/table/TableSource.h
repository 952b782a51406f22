#pragma once

#include "toolkit/object/Object.h"
#include "toolkit/table/RowPath.h"

#include <cstddef>
#include <string>

namespace brimsound::toolkit {

class Cell;

/// Provides the rows of a table, and is called when the user selects or deletes one. It may change the rows
/// of the table in any call.
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
    /// A new or reused cell that shows the row; may be null.
    virtual Ref<Cell> cell(RowPath) = 0;
    /// Called before the row's cell appears, with its frame set.
    virtual void willShow(Cell&, RowPath) = 0;
    virtual void selected(RowPath) = 0;
    virtual bool canDelete(RowPath) = 0;
    /// Called when the user deletes the row. The source removes it from its data and then from the table.
    virtual void deleteRow(RowPath) = 0;
};

} // namespace brimsound::toolkit
