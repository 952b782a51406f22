#include "toolkit/table/RowTouches.h"

#include "toolkit/table/Table.h"

#include <cmath>

namespace brimsound::toolkit {

void RowTouches::began(const Touch& touch)
{
    _touched.reset();
    if (_table.swipe().isOpen()) {
        _table.swipe().close();
        return;
    }
    const auto point = _table.fromWindow(touch.location);
    const auto row = _table.rows().rowAt(point);
    if (!row || !_table.cellOf(*row))
        return;
    _touched = { *row, point };
    setPressed(true);
}

void RowTouches::moved(const Touch& touch)
{
    if (!_touched)
        return;
    const auto point = _table.fromWindow(touch.location);
    auto& swipe = _table.swipe();
    const double distance = swipedDistance(point);
    const bool isSwipe = distance > touchSlop && distance > std::abs(point.y - _touched->start.y);
    if (!swipe.isOpen() && isSwipe && _table.canDelete(_touched->row)) {
        setPressed(false);
        swipe.begin(_touched->row);
    }
    if (swipe.isOpen())
        swipe.moveTo(distance - touchSlop);
    else
        setPressed(_table.rows().rowAt(point) == _touched->row);
}

double RowTouches::swipedDistance(Point point) const
{
    const double left = _touched->start.x - point.x;
    return _table.isRightToLeft() ? -left : left;
}

void RowTouches::ended(const Touch& touch)
{
    moved(touch);
    if (!_touched)
        return;
    const auto row = _touched->row;
    const auto* cell = _table.cellOf(row);
    if (_table.swipe().isOpen())
        _table.swipe().end();
    else if (cell && cell->isHighlighted())
        _table.select(row);
    cancelPress();
}

void RowTouches::canceled()
{
    cancelPress();
    _table.swipe().close();
}

bool RowTouches::isSwiping() const
{
    return _touched && _table.swipe().isOpen();
}

void RowTouches::cancelPress()
{
    setPressed(false);
    _touched.reset();
}

void RowTouches::setPressed(bool pressed) const
{
    auto* cell = _touched ? _table.cellOf(_touched->row) : nullptr;
    if (cell && cell->isSelectable())
        cell->setHighlighted(pressed);
}

} // namespace brimsound::toolkit
