// What touches do to the rows of a table: press, select, swipe.
#include "platform/desktop/UIKit/TablePeer.h"

#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/DeleteButton.h"

#include <algorithm>
#include <cmath>

namespace brimsound::desktop {

namespace {

constexpr double slideTime = 0.25;

bool goesLeft(CGPoint from, CGPoint to)
{
    const double distance = from.x - to.x;
    return distance > touchSlop && distance > std::abs(to.y - from.y);
}

} // namespace

void TablePeer::touchBegan(const Touch& touch)
{
    touchedRow.reset();
    // A touch beside an uncovered button means nothing but "no".
    if (swipedRow) {
        closeSwipe();
        return;
    }
    const auto point = convertFromWindow(touch.location, *view);
    const auto row = rowAt(point);
    if (!row || !cells.contains(*row))
        return;
    touchedRow = { *row, point };
    setPressed(true);
}

void TablePeer::touchMoved(const Touch& touch)
{
    if (!touchedRow)
        return;
    const auto point = convertFromWindow(touch.location, *view);
    if (!swipedRow && goesLeft(touchedRow->start, point) && canDelete(touchedRow->row)) {
        setPressed(false);
        beginSwipe(touchedRow->row);
    }
    if (swipedRow)
        drawSwipedRow(touchedRow->start.x - point.x - touchSlop);
    else
        setPressed(rowAt(point) == touchedRow->row);
}

void TablePeer::touchEnded(const Touch& touch)
{
    touchMoved(touch);
    if (!touchedRow)
        return;
    const auto row = touchedRow->row;
    const auto* cell = table().cellForRowAtIndexPath(row);
    if (swipedRow)
        endSwipe();
    else if (cell && cell->isHighlighted())
        select(row);
    setPressed(false);
    touchedRow.reset();
}

void TablePeer::touchCancelled()
{
    setPressed(false);
    touchedRow.reset();
    closeSwipe();
}

void TablePeer::setPressed(bool pressed)
{
    const auto* cell = touchedRow ? table().cellForRowAtIndexPath(touchedRow->row) : nullptr;
    if (cell && cell->selectionStyle() != UITableViewCellSelectionStyle::None)
        peerOf(*cell).setHighlighted(pressed);
}

void TablePeer::select(const NSIndexPath& row)
{
    auto* cell = table().cellForRowAtIndexPath(row);
    if (cell && cell->selectionStyle() == UITableViewCellSelectionStyle::None)
        return;
    auto* before = selectedRow && selectedRow != row ? table().cellForRowAtIndexPath(*selectedRow) : nullptr;
    if (before)
        before->setSelected(false, Animated::No);
    selectedRow = row;
    if (cell) {
        cell->setSelected(true, Animated::No);
        // A delegate that sets the row to be not selected has it fade from here.
        peerOf(*cell).setHighlighted(false);
    }
    if (delegate)
        delegate->tableViewDidSelectRowAtIndexPath(table(), row);
}

void TablePeer::revealDelete(const NSIndexPath& row)
{
    if (!canDelete(row))
        return;
    if (!swipedRow || swipedRow->row != row)
        beginSwipe(row);
    openSwipe();
}

void TablePeer::deleteSwipedRow()
{
    if (swipedRow)
        deleteRow(NSIndexPath(swipedRow->row));
}

void TablePeer::beginSwipe(const NSIndexPath& row)
{
    closeSwipe();
    swipedRow = { .row = row, .button = make<DeleteButton>(), .offset = origin.y };
    table().addSubview(*swipedRow->button);
    drawSwipedRow(0);
}

void TablePeer::drawSwipedRow(double distance)
{
    swipedRow->distance = std::clamp(distance, 0.0, rowRect(swipedRow->row).size.width);
    placeCells();
}

void TablePeer::endSwipe()
{
    if (swipedRow->distance < DeleteButton::width / 2)
        closeSwipe();
    else
        openSwipe();
}

void TablePeer::openSwipe()
{
    UIView::animateWithDurationAnimations(slideTime, [this] { drawSwipedRow(DeleteButton::width); });
}

void TablePeer::closeSwipe()
{
    if (!swipedRow)
        return;
    UIView::animateWithDurationAnimations(slideTime, [this] { drawSwipedRow(0); });
    const auto button = std::exchange(swipedRow, std::nullopt)->button;
    button->setUserInteractionEnabled(false);
    Clock::shared().after(slideTime, [button] { button->removeFromSuperview(); });
}

} // namespace brimsound::desktop
