// What touches do to the rows of a table.
#pragma once

#include "toolkit/input/Touch.h"
#include "toolkit/table/RowPath.h"

#include <optional>

namespace brimsound::toolkit {

class Table;

/// A tap selects a row, a finger that moves to the left swipes it. A touch beside an open swipe closes that
/// and does nothing else.
class RowTouches {
public:
    /// The table owns this.
    explicit RowTouches(Table& table)
        : _table(table)
    {
    }

    void began(const Touch&);
    void moved(const Touch&);
    void ended(const Touch&);
    void cancelled();

    /// Whether the finger swipes, and so does not scroll.
    bool isSwiping() const;
    /// The row no longer looks pressed, and the touch does nothing more.
    void cancelPress();
    /// All rows are gone.
    void forget() { _touched.reset(); }

private:
    /// The row that the touch began on.
    struct Touched {
        RowPath row;
        /// In the table's own coordinates.
        Point start;
    };

    void setPressed(bool) const;

    Table& _table;
    std::optional<Touched> _touched;
};

} // namespace brimsound::toolkit
