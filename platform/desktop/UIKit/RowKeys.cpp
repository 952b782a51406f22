// What keys do to the rows of a list.
#include "platform/desktop/UIKit/TablePeer.h"

#include "platform/desktop/UIKit/Press.h"

#include <algorithm>
#include <limits>

namespace brimsound::desktop {

namespace {

constexpr double everything = std::numeric_limits<double>::infinity();

} // namespace

bool TablePeer::keyPressed(Key key, KeyStroke stroke)
{
    const auto row = keyboardRow();
    if (style != UITableViewStyle::Plain || !row)
        return false;
    const double page = frame.size.height;
    switch (key) {
    case Key::Up:
        moveKeyboardTo(rowAway(*row, Direction::Previous, 0));
        break;
    case Key::Down:
        moveKeyboardTo(rowAway(*row, Direction::Next, 0));
        break;
    case Key::PageUp:
        moveKeyboardTo(rowAway(*row, Direction::Previous, page));
        break;
    case Key::PageDown:
        moveKeyboardTo(rowAway(*row, Direction::Next, page));
        break;
    case Key::Home:
        moveKeyboardTo(rowAway(*row, Direction::Previous, everything));
        break;
    case Key::End:
        moveKeyboardTo(rowAway(*row, Direction::Next, everything));
        break;
    case Key::Return:
    case Key::Space:
        scrollToRow(*row);
        if (auto* cell = table().cellForRowAtIndexPath(*row); cell && stroke == KeyStroke::First)
            press(*cell);
        break;
    case Key::Delete:
        if (stroke == KeyStroke::First)
            deleteRow(*row);
        break;
    default:
        break;
    }
    return true;
}

std::optional<NSIndexPath> TablePeer::keyboardRow() const
{
    const auto wanted = focusedRow.value_or(NSIndexPath {});
    if (hasRow(wanted))
        return wanted;
    // Rows may have gone.
    if (const auto before = rowBeside(wanted, Direction::Previous))
        return before;
    return rowBeside(wanted, Direction::Next);
}

std::optional<NSIndexPath> TablePeer::rowBeside(const NSIndexPath& row, Direction direction) const
{
    const auto rowsIn = [&](std::size_t section) { return sections[section].rowTops.size() - 1; };
    if (direction == Direction::Next) {
        if (hasRow({ row.section, row.row + 1 }))
            return NSIndexPath { row.section, row.row + 1 };
        for (auto section = row.section + 1; section < sections.size(); ++section) {
            if (rowsIn(section) > 0)
                return NSIndexPath { section, 0 };
        }
        return std::nullopt;
    }
    for (auto section = std::min(row.section + 1, sections.size()); section-- > 0;) {
        const auto end = section == row.section ? std::min(row.row, rowsIn(section)) : rowsIn(section);
        if (end > 0)
            return NSIndexPath { section, end - 1 };
    }
    return std::nullopt;
}

NSIndexPath TablePeer::rowAway(NSIndexPath row, Direction direction, double distance) const
{
    const double start = rowRect(row).origin.y;
    // One row at least, and on as long as that stays within the distance.
    for (auto next = rowBeside(row, direction); next; next = rowBeside(row, direction)) {
        const bool isFirst = rowRect(row).origin.y == start;
        if (!isFirst && std::abs(rowRect(*next).origin.y - start) >= distance)
            break;
        row = *next;
    }
    return row;
}

void TablePeer::moveKeyboardTo(const NSIndexPath& row)
{
    focusedRow = row;
    scrollToRow(row);
    setNeedsDisplay(*view);
    accessibleChanged(focusedPart(), AccessibleChange::FocusMoved);
}

FocusRing TablePeer::focusRing() const
{
    const auto row = keyboardRow();
    return { row ? insetBy(rowRect(*row), focusRingInset, focusRingInset) : CGRect {},
        focusRingRadius(*view) };
}

UIView& TablePeer::focusedPart() const
{
    const auto row = keyboardRow();
    auto* cell = row ? table().cellForRowAtIndexPath(*row) : nullptr;
    return cell ? *cell : *view;
}

void TablePeer::focusOn(UIView& part)
{
    auto* ancestor = &part;
    while (ancestor->superview() && ancestor->superview() != view)
        ancestor = ancestor->superview();
    const auto* cell = dynamic_cast<const UITableViewCell*>(ancestor);
    if (const auto row = cell ? rowOf(*cell) : std::nullopt)
        focusedRow = row;
}

void TablePeer::scrollToFocus()
{
    if (const auto row = keyboardRow())
        scrollToRow(*row);
}

} // namespace brimsound::desktop
