#include "platform/UIKit/UITableView.h"

#include "platform/desktop/UIKit/Color.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "toolkit/table/Table.h"

namespace brimsound {

namespace {

NSIndexPath indexPath(toolkit::RowPath path)
{
    return { path.section, path.row };
}

toolkit::RowPath rowPath(const NSIndexPath& path)
{
    return { path.section, path.row };
}

UITableViewCell& productCell(toolkit::Cell& cell)
{
    return desktop::objectOf<UITableViewCell>(cell);
}

/// A table with the product's data source and delegate.
class TableView : public desktop::Hosted<toolkit::Table>, private toolkit::TableSource {
public:
    using Hosted::Hosted;

    void setDataSource(UITableViewDataSource* dataSource)
    {
        _dataSource = dataSource;
        setSource(_dataSource ? this : nullptr);
    }
    void setDelegate(UITableViewDelegate* delegate)
    {
        _delegate = delegate;
        reload();
    }

private:
    UITableView& table() { return desktop::objectOf<UITableView>(*this); }

    std::size_t sectionCount() override { return _dataSource->numberOfSectionsInTableView(table()); }
    std::size_t rowCount(std::size_t section) override
    {
        return _dataSource->tableViewNumberOfRowsInSection(table(), section);
    }
    double rowHeight(toolkit::RowPath row) override
    {
        return _delegate ? _delegate->tableViewHeightForRowAtIndexPath(table(), indexPath(row)) : 44;
    }
    std::string header(std::size_t section) override
    {
        return _dataSource->tableViewTitleForHeaderInSection(table(), section);
    }
    std::string footer(std::size_t section) override
    {
        return _dataSource->tableViewTitleForFooterInSection(table(), section);
    }
    toolkit::Ref<toolkit::Cell> cell(toolkit::RowPath row) override
    {
        const auto made = _dataSource->tableViewCellForRowAtIndexPath(table(), indexPath(row));
        return desktop::nativeOf<toolkit::Cell>(made.get());
    }
    void willShow(toolkit::Cell& cell, toolkit::RowPath row) override
    {
        if (_delegate)
            _delegate->tableViewWillDisplayCellForRowAtIndexPath(table(), productCell(cell), indexPath(row));
    }
    void selected(toolkit::RowPath row) override
    {
        if (_delegate)
            _delegate->tableViewDidSelectRowAtIndexPath(table(), indexPath(row));
    }
    bool canDelete(toolkit::RowPath row) override
    {
        return _dataSource->tableViewCanEditRowAtIndexPath(table(), indexPath(row));
    }
    void deleteRow(toolkit::RowPath row) override
    {
        _dataSource->tableViewCommitEditingStyleForRowAtIndexPath(
            table(), UITableViewCellEditingStyle::Delete, indexPath(row));
    }

    UITableViewDataSource* _dataSource = nullptr;
    UITableViewDelegate* _delegate = nullptr;
};

TableView& native(const UITableView& table)
{
    return desktop::nativeOf<TableView>(table);
}

} // namespace

UITableView::UITableView(Peer* peer)
    : UIScrollView(peer)
{
}

UITableView::UITableView(const CGRect& frame, UITableViewStyle style)
    : UITableView(desktop::peer(new TableView(desktop::toolkitRect(frame),
        style == UITableViewStyle::Grouped ? toolkit::Table::Style::Grouped : toolkit::Table::Style::List)))
{
}

void UITableView::setDataSource(UITableViewDataSource* dataSource)
{
    native(*this).setDataSource(dataSource);
}

void UITableView::setDelegate(UITableViewDelegate* delegate)
{
    native(*this).setDelegate(delegate);
}

void UITableView::reloadData()
{
    native(*this).reload();
}

void UITableView::deleteRowsAtIndexPathsWithRowAnimation(
    const std::vector<NSIndexPath>& rows, UITableViewRowAnimation)
{
    std::set<toolkit::RowPath> gone;
    for (const auto& row : rows)
        gone.insert(rowPath(row));
    native(*this).removeRows(gone);
}

RetainPtr<UITableViewCell> UITableView::dequeueReusableCellWithIdentifier(const std::string& identifier)
{
    return desktop::retainedObjectOf<UITableViewCell>(native(*this).takeReusableCell(identifier).get());
}

CGRect UITableView::rectForRowAtIndexPath(const NSIndexPath& indexPath) const
{
    const auto row = rowPath(indexPath);
    const auto& rows = native(*this).measuredRows();
    return rows.hasRow(row) ? desktop::cgRect(rows.rowRect(row)) : CGRect();
}

UITableViewCell* UITableView::cellForRowAtIndexPath(const NSIndexPath& indexPath) const
{
    auto* cell = native(*this).cellOf(rowPath(indexPath));
    return cell ? &productCell(*cell) : nullptr;
}

RetainPtr<UIColor> UITableView::separatorColor() const
{
    return desktop::uiColor(native(*this).separatorColor());
}

void UITableView::setSeparatorColor(RetainPtr<UIColor> color)
{
    native(*this).setSeparatorColor(desktop::toolkitColor(color));
}

void UITableView::layoutSubviews()
{
    UIView::layoutSubviews();
}

} // namespace brimsound
