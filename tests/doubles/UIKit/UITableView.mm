#include "tests/doubles/Doubles.h"
#include "tests/doubles/UIKit/Forward.h"
#include "toolkit/table/Table.h"

#include <algorithm>

namespace doubles = brimsound::doubles;
namespace toolkit = brimsound::toolkit;
using toolkit::RowPath;

namespace {

RowPath rowPath(NSIndexPath* path)
{
    return { static_cast<std::size_t>([path section]), static_cast<std::size_t>([path row]) };
}

NSIndexPath* indexPath(RowPath path)
{
    return [NSIndexPath indexPathForRow:static_cast<NSInteger>(path.row)
                              inSection:static_cast<NSInteger>(path.section)];
}

/// A table that asks a data source and a delegate.
class Table : public doubles::Hosted<toolkit::Table>, private toolkit::TableSource {
public:
    using Hosted::Hosted;

    // Not retained.
    id<UITableViewDataSource> dataSource() const { return _dataSource; }
    void setDataSource(id<UITableViewDataSource> dataSource)
    {
        _dataSource = dataSource;
        setSource(dataSource ? this : nullptr);
    }
    id<UITableViewDelegate> delegate() const { return _delegate; }
    void setDelegate(id<UITableViewDelegate> delegate)
    {
        _delegate = delegate;
        reload();
    }

    /// Raises an exception for rows that do not exist, and for rows that the data source still has.
    void checkRemoval(const std::set<RowPath>& gone)
    {
        for (const auto& row : gone) {
            if (!rows().hasRow(row))
                refuse(@"No row to delete at %@", indexPath(row));
        }
        for (std::size_t section = 0; section < rows().sections().size(); ++section) {
            const auto deleted
                = static_cast<std::size_t>(std::ranges::count(gone, section, &RowPath::section));
            if (rowCount(section) + deleted != rows().sections()[section].rowCount())
                refuse(@"The data source has other rows than those left in section %zu", section);
        }
    }

private:
    template <typename Argument> static void refuse(NSString* format, Argument argument)
    {
        [NSException raise:NSInternalInconsistencyException format:format, argument];
    }

    UITableView* view() const { return static_cast<UITableView*>(doubles::existingViewOf(*this)); }

    std::size_t sectionCount() override
    {
        if (![_dataSource respondsToSelector:@selector(numberOfSectionsInTableView:)])
            return 1;
        return static_cast<std::size_t>([_dataSource numberOfSectionsInTableView:view()]);
    }

    std::size_t rowCount(std::size_t section) override
    {
        return static_cast<std::size_t>([_dataSource tableView:view()
                                         numberOfRowsInSection:static_cast<NSInteger>(section)]);
    }

    double rowHeight(RowPath row) override
    {
        if (![_delegate respondsToSelector:@selector(tableView:heightForRowAtIndexPath:)])
            return 44;
        return [_delegate tableView:view() heightForRowAtIndexPath:indexPath(row)];
    }

    std::string header(std::size_t section) override
    {
        if (![_dataSource respondsToSelector:@selector(tableView:titleForHeaderInSection:)])
            return {};
        return doubles::toToolkit([_dataSource tableView:view()
                                 titleForHeaderInSection:static_cast<NSInteger>(section)]);
    }

    std::string footer(std::size_t section) override
    {
        if (![_dataSource respondsToSelector:@selector(tableView:titleForFooterInSection:)])
            return {};
        return doubles::toToolkit([_dataSource tableView:view()
                                 titleForFooterInSection:static_cast<NSInteger>(section)]);
    }

    toolkit::Ref<toolkit::Cell> cell(RowPath row) override
    {
        UITableViewCell* const cell = [_dataSource tableView:view() cellForRowAtIndexPath:indexPath(row)];
        if (!cell)
            refuse(@"The data source has no cell for %@", indexPath(row));
        return toolkit::keep(&doubles::nativeOf<toolkit::Cell>(cell));
    }

    void willShow(toolkit::Cell& cell, RowPath row) override
    {
        if ([_delegate respondsToSelector:@selector(tableView:willDisplayCell:forRowAtIndexPath:)])
            [_delegate tableView:view()
                  willDisplayCell:static_cast<UITableViewCell*>(doubles::existingViewOf(cell))
                forRowAtIndexPath:indexPath(row)];
    }

