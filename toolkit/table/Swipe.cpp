#include "toolkit/table/Swipe.h"

#include "toolkit/table/DeleteButton.h"
#include "toolkit/table/Table.h"

#include <algorithm>
#include <utility>

namespace brimsound::toolkit {

namespace {

constexpr double slideTime = 0.25;

} // namespace

void Swipe::begin(RowPath row)
{
    close();
    _row = row;
    _offset = _table.origin().y;
    _button = make<DeleteButton>();
    _table.add(*_button);
    moveTo(0);
}

void Swipe::moveTo(double distance)
{
    _distance = std::clamp(distance, 0.0, _table.rows().rowRect(*_row).size.width);
    _table.placeCells();
}

void Swipe::slideTo(double distance)
{
    View::animate(slideTime, [&] { moveTo(distance); });
}

void Swipe::end()
{
    if (_distance < DeleteButton::width / 2)
        close();
    else
        slideTo(DeleteButton::width);
}

void Swipe::open(RowPath row)
{
    if (!_table.canDelete(row))
        return;
    if (_row != row)
        begin(row);
    slideTo(DeleteButton::width);
}

void Swipe::close()
{
    if (!_row)
        return;
    const auto button = _button;
    button->setInteractive(false);
    View::animate(
        slideTime, [&] { moveTo(0); }, [button] { button->removeFromParent(); });
    _row.reset();
    _button = nullptr;
}

void Swipe::closeIfScrolled()
{
    if (_row && _offset != _table.origin().y)
        close();
}

void Swipe::forget()
{
    if (_button)
        _button->removeFromParent();
    _row.reset();
    _button = nullptr;
}

Rect Swipe::place(RowPath row, Rect rect) const
{
    if (_row != row)
        return rect;
    const bool rightToLeft = _table.isRightToLeft();
    const double left = rightToLeft ? rect.left() : rect.right() - _distance;
    _button->setFrame(makeRect(left, rect.top(), _distance, rect.size.height));
    return offset(rect, { rightToLeft ? _distance : -_distance, 0 });
}

Ref<View> Swipe::takeButtonOf(RowPath row)
{
    if (_row != row)
        return nullptr;
    _row.reset();
    return std::exchange(_button, nullptr);
}

} // namespace brimsound::toolkit
