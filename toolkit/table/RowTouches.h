#pragma once

#include "toolkit/input/Touch.h"
#include "toolkit/table/RowPath.h"

#include <optional>

namespace brimsound::toolkit {

class Table;

/// The touch control of the rows of a table. A tap selects a row, a finger that moves toward the start of its
/// text swipes it. A touch on the rows while a swipe is open only closes the swipe.
class RowTouches {
public:
    /// The table owns this object.
    explicit RowTouches(Table& table)
        : _table(table)
    {
    }

    void began(const Touch&);
    void moved(const Touch&);
    void ended(const Touch&);
    void canceled();

    /// Whether the touch is swiping a row and therefore cannot scroll.
    bool isSwiping() const;
    /// Resets the pressed row and ignores the rest of the touch.
    void cancelPress();
    /// Called when all rows were removed.
    void forget() { _touched.reset(); }

private:
    /// The row that the touch began on.
    struct Touched {
        RowPath row;
        /// In the table's own coordinates.
        Point start;
    };

    /// How far the finger moved toward the start of the row's text since it was put down.
    double swipedDistance(Point) const;
    void setPressed(bool) const;

    Table& _table;
    std::optional<Touched> _touched;
};

} // namespace brimsound::toolkit
