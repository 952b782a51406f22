#pragma once

#include "toolkit/geometry/Geometry.h"
#include "toolkit/input/Key.h"
#include "toolkit/table/RowPath.h"

#include <optional>
#include <string>
#include <vector>

namespace brimsound::toolkit {

class TableSource;

/// The positions of the parts of one section, in the table's own coordinates.
struct TableSection {
    std::string header;
    Rect headerRect;
    std::string footer;
    Rect footerRect;
    /// Around all rows.
    Rect rowsRect;
    /// The top of each row, followed by the bottom of the last one.
    std::vector<double> rowTops;

    std::size_t rowCount() const { return rowTops.size() - 1; }
};

/// The measured rows, headers and footers of a table. All lengths are points.
class TableLayout {
public:
    /// Without rows.
    TableLayout() = default;
    /// Asks the source for the rows. A group of rows spans a narrow table from edge to edge; in a wide table
    /// it is a card of a readable width. A table that is not grouped has neither headers nor footers.
    TableLayout(TableSource&, bool grouped, double width);

    const std::vector<TableSection>& sections() const { return _sections; }
    double height() const { return _height; }
    /// The radius of the groups' corners; 0 for groups that span the table.
    double cornerRadius() const { return _cornerRadius; }

    bool hasRow(RowPath) const;
    /// The row must exist.
    Rect rowRect(RowPath) const;
    std::optional<RowPath> rowAt(Point) const;
    std::vector<RowPath> rowsIn(const Rect&) const;
    bool isLastOfSection(RowPath) const;

    /// The nearest row before or after, in this section or in another; nothing at the end.
    std::optional<RowPath> rowBeside(RowPath, Direction) const;
    /// The furthest row whose top is less than the distance away: the next one at least, the row itself at
    /// the end.
    RowPath rowAway(RowPath, Direction, double distance) const;

private:
    void addSection(TableSource&, std::size_t section, bool grouped, double left, double width);
    Rect textRect(const std::string& text, double left, double width) const;

    std::vector<TableSection> _sections;
    double _height = 0;
    double _cornerRadius = 0;
};

} // namespace brimsound::toolkit
