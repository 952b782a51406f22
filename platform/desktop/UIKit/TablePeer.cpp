#include "platform/desktop/UIKit/TablePeer.h"

#include "platform/desktop/UIKit/CellPeer.h"
#include "platform/desktop/UIKit/Clock.h"
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
constexpr double pressFadeTime = 0.25;

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
    for (auto& [indexPath, cell] : cells)
        putAside(cell);
    cells.clear();
    measuredSize.reset();
    pressedRow.reset();
}

void TablePeer::putAside(const RetainPtr<UITableViewCell>& cell)
{
    cell->removeFromSuperview();
    reusable.emplace(cell->reuseIdentifier(), cell);
}

void TablePeer::willLayOut()
{
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
    const auto inView = boundsOf(*this);
    std::erase_if(cells, [&](const auto& entry) {
        if (intersects(rowRect(entry.first), inView))
            return false;
        putAside(entry.second);
        return true;
    });

    for (std::size_t section = 0; section < sections.size(); ++section) {
        const auto& tops = sections[section].rowTops;
        const auto first = std::ranges::upper_bound(tops, inView.origin.y);
        auto row = static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, first - tops.begin() - 1));
        for (; row + 1 < tops.size() && tops[row] < inView.origin.y + inView.size.height; ++row) {
            const NSIndexPath indexPath { section, row };
            const auto rect = rowRect(indexPath);
            if (!intersects(rect, inView))
                continue;
            auto& cell = cells[indexPath];
            if (!cell) {
                setSizeOfNewCells(rect.size);
                cell = dataSource->tableViewCellForRowAtIndexPath(table(), indexPath);
                table().addSubview(*cell);
            }
            cell->setFrame(rect);
        }
    }
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

void TablePeer::touchBegan(const Touch& touch)
{
    // The press before may still be fading.
    if (pressedRow)
        setPressed(false);
    pressedRow.reset();
    const auto row = rowAt(convertFromWindow(touch.location, *view));
    const auto* cell = row ? table().cellForRowAtIndexPath(*row) : nullptr;
    if (!cell || cell->selectionStyle() == UITableViewCellSelectionStyle::None)
        return;
    pressedRow = row;
    setPressed(true);
}

void TablePeer::touchMoved(const Touch& touch)
{
    if (pressedRow)
        setPressed(rowAt(convertFromWindow(touch.location, *view)) == pressedRow);
}

void TablePeer::touchEnded(const Touch& touch)
{
    touchMoved(touch);
    if (!pressedRow || !isPressed)
        return;
    const auto row = *pressedRow;
    fadePress();
    select(row);
}

void TablePeer::touchCancelled()
{
    if (pressedRow)
        setPressed(false);
}

void TablePeer::select(const NSIndexPath& row)
{
    if (delegate)
        delegate->tableViewDidSelectRowAtIndexPath(table(), row);
}

void TablePeer::setPressed(bool pressed)
{
    isPressed = pressed;
    pressedAlpha = pressed ? 1 : 0;
    setNeedsDisplay(*view, rowRect(*pressedRow));
}

void TablePeer::fadePress()
{
    isPressed = false;
    Clock::shared().onEveryFrame([this, kept = brimsound::retain(view), row = pressedRow](double elapsed) {
        if (isPressed || pressedRow != row)
            return false;
        pressedAlpha = std::max(0.0, 1 - elapsed / pressFadeTime);
        setNeedsDisplay(*view, rowRect(*row));
        return pressedAlpha > 0;
    });
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
    return { .role = AccessibleRole::Table, .description = texts };
}

void TablePeer::draw(Canvas& canvas) const
{
    if (style != UITableViewStyle::Grouped)
        return;
    const double hairline = canvas.hairline();
    for (std::size_t i = 0; i < sections.size(); ++i) {
        const auto& section = sections[i];
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
        if (pressedRow && pressedRow->section == i && pressedAlpha > 0) {
            canvas.save();
            canvas.clip(rowRect(*pressedRow));
            auto color = theme::rowPressed;
            color.alpha = pressedAlpha;
            canvas.fillRoundedRect(rows, radius, color);
            canvas.restore();
        }

        const double left = rows.origin.x + theme::rowMargin;
        const double right = rows.origin.x + rows.size.width;
        for (std::size_t row = 1; row + 1 < section.rowTops.size(); ++row)
            canvas.fillRect(
                CGRectMake(left, section.rowTops[row] - hairline, right - left, hairline), theme::separator);
        if (!card) {
            const auto edge = [&](double y) {
                canvas.fillRect(CGRectMake(rows.origin.x, y, rows.size.width, hairline), theme::separator);
            };
            edge(rows.origin.y - hairline);
            edge(rows.origin.y + rows.size.height);
        }
    }
}

} // namespace brimsound::desktop
