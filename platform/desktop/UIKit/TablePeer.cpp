#include "platform/desktop/UIKit/TablePeer.h"

#include "platform/desktop/UIKit/Text.h"
#include "platform/desktop/UIKit/Theme.h"

#include <algorithm>

namespace brimsound::desktop {

namespace {

// A group spans a narrow table and becomes a card of a readable width in a wide one.
constexpr double widestEdgeToEdge = 500;
constexpr double widestCard = 640;
constexpr double cardMargin = 24;
constexpr double cardRadius = 10;

constexpr double gapAboveSection = 22;
constexpr double gapAroundText = 7;
constexpr double gapBelowLast = 30;

const RetainPtr<UIFont>& smallFont()
{
    static const auto font = UIFont::systemFontOfSize(theme::smallTextSize);
    return font;
}

} // namespace

TablePeer& peerOf(const UITableView& table)
{
    return static_cast<TablePeer&>(table.peer());
}

TablePeer::TablePeer(UITableViewStyle tableStyle)
    : style(tableStyle)
{
}

void TablePeer::measure()
{
    ++_changes;
    sections.clear();
    height = 0;
    if (!dataSource)
        return;

    const bool grouped = style == UITableViewStyle::Grouped;
    const double width = grouped && frame.size.width > widestEdgeToEdge
        ? std::min(widestCard, frame.size.width - 2 * cardMargin)
        : frame.size.width;
    const double left = (frame.size.width - width) / 2;
    const auto textRect = [&](double top, const std::string& text) {
        const double textWidth = width - 2 * theme::rowMargin;
        return CGRectMake(
            left + theme::rowMargin, top, textWidth, heightOfParagraph(text, *smallFont(), textWidth));
    };
    double y = 0;

    const auto sectionCount = dataSource->numberOfSectionsInTableView(table());
    for (std::size_t section = 0; section < sectionCount; ++section) {
        auto& measured = sections.emplace_back();
        if (grouped) {
            y += gapAboveSection;
            measured.header = dataSource->tableViewTitleForHeaderInSection(table(), section);
            if (!measured.header.empty()) {
                measured.headerRect = textRect(y, measured.header);
                y += measured.headerRect.size.height + gapAroundText;
            }
        }

        const double top = y;
        const auto rowCount = dataSource->tableViewNumberOfRowsInSection(table(), section);
        measured.rowTops.reserve(rowCount + 1);
        for (std::size_t row = 0; row < rowCount; ++row) {
            measured.rowTops.push_back(y);
            y += delegate ? delegate->tableViewHeightForRowAtIndexPath(table(), { section, row }) : 44;
        }
        measured.rowTops.push_back(y);
        measured.rowsRect = CGRectMake(left, top, width, y - top);

        if (grouped) {
            measured.footer = dataSource->tableViewTitleForFooterInSection(table(), section);
            if (!measured.footer.empty()) {
                y += gapAroundText;
                measured.footerRect = textRect(y, measured.footer);
                y += measured.footerRect.size.height;
            }
        }
    }
    height = grouped ? y + gapBelowLast : y;
}

void TablePeer::forgetRows()
{
    for (const auto& [row, cell] : cells)
        putAside(cell);
    cells.clear();
    for (const auto& cell : std::exchange(leaving, {}))
        putAside(cell);
    if (swipedRow)
        swipedRow->button->removeFromSuperview();
    swipedRow.reset();
    touchedRow.reset();
    selectedRow.reset();
    focusedRow.reset();
    measuredSize.reset();
    ++_changes;
}

void TablePeer::putAside(const RetainPtr<UITableViewCell>& cell)
{
    cell->removeFromSuperview();
    cell->setAlpha(1);
    peerOf(*cell).prepareForReuse();
    reusable.emplace(cell->reuseIdentifier(), cell);
}

void TablePeer::willLayOut()
{
    if (swipedRow && swipedRow->offset != origin.y)
        closeSwipe();
    if (measuredSize == frame.size)
        return;
    if (!measuredSize || measuredSize->width != frame.size.width)
        measure();
    measuredSize = frame.size;
    // A table that became taller must not stay scrolled beyond its end.
    scrollTo(origin.y);
    setNeedsDisplay(*view);
}

void TablePeer::tile()
{
    makeCells(0);
    placeCells();
}

void TablePeer::makeCells(double distanceBelow)
{
    const auto inView = boundsOf(*this);
    std::erase_if(cells, [&](const auto& entry) {
        const auto& [row, cell] = entry;
        if (hasRow(row) && intersects(rowRect(row), inView))
            return false;
        // Whoever set the row to be not selected did not tell the table.
        if (selectedRow == row && !cell->isSelected())
            selectedRow.reset();
        putAside(cell);
        return true;
    });

    // The data source and the delegate may change the rows while they are asked.
    const auto changes = _changes;
    for (const auto& row : rowsIn(inView)) {
        if (cells.contains(row))
            continue;
        const auto rect = rowRect(row);
        setSizeOfNewCells(rect.size);
        const auto cell = dataSource->tableViewCellForRowAtIndexPath(table(), row);
        if (changes != _changes)
            return;
        if (!cell)
            continue;
        cell->setFrame({ { rect.origin.x, rect.origin.y + distanceBelow }, rect.size });
        cell->setSelected(row == selectedRow, Animated::No);
        cells.emplace(row, cell);
        if (delegate)
            delegate->tableViewWillDisplayCellForRowAtIndexPath(table(), *cell, row);
        if (changes != _changes)
            return;
        table().addSubview(*cell);
    }
}

void TablePeer::placeCells()
{
    for (const auto& [row, cell] : cells) {
        auto rect = rowRect(row);
        if (swipedRow && swipedRow->row == row) {
            const double distance = swipedRow->distance;
            const double right = rect.origin.x + rect.size.width;
            swipedRow->button->setFrame(
                CGRectMake(right - distance, rect.origin.y, distance, rect.size.height));
            rect.origin.x -= distance;
        }
        cell->setFrame(rect);
        peerOf(*cell).setSetting(settingOf(row));
    }
}

RowSetting TablePeer::settingOf(const NSIndexPath& row) const
{
    const auto& section = sections[row.section];
    const bool grouped = style == UITableViewStyle::Grouped;
    const bool last = row.row + 2 == section.rowTops.size();
    RowSetting setting;
    // A group has edges of its own.
    if (!grouped || !last)
        setting.separator = shownSeparatorColor();
    if (grouped) {
        const auto& rows = section.rowsRect;
        setting.group = { { 0, rows.origin.y - section.rowTops[row.row] }, rows.size };
        setting.groupRadius = rows.size.width < frame.size.width ? cardRadius : 0;
    }
    return setting;
}

Color TablePeer::shownSeparatorColor() const
{
    return separatorColor ? colorOf(separatorColor) : theme::separator;
}

bool TablePeer::hasRow(const NSIndexPath& row) const
{
    return row.section < sections.size() && row.row + 1 < sections[row.section].rowTops.size();
}

CGRect TablePeer::rowRect(const NSIndexPath& indexPath) const
{
    const auto& section = sections[indexPath.section];
    const double top = section.rowTops[indexPath.row];
    return CGRectMake(section.rowsRect.origin.x, top, section.rowsRect.size.width,
        section.rowTops[indexPath.row + 1] - top);
}

std::optional<NSIndexPath> TablePeer::rowAt(CGPoint point) const
{
    for (std::size_t section = 0; section < sections.size(); ++section) {
        if (!contains(sections[section].rowsRect, point))
            continue;
        const auto& tops = sections[section].rowTops;
        const auto below = std::ranges::upper_bound(tops, point.y);
        return NSIndexPath { section, static_cast<std::size_t>(below - tops.begin() - 1) };
    }
    return std::nullopt;
}

std::vector<NSIndexPath> TablePeer::rowsIn(const CGRect& part) const
{
    std::vector<NSIndexPath> rows;
    for (std::size_t section = 0; section < sections.size(); ++section) {
        const auto& tops = sections[section].rowTops;
        const auto first = std::ranges::upper_bound(tops, part.origin.y);
        auto row = static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, first - tops.begin() - 1));
        for (; row + 1 < tops.size() && tops[row] < part.origin.y + part.size.height; ++row) {
            if (intersects(rowRect({ section, row }), part))
                rows.push_back({ section, row });
        }
    }
    return rows;
}

