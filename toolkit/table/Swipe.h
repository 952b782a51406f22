// Rows that are drawn to the left to be deleted.
#pragma once

#include "toolkit/geometry/Geometry.h"
#include "toolkit/object/Object.h"
#include "toolkit/table/RowPath.h"

#include <optional>

namespace brimsound::toolkit {

class Table;
class View;

/// One row of a table that is moved to the left, and the Delete button that this uncovers at its right. All
/// distances are points.
class Swipe {
public:
    /// The table owns the swipe.
    explicit Swipe(Table& table)
        : _table(table)
    {
    }

    bool isOpen() const { return _row.has_value(); }
    /// The row that is swiped; only while the swipe is open.
    RowPath row() const { return *_row; }
    /// The button beside it; null when no row is swiped.
    View* button() const { return _button.get(); }

    void begin(RowPath);
    void moveTo(double distance);
    /// The finger is gone: opens the swipe all the way, or closes it when less than half of the button shows.
    void end();
    /// Opens a row that can be deleted, as a swipe does.
    void open(RowPath);
    void close();
    /// Closes when the table was scrolled since.
    void closeIfScrolled();
    /// All rows are gone.
    void forget();

    /// Where the row stands, given where it would without a swipe. Places the button beside the swiped row.
    Rect place(RowPath, Rect) const;
    /// Hands over the button when the row is the swiped one, which ends the swipe; else null.
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
