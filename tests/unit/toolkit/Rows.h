#pragma once

#include "toolkit/table/Table.h"
#include "toolkit/window/Window.h"

#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace brimsound::toolkit {

inline void PrintTo(const RowPath& path, std::ostream* out)
{
    *out << "row " << path.row << " of section " << path.section;
}

} // namespace brimsound::toolkit

namespace brimsound::tests {

/// Provides rows of 44 points in sections, and records the calls of the table.
class Rows : public toolkit::TableSource {
public:
    explicit Rows(std::vector<std::size_t> rowsInSections)
        : counts(std::move(rowsInSections))
    {
    }

    std::size_t sectionCount() override { return counts.size(); }
    std::size_t rowCount(std::size_t section) override { return counts[section]; }
    double rowHeight(toolkit::RowPath) override { return 44; }
    std::string header(std::size_t section) override
    {
        return section < headers.size() ? headers[section] : std::string();
    }
    std::string footer(std::size_t section) override
    {
        return section < footers.size() ? footers[section] : std::string();
    }
    toolkit::Ref<toolkit::Cell> cell(toolkit::RowPath row) override
    {
        ++cellsAskedFor;
        auto cell = table->takeReusableCell(identifier(row));
        if (!cell) {
            cell = toolkit::make<toolkit::Cell>(cellStyle, identifier(row));
            initialSizes.push_back(cell->bounds().size);
            if (onCellMade)
                onCellMade(*cell, row);
        }
        return cell;
    }
    void willShow(toolkit::Cell& cell, toolkit::RowPath row) override
    {
        if (onWillShow)
            onWillShow(cell, row);
    }
    void selected(toolkit::RowPath row) override { selectedRows.push_back(row); }
    bool canDelete(toolkit::RowPath row) override { return isDeletable && isDeletable(row); }
    void deleteRow(toolkit::RowPath row) override
    {
        deletedRows.push_back(row);
        if (!removesDeleted)
            return;
        --counts[row.section];
        table->removeRows({ row });
    }

    /// The table that shows the rows. Set by the test.
    toolkit::Table* table = nullptr;

    std::vector<std::size_t> counts;
    std::vector<std::string> headers;
    std::vector<std::string> footers;
    std::function<std::string(toolkit::RowPath)> identifier = [](toolkit::RowPath) { return "row"; };
    toolkit::Cell::Style cellStyle = toolkit::Cell::Style::OneText;
    std::function<void(toolkit::Cell&, toolkit::RowPath)> onCellMade;
    std::function<void(toolkit::Cell&, toolkit::RowPath)> onWillShow;
    std::function<bool(toolkit::RowPath)> isDeletable;
    /// Whether deleted rows are removed from the table.
    bool removesDeleted = true;

    std::size_t cellsAskedFor = 0;
    /// The initial sizes of the cells.
    std::vector<toolkit::Size> initialSizes;
    std::vector<toolkit::RowPath> selectedRows;
    std::vector<toolkit::RowPath> deletedRows;
};

/// A table that fills a window and is laid out.
class TableInWindow {
public:
    TableInWindow(Rows& rows, toolkit::Size size, toolkit::Table::Style style = toolkit::Table::Style::List,
        toolkit::LayoutDirection direction = toolkit::LayoutDirection::LeftToRight)
        : window(toolkit::make<toolkit::Window>(size, direction))
        , table(toolkit::make<toolkit::Table>(toolkit::Rect { {}, size }, style))
    {
        rows.table = table.get();
        table->setSource(&rows);
        window->add(*table);
        window->layOutAll();
    }
    TableInWindow(const TableInWindow&) = delete;
    TableInWindow& operator=(const TableInWindow&) = delete;
    ~TableInWindow()
    {
        window->onInvalidate = nullptr;
        table->setSource(nullptr);
    }

    double offset() const { return table->origin().y; }
    /// The cell of a row in the first section; null when the row is not visible.
    toolkit::Cell* cell(std::size_t row) const { return table->cellOf({ 0, row }); }
    /// The cells of all visible rows, from back to front.
    std::vector<toolkit::Cell*> cells() const
    {
        std::vector<toolkit::Cell*> cells;
        for (const auto& child : table->children()) {
            if (auto* cell = dynamic_cast<toolkit::Cell*>(child.get()))
                cells.push_back(cell);
        }
        return cells;
    }

    void scrollTo(double newOffset) const
    {
        table->scrollTo(newOffset);
        window->layOutAll();
    }
    void reload() const
    {
        table->reload();
        window->layOutAll();
    }
    void resize(toolkit::Size size) const
    {
        table->setFrame({ {}, size });
        window->layOutAll();
    }
    /// A touch that begins and ends immediately.
    void tap(toolkit::Point at, toolkit::Pointer pointer = toolkit::Pointer::Finger) const
    {
        window->touchDown({ at, pointer });
        window->touchUp(at);
    }

    const toolkit::Ref<toolkit::Window> window;
    const toolkit::Ref<toolkit::Table> table;
};

} // namespace brimsound::tests