std::optional<NSIndexPath> TablePeer::rowOf(const UITableViewCell& cell) const
{
    const auto found = std::ranges::find_if(cells, [&](const auto& entry) { return entry.second == &cell; });
    return found == cells.end() ? std::nullopt : std::optional(found->first);
}

void TablePeer::scrollToRow(const NSIndexPath& row)
{
    layOutTree(*view);
    if (!hasRow(row))
        return;
    scrollIntoView(rowRect(row));
    layOutTree(*view);
}

Accessible TablePeer::accessible() const
{
    // Headers and footers are no views of their own.
    std::string texts;
    for (const auto& section : sections) {
        for (const auto* text : { &section.header, &section.footer }) {
            if (!text->empty())
                texts += (texts.empty() ? "" : "\n") + *text;
        }
    }
    const bool grouped = style == UITableViewStyle::Grouped;
    return { .role = grouped ? AccessibleRole::Table : AccessibleRole::List,
        .name = accessibilityLabel,
        .description = texts,
        .focusable = !grouped && !cells.empty() };
}

void TablePeer::draw(Canvas& canvas) const
{
    if (style != UITableViewStyle::Grouped)
        return;
    const double hairline = canvas.hairline();
    for (const auto& section : sections) {
        if (canvas.showsAnythingIn(section.headerRect))
            canvas.drawParagraph(section.header, section.headerRect, *smallFont(), theme::secondaryText,
                NSTextAlignment::Left);
        if (canvas.showsAnythingIn(section.footerRect))
            canvas.drawParagraph(section.footer, section.footerRect, *smallFont(), theme::secondaryText,
                NSTextAlignment::Left);
        const auto& rows = section.rowsRect;
        if (!canvas.showsAnythingIn(insetBy(rows, 0, -1)))
            continue;

        const bool card = rows.size.width < frame.size.width;
        const double radius = card ? cardRadius : 0;
        canvas.fillRoundedRect(rows, radius, theme::rowBackground);
        if (!card) {
            const auto edge = [&](double y) {
                canvas.fillRect(
                    CGRectMake(rows.origin.x, y, rows.size.width, hairline), shownSeparatorColor());
            };
            edge(rows.origin.y - hairline);
            edge(rows.origin.y + rows.size.height);
        }
    }
}

} // namespace brimsound::desktop
