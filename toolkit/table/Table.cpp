#include "toolkit/table/Table.h"

#include "toolkit/drawing/Theme.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace brimsound::toolkit {

namespace {

constexpr double leaveTime = 0.3;
const Font smallFont { {}, theme::smallTextSize };

/// The path of a row after these rows were removed.
RowPath without(const std::set<RowPath>& gone, RowPath row)
{
    const auto above = std::distance(gone.lower_bound({ row.section, 0 }), gone.lower_bound(row));
    return { row.section, row.row - static_cast<std::size_t>(above) };
}

} // namespace

Table::Table(const Rect& frame, Style style)
    : ScrollView(frame)
    , _style(style)
{
    setBackground(style == Style::Grouped ? theme::background : theme::rowBackground);
}

void Table::setSource(TableSource* source)
{
    _source = source;
    reload();
}

void Table::reload()
{
    for (const auto& [row, cell] : std::exchange(_cells, {}))
        putAside(cell);
    for (const auto& cell : std::exchange(_leaving, {}))
        putAside(cell);
    _swipe.forget();
    _touches.forget();
    _keys.forget();
    _selectedRow.reset();
    _measuredSize.reset();
    ++_changes;
    setNeedsLayout();
    setNeedsDisplay();
}

void Table::putAside(const Ref<Cell>& cell)
{
    cell->removeFromParent();
    cell->setAlpha(1);
    cell->prepareForReuse();
    _reusable.emplace(cell->reuseIdentifier(), cell);
}

Ref<Cell> Table::takeReusableCell(const std::string& identifier)
{
    auto cell = _reusable.extract(identifier);
    return cell ? cell.mapped() : nullptr;
}

void Table::setSeparatorColor(std::optional<Color> color)
{
    _separatorColor = color;
    setNeedsLayout();
    setNeedsDisplay();
}

Color Table::shownSeparatorColor() const
{
    return _separatorColor.value_or(theme::separator);
}

void Table::measure()
{
    ++_changes;
    _rows = _source ? TableLayout(*_source, _style == Style::Grouped, frame().size.width) : TableLayout();
}

const TableLayout& Table::measuredRows()
{
    const auto size = frame().size;
    if (_measuredSize == size)
        return _rows;
    if (!_measuredSize || _measuredSize->width != size.width)
        measure();
    _measuredSize = size;
    // A table that became taller may be scrolled beyond its end.
    scrollTo(origin().y);
    setNeedsDisplay();
    return _rows;
}

void Table::layOut()
{
    _swipe.closeIfScrolled();
    measuredRows();
    makeCells(0);
    placeCells();
}

void Table::makeCells(double distanceBelow)
{
    const auto inView = bounds();
    std::erase_if(_cells, [&](const auto& entry) {
        const auto& [row, cell] = entry;
        if (_rows.hasRow(row) && intersects(_rows.rowRect(row), inView))
            return false;
        // The cell may have been deselected, which does not call the table.
        if (_selectedRow == row && !cell->isSelected())
            _selectedRow.reset();
        putAside(cell);
        return true;
    });

    const auto changes = _changes;
    for (const auto row : _rows.rowsIn(inView)) {
        if (_cells.contains(row))
            continue;
        const auto rect = _rows.rowRect(row);
        Cell::setSizeOfNewCells(rect.size);
        const auto cell = _source->cell(row);
        if (changes != _changes)
            return;
        if (!cell)
            continue;
        cell->setFrame(rect);
        cell->setSelected(row == _selectedRow, false);
        _cells.emplace(row, cell);
        _source->willShow(*cell, row);
        if (changes != _changes)
            return;
        add(*cell);
        cell->setFrame(offset(rect, { 0, distanceBelow }));
    }
}

void Table::placeCells()
{
    for (const auto& [row, cell] : _cells) {
        cell->setFrame(_swipe.place(row, _rows.rowRect(row)));
        cell->setAppearance(appearanceOf(row));
    }
}

RowAppearance Table::appearanceOf(RowPath row) const
{
    RowAppearance appearance;
    const bool grouped = _style == Style::Grouped;
    // The last row of a group has no separator.
    if (!grouped || !_rows.isLastOfSection(row))
        appearance.separator = shownSeparatorColor();
    if (grouped) {
        const auto& rows = _rows.sections()[row.section].rowsRect;
        appearance.group = { { 0, rows.top() - _rows.rowRect(row).top() }, rows.size };
        appearance.groupRadius = _rows.cornerRadius();
    }
    return appearance;
}

Cell* Table::cellOf(RowPath row) const
{
    const auto found = _cells.find(row);
    return found == _cells.end() ? nullptr : found->second.get();
}

std::optional<RowPath> Table::rowOf(const Cell& cell) const
{
    const auto found
        = std::ranges::find_if(_cells, [&](const auto& entry) { return entry.second.get() == &cell; });
    return found == _cells.end() ? std::nullopt : std::optional(found->first);
}

void Table::scrollToRow(RowPath row)
{
    layOutIfNeeded();
    if (!_rows.hasRow(row))
        return;
    show(_rows.rowRect(row));
    layOutIfNeeded();
}

void Table::press(RowPath row)
{
    if (_swipe.isOpen())
        _swipe.close();
    else
        select(row);
}