    void selected(RowPath row) override
    {
        if ([_delegate respondsToSelector:@selector(tableView:didSelectRowAtIndexPath:)])
            [_delegate tableView:view() didSelectRowAtIndexPath:indexPath(row)];
    }

    bool canDelete(RowPath row) override
    {
        if (![_dataSource respondsToSelector:@selector(tableView:commitEditingStyle:forRowAtIndexPath:)])
            return false;
        return ![_dataSource respondsToSelector:@selector(tableView:canEditRowAtIndexPath:)] ||
            [_dataSource tableView:view() canEditRowAtIndexPath:indexPath(row)];
    }

    void deleteRow(RowPath row) override
    {
        [_dataSource tableView:view()
            commitEditingStyle:UITableViewCellEditingStyleDelete
             forRowAtIndexPath:indexPath(row)];
    }

    id<UITableViewDataSource> _dataSource = nil;
    id<UITableViewDelegate> _delegate = nil;
};

Table& native(UITableView* table)
{
    return doubles::nativeOf<Table>(table);
}

} // namespace

@implementation UITableView

- (instancetype)initWithFrame:(CGRect)frame
{
    return [self initWithFrame:frame style:UITableViewStylePlain];
}

- (instancetype)initWithFrame:(CGRect)frame style:(UITableViewStyle)style
{
    return [self initWithNative:new Table(doubles::toToolkit(frame),
                                    style == UITableViewStyleGrouped ? toolkit::Table::Style::Grouped
                                                                     : toolkit::Table::Style::List)];
}

- (id<UITableViewDataSource>)dataSource
{
    return native(self).dataSource();
}

- (void)setDataSource:(id<UITableViewDataSource>)dataSource
{
    native(self).setDataSource(dataSource);
}

- (id<UITableViewDelegate>)delegate
{
    return native(self).delegate();
}

- (void)setDelegate:(id<UITableViewDelegate>)delegate
{
    native(self).setDelegate(delegate);
}

FORWARD_PROPERTY(UIColor*, separatorColor, setSeparatorColor, separatorColor, setSeparatorColor)

- (CGSize)contentSize
{
    native(self).measuredRows();
    return [super contentSize];
}

- (void)reloadData
{
    native(self).reload();
}

- (void)deleteRowsAtIndexPaths:(NSArray*)indexPaths withRowAnimation:(UITableViewRowAnimation)animation
{
    std::set<RowPath> gone;
    for (NSIndexPath* path in indexPaths)
        gone.insert(rowPath(path));
    if (native(self).isMeasured())
        native(self).checkRemoval(gone);
    native(self).removeRows(gone);
}

- (id)dequeueReusableCellWithIdentifier:(NSString*)identifier
{
    const auto cell = native(self).takeReusableCell(doubles::toToolkit(identifier));
    return [[doubles::toPlatform(cell.get()) retain] autorelease];
}

- (CGRect)rectForRowAtIndexPath:(NSIndexPath*)path
{
    const auto& rows = native(self).measuredRows();
    return rows.hasRow(rowPath(path)) ? doubles::toPlatform(rows.rowRect(rowPath(path))) : CGRect {};
}

- (UITableViewCell*)cellForRowAtIndexPath:(NSIndexPath*)path
{
    return static_cast<UITableViewCell*>(doubles::toPlatform(native(self).cellOf(rowPath(path))));
}

@end

namespace brimsound::doubles {

bool tapRow(UITableView* table, NSIndexPath* path)
{
    const auto kept = toolkit::keep<toolkit::Table>(&native(table));
    const bool isOnView = kept->cellOf(rowPath(path)) != nullptr;
    if (isOnView)
        kept->press(rowPath(path));
    return isOnView;
}

bool swipeToDelete(UITableView* table, NSIndexPath* path)
{
    const auto kept = toolkit::keep<toolkit::Table>(&native(table));
    return kept->cellOf(rowPath(path)) && kept->deleteRow(rowPath(path));
}

} // namespace brimsound::doubles
