// How rows leave a table.
#include "platform/desktop/UIKit/TablePeer.h"

#include "platform/desktop/UIKit/Clock.h"

#include <iterator>

namespace brimsound::desktop {

namespace {

constexpr double leaveTime = 0.3;

/// Where a row is when those are gone.
NSIndexPath without(const std::set<NSIndexPath>& gone, const NSIndexPath& row)
{
    const auto above = std::distance(gone.lower_bound({ row.section, 0 }), gone.lower_bound(row));
    return { row.section, row.row - static_cast<std::size_t>(above) };
}

} // namespace

bool TablePeer::canDelete(const NSIndexPath& row) const
{
    return dataSource && hasRow(row) && dataSource->tableViewCanEditRowAtIndexPath(table(), row);
}

bool TablePeer::deleteRow(const NSIndexPath& row)
{
    if (!canDelete(row))
        return false;
    // Whoever deletes the row may take the table away.
    const auto kept = brimsound::retain(view);
    dataSource->tableViewCommitEditingStyleForRowAtIndexPath(
        table(), UITableViewCellEditingStyle::Delete, row);
    // The data source may have left the row where it was.
    closeSwipe();
    return true;
}

void TablePeer::removeRows(const std::set<NSIndexPath>& gone)
{
    // All rows are about to be asked for anew.
    if (!measuredSize)
        return;
    setPressed(false);
    touchedRow.reset();
    if (swipedRow && !gone.contains(swipedRow->row))
        closeSwipe();
    double distance = 0;
    for (const auto& row : gone)
        distance += hasRow(row) ? rowRect(row).size.height : 0;

    auto former = std::exchange(cells, {});
    for (const auto& [row, cell] : former) {
        if (gone.contains(row))
            letGo(row, cell);
        else
            cells.emplace(without(gone, row), cell);
    }
    if (selectedRow)
        selectedRow = gone.contains(*selectedRow) ? std::nullopt : std::optional(without(gone, *selectedRow));
    if (focusedRow)
        focusedRow = without(gone, *focusedRow);

    measure();
    makeCells(distance);
    UIView::animateWithDurationAnimations(leaveTime, [this] { placeCells(); });
    setNeedsDisplay(*view);
    comeBack();
}

void TablePeer::letGo(const NSIndexPath& row, const RetainPtr<UITableViewCell>& cell)
{
    const auto button
        = swipedRow && swipedRow->row == row ? std::exchange(swipedRow, std::nullopt)->button : nullptr;
    const auto rect = rowRect(row);
    leaving.push_back(cell);
    UIView::animateWithDurationAnimations(leaveTime, [&] {
        cell->setFrame({ { rect.origin.x - rect.size.width, rect.origin.y }, rect.size });
        cell->setAlpha(0);
        // The button fills what the row leaves empty, and gives way to the rows that move up.
        if (button)
            button->setFrame({ rect.origin, { rect.size.width, 0 } });
    });
    Clock::shared().after(leaveTime, [this, kept = brimsound::retain(view), cell, button] {
        if (button)
            button->removeFromSuperview();
        if (std::erase(leaving, cell))
            putAside(cell);
    });
}

} // namespace brimsound::desktop
