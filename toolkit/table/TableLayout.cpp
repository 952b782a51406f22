#include "toolkit/table/TableLayout.h"

#include "toolkit/drawing/Font.h"
#include "toolkit/drawing/Theme.h"
#include "toolkit/table/TableSource.h"

#include <algorithm>
#include <cmath>

namespace brimsound::toolkit {

namespace {

constexpr double widestEdgeToEdge = 500;
constexpr double widestCard = 640;
constexpr double cardMargin = 24;
constexpr double cardRadius = 10;

constexpr double gapAboveSection = 22;
constexpr double gapAroundText = 7;
constexpr double gapBelowLast = 30;

} // namespace

TableLayout::TableLayout(TableSource& source, bool grouped, double width)
{
    const bool card = grouped && width > widestEdgeToEdge;
    const double rowWidth = card ? std::min(widestCard, width - 2 * cardMargin) : width;
    _cornerRadius = card ? cardRadius : 0;
    const auto count = source.sectionCount();
    for (std::size_t section = 0; section < count; ++section)
        addSection(source, section, grouped, (width - rowWidth) / 2, rowWidth);
    if (grouped)
        _height += gapBelowLast;
}

/// Adds a section below the others, at the current height.
void TableLayout::addSection(
    TableSource& source, std::size_t section, bool grouped, double left, double width)
{
    auto& added = _sections.emplace_back();
    if (grouped) {
        _height += gapAboveSection;
        added.header = source.header(section);
        if (!added.header.empty()) {
            added.headerRect = textRect(added.header, left, width);
            _height = added.headerRect.bottom() + gapAroundText;
        }
    }

    const double top = _height;
    const auto count = source.rowCount(section);
    added.rowTops.reserve(count + 1);
    for (std::size_t row = 0; row < count; ++row) {
        added.rowTops.push_back(_height);
        _height += source.rowHeight({ section, row });
    }
    added.rowTops.push_back(_height);
    added.rowsRect = makeRect(left, top, width, _height - top);

    if (grouped) {
        added.footer = source.footer(section);
        if (!added.footer.empty()) {
            _height += gapAroundText;
            added.footerRect = textRect(added.footer, left, width);
            _height = added.footerRect.bottom();
        }
    }
}

Rect TableLayout::textRect(const std::string& text, double left, double width) const
{
    const double textWidth = width - 2 * theme::rowMargin;
    return makeRect(left + theme::rowMargin, _height, textWidth,
        heightOfParagraph(text, { {}, theme::smallTextSize }, textWidth));
}

bool TableLayout::hasRow(RowPath path) const
{
    return path.section < _sections.size() && path.row < _sections[path.section].rowCount();
}

Rect TableLayout::rowRect(RowPath path) const
{
    const auto& section = _sections[path.section];
    const double top = section.rowTops[path.row];
    return makeRect(
        section.rowsRect.left(), top, section.rowsRect.size.width, section.rowTops[path.row + 1] - top);
}

std::optional<RowPath> TableLayout::rowAt(Point point) const
{
    for (std::size_t section = 0; section < _sections.size(); ++section) {
        if (!contains(_sections[section].rowsRect, point))
            continue;
        const auto& tops = _sections[section].rowTops;
        const auto below = std::ranges::upper_bound(tops, point.y);
        return RowPath { section, static_cast<std::size_t>(below - tops.begin() - 1) };
    }
    return std::nullopt;
}

std::vector<RowPath> TableLayout::rowsIn(const Rect& part) const
{
    std::vector<RowPath> rows;
    for (std::size_t section = 0; section < _sections.size(); ++section) {
        const auto& tops = _sections[section].rowTops;
        const auto first = std::ranges::upper_bound(tops, part.top());
        auto row = static_cast<std::size_t>(std::max<std::ptrdiff_t>(0, first - tops.begin() - 1));
        for (; row + 1 < tops.size() && tops[row] < part.bottom(); ++row) {
            if (intersects(rowRect({ section, row }), part))
                rows.push_back({ section, row });
        }
    }
    return rows;
}

bool TableLayout::isLastOfSection(RowPath path) const
{
    return path.row + 1 == _sections[path.section].rowCount();
}

std::optional<RowPath> TableLayout::rowBeside(RowPath path, Direction direction) const
{
    if (direction == Direction::Next) {
        if (hasRow({ path.section, path.row + 1 }))
            return RowPath { path.section, path.row + 1 };
        for (auto section = path.section + 1; section < _sections.size(); ++section) {
            if (_sections[section].rowCount() > 0)
                return RowPath { section, 0 };
        }
        return std::nullopt;
    }
    for (auto section = std::min(path.section + 1, _sections.size()); section-- > 0;) {
        const auto count = _sections[section].rowCount();
        const auto end = section == path.section ? std::min(path.row, count) : count;
        if (end > 0)
            return RowPath { section, end - 1 };
    }
    return std::nullopt;
}

RowPath TableLayout::rowAway(RowPath path, Direction direction, double distance) const
{
    const double start = rowRect(path).top();
    for (auto next = rowBeside(path, direction); next; next = rowBeside(path, direction)) {
        const bool isFirst = rowRect(path).top() == start;
        if (!isFirst && std::abs(rowRect(*next).top() - start) >= distance)
            break;
        path = *next;
    }
    return path;
}

} // namespace brimsound::toolkit