void Table::select(RowPath row)
{
    const auto cell = keep(cellOf(row));
    if (cell && !cell->isSelectable())
        return;
    auto* before = _selectedRow && _selectedRow != row ? cellOf(*_selectedRow) : nullptr;
    if (before)
        before->setSelected(false, false);
    _selectedRow = row;
    if (cell) {
        cell->setSelected(true, false);
        // A row that is deselected by the source fades out from here.
        cell->setHighlighted(false);
    }
    if (_source)
        _source->selected(row);
}

bool Table::canDelete(RowPath row) const
{
    return _source && _rows.hasRow(row) && _source->canDelete(row);
}

bool Table::deleteRow(RowPath row)
{
    if (!canDelete(row))
        return false;
    // Deleting the row may remove the table.
    const auto kept = keep(this);
    _source->deleteRow(row);
    // The source may not have removed the row.
    _swipe.close();
    return true;
}

void Table::removeRows(const std::set<RowPath>& gone)
{
    // All rows will be requested again.
    if (!_measuredSize)
        return;
    _touches.cancelPress();
    if (_swipe.isOpen() && !gone.contains(_swipe.row()))
        _swipe.close();
    double distance = 0;
    for (const auto& row : gone)
        distance += _rows.hasRow(row) ? _rows.rowRect(row).size.height : 0;

    for (const auto& [row, cell] : std::exchange(_cells, {})) {
        if (gone.contains(row))
            slideOut(row, cell);
        else
            _cells.emplace(without(gone, row), cell);
    }
    if (_swipe.isOpen() && gone.contains(_swipe.row()))
        _swipe.forget();
    if (_selectedRow)
        _selectedRow
            = gone.contains(*_selectedRow) ? std::nullopt : std::optional(without(gone, *_selectedRow));
    _keys.moveTo(without(gone, _keys.row()));

    measure();
    makeCells(distance);
    animate(leaveTime, [this] { placeCells(); });
    setNeedsDisplay();
    comeBack();
}

void Table::slideOut(RowPath row, const Ref<Cell>& cell)
{
    const auto button = _swipe.takeButtonOf(row);
    const auto rect = _rows.rowRect(row);
    _leaving.push_back(cell);
    const auto changes = [&] {
        cell->setFrame(offset(rect, { isRightToLeft() ? rect.size.width : -rect.size.width, 0 }));
        cell->setAlpha(0);
        // The button fills the space of the removed row while the next rows move up.
        if (button)
            button->setFrame({ rect.origin, { rect.size.width, 0 } });
    };
    animate(leaveTime, changes, [kept = keep(this), cell, button] {
        if (button)
            button->removeFromParent();
        if (std::erase(kept->_leaving, cell))
            kept->putAside(cell);
    });
}

Accessible Table::accessible() const
{
    // Headers and footers are not views.
    std::string texts;
    for (const auto& section : _rows.sections()) {
        for (const auto* text : { &section.header, &section.footer }) {
            if (!text->empty())
                texts += (texts.empty() ? "" : "\n") + *text;
        }
    }
    return { .role = role(), .name = label(), .description = texts };
}

void Table::draw(Canvas& canvas) const
{
    if (_style != Style::Grouped)
        return;
    const double hairline = canvas.hairline();
    for (const auto& section : _rows.sections()) {
        for (const auto& [text, rect] : { std::pair { &section.header, &section.headerRect },
                 std::pair { &section.footer, &section.footerRect } }) {
            if (canvas.showsAnythingIn(*rect))
                canvas.drawParagraph(*text, *rect, smallFont, theme::secondaryText, naturalAlignment());
        }
        const auto& rows = section.rowsRect;
        if (!canvas.showsAnythingIn(inset(rows, 0, -1)))
            continue;

        canvas.fillRoundedRect(rows, _rows.cornerRadius(), theme::rowBackground);
        if (_rows.cornerRadius() == 0) {
            for (const double y : { rows.top() - hairline, rows.bottom() })
                canvas.fillRect(makeRect(rows.left(), y, rows.size.width, hairline), shownSeparatorColor());
        }
    }
}

bool Table::keyPressed(Key key, KeyStroke stroke)
{
    return _style == Style::List && _keys.pressed(key, stroke);
}

FocusRing Table::focusRing() const
{
    const auto row = _keys.shownRow();
    return { row ? inset(_rows.rowRect(*row), focusRingInset, focusRingInset) : Rect {}, focusRingRadius() };
}

View& Table::focusedPart()
{
    const auto row = _keys.shownRow();
    auto* cell = row ? cellOf(*row) : nullptr;
    if (cell)
        return *cell;
    return *this;
}

void Table::focusOn(View& part)
{
    auto* ancestor = &part;
    while (ancestor->parent() && ancestor->parent() != this)
        ancestor = ancestor->parent();
    const auto* cell = dynamic_cast<const Cell*>(ancestor);
    if (const auto row = cell ? rowOf(*cell) : std::nullopt)
        _keys.moveTo(*row);
}

void Table::scrollToFocus()
{
    if (const auto row = _keys.shownRow())
        scrollToRow(*row);
}

} // namespace brimsound::toolkit
