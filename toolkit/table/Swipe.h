#pragma once

#include "toolkit/geometry/Geometry.h"
#include "toolkit/object/Object.h"
#include "toolkit/table/RowPath.h"

#include <optional>

namespace brimsound::toolkit {

class Table;
class View;

/// A row of a table that is moved toward the start of its text, to the left in a window laid out from left to
/// right, and the Delete button that appears at its end. All distances are points.
class Swipe {
public:
    /// The table owns this object.
    explicit Swipe(Table& table)
        : _table(table)
    {
    }

    bool isOpen() const { return _row.has_value(); }
    /// The swiped row. Only while the swipe is open.
    RowPath row() const { return *_row; }
    /// The Delete button; null when no row is swiped.
    View* button() const { return _button.get(); }

    void begin(RowPath);
    void moveTo(double distance);
    /// Called when the finger is lifted: opens the swipe completely, or closes it when less than half of the
    /// button is visible.
    void end();
    /// Opens the swipe of a row, if the row can be deleted.
    void open(RowPath);
    void close();
    /// Closes the swipe when the table was scrolled after it began.
    void closeIfScrolled();
    /// Called when all rows were removed.
    void forget();

    /// The row's frame, given its frame without a swipe. Also places the button next to the swiped row.
    Rect place(RowPath, Rect) const;
    /// Ends the swipe of this row and returns its button, which stays in the table. Null when this is not the
    /// swiped row.
    Ref<View> takeButtonOf(RowPath);

private:
    void slideTo(double distance);

    Table& _table;
    std::optional<RowPath> _row;
    Ref<View> _button;
    /// How far the row is moved, and how far the table was scrolled when the swipe began.
    double _distance = 0;
    double _offset = 0;
};

} // namespace brimsound::toolkit
