// Tables under test and what fills them.
#pragma once

#include "platform/desktop/UIKit/TablePeer.h"
#include "platform/desktop/UIKit/Window.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace brimsound::tests {

/// Rows of 44 points in sections. Writes down what a table asks for and tells.
class Rows : public UITableViewDataSource, public UITableViewDelegate {
public:
    explicit Rows(std::vector<std::size_t> rowsInSections)
        : counts(std::move(rowsInSections))
    {
    }

    std::size_t numberOfSectionsInTableView(UITableView&) override { return counts.size(); }
    std::size_t tableViewNumberOfRowsInSection(UITableView&, std::size_t section) override
    {
        return counts[section];
    }
    RetainPtr<UITableViewCell> tableViewCellForRowAtIndexPath(
        UITableView& table, const NSIndexPath& row) override
    {
        ++cellsAskedFor;
        auto cell = table.dequeueReusableCellWithIdentifier(identifier(row));
        if (!cell) {
            cell = make<UITableViewCell>(cellStyle, identifier(row));
            sizesAtBirth.push_back(cell->bounds().size);
            if (onCellMade)
                onCellMade(*cell, row);
        }
        return cell;
    }
    std::string tableViewTitleForHeaderInSection(UITableView&, std::size_t section) override
    {
        return section < headers.size() ? headers[section] : std::string();
    }
    std::string tableViewTitleForFooterInSection(UITableView&, std::size_t section) override
    {
        return section < footers.size() ? footers[section] : std::string();
    }
    bool tableViewCanEditRowAtIndexPath(UITableView&, const NSIndexPath& row) override
    {
        return isEditable && isEditable(row);
    }
    void tableViewCommitEditingStyleForRowAtIndexPath(
        UITableView& table, UITableViewCellEditingStyle style, const NSIndexPath& row) override
    {
        committed.emplace_back(style, row);
        if (!deletesCommitted)
            return;
        --counts[row.section];
        table.deleteRowsAtIndexPathsWithRowAnimation({ row }, UITableViewRowAnimation::Automatic);
    }
    void tableViewWillDisplayCellForRowAtIndexPath(
        UITableView&, UITableViewCell& cell, const NSIndexPath& row) override
    {
        if (onWillDisplay)
            onWillDisplay(cell, row);
    }
    void tableViewDidSelectRowAtIndexPath(UITableView&, const NSIndexPath& row) override
    {
        selected.push_back(row);
    }

    std::vector<std::size_t> counts;
    std::vector<std::string> headers;
    std::vector<std::string> footers;
    std::function<std::string(const NSIndexPath&)> identifier = [](const NSIndexPath&) { return "row"; };
    UITableViewCellStyle cellStyle = UITableViewCellStyle::Default;
    std::function<void(UITableViewCell&, const NSIndexPath&)> onCellMade;
    std::function<void(UITableViewCell&, const NSIndexPath&)> onWillDisplay;
    std::function<bool(const NSIndexPath&)> isEditable;
    bool deletesCommitted = true;

    std::size_t cellsAskedFor = 0;
    /// One for each cell that was made.
    std::vector<CGSize> sizesAtBirth;
    std::vector<NSIndexPath> selected;
    std::vector<std::pair<UITableViewCellEditingStyle, NSIndexPath>> committed;
};

/// A table that fills a window, laid out.
class TableInWindow {
public:
    TableInWindow(Rows& rows, CGSize size, UITableViewStyle style = UITableViewStyle::Plain)
        : window(make<desktop::Window>(size))
        , table(make<UITableView>(CGRect { {}, size }, style))
    {
        table->setDataSource(&rows);
        table->setDelegate(&rows);
        window->addSubview(*table);
        window->layOut();
    }
    TableInWindow(const TableInWindow&) = delete;
    TableInWindow& operator=(const TableInWindow&) = delete;
    ~TableInWindow()
    {
        window->onInvalidate = nullptr;
        table->setDataSource(nullptr);
        table->setDelegate(nullptr);
    }

    desktop::TablePeer& peer() const { return desktop::peerOf(*table); }
    double offset() const { return peer().origin.y; }

    void scrollTo(double newOffset) const
    {
        peer().scrollTo(newOffset);
        window->layOut();
    }
    void resize(CGSize size) const
    {
        table->setFrame({ {}, size });
        window->layOut();
    }
    /// Down and up at once.
    void tap(CGPoint at, desktop::Pointer pointer = desktop::Pointer::Finger) const
    {
        window->touchDown({ at, pointer });
        window->touchUp(at);
    }

    const RetainPtr<desktop::Window> window;
    const RetainPtr<UITableView> table;
};

} // namespace brimsound::tests
