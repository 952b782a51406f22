#include "tests/ios/doubles/UIKit/Assign.h"
#include "tests/ios/doubles/UIKit/HostedView.h"

#include <algorithm>
#include <compare>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace {

struct Row {
    NSInteger section;
    NSInteger row;

    auto operator<=>(const Row&) const = default;
};

Row rowAt(NSIndexPath* indexPath)
{
    return { [indexPath section], [indexPath row] };
}

NSIndexPath* indexPathOf(const Row& row)
{
    return [NSIndexPath indexPathForRow:row.row inSection:row.section];
}

/// Where a row is when those are gone.
Row without(const std::set<Row>& gone, const Row& row)
{
    return { row.section,
        row.row - std::distance(gone.lower_bound({ row.section, 0 }), gone.lower_bound(row)) };
}

// In points.
constexpr CGFloat rowHeight = 44;
constexpr CGFloat gapAroundSection = 18;
constexpr CGFloat titleHeight = 28;

/// In seconds.
constexpr double rowsMoveTime = 0.3;

} // namespace

struct UITableViewState {
    UITableViewStyle style = UITableViewStylePlain;
    // Not retained.
    id<UITableViewDataSource> dataSource = nil;
    id<UITableViewDelegate> delegate = nil;
    UIColor* separatorColor = nil;
    /// The tops of each section's rows, and the foot of its last one; nothing until the data source was
    /// asked.
    std::optional<std::vector<std::vector<CGFloat>>> sections;
    /// Retained, as those that can be reused are.
    std::map<Row, UITableViewCell*> cells;
    std::multimap<std::string, UITableViewCell*> reusable;
    std::optional<Row> selectedRow;

    NSInteger rowCount(NSInteger section) const
    {
        return static_cast<NSInteger>((*sections)[static_cast<std::size_t>(section)].size()) - 1;
    }
    NSInteger sectionCount() const { return static_cast<NSInteger>(sections->size()); }
    bool hasRow(const Row& row) const
    {
        return sections && row.section >= 0 && row.section < sectionCount() && row.row >= 0
            && row.row < rowCount(row.section);
    }
};

@interface UITableView (Rows)
- (void)measure;
- (CGRect)rectForRow:(const Row&)row;
- (void)putAside:(UITableViewCell*)cell;
- (void)forgetRows;
- (void)makeCellsFromBelow:(CGFloat)distance;
- (void)placeCells;
- (void)selectRow:(const Row&)row;
- (BOOL)deleteRow:(const Row&)row;
@end

@implementation UITableView

- (instancetype)initWithFrame:(CGRect)frame
{
    return [self initWithFrame:frame style:UITableViewStylePlain];
}

- (instancetype)initWithFrame:(CGRect)frame style:(UITableViewStyle)style
{
    self = [super initWithFrame:frame];
    if (self) {
        _tableViewState = new UITableViewState;
        _tableViewState->style = style;
    }
    return self;
}

- (void)dealloc
{
    for (const auto& [row, cell] : _tableViewState->cells)
        [cell release];
    for (const auto& [identifier, cell] : _tableViewState->reusable)
        [cell release];
    [_tableViewState->separatorColor release];
    delete _tableViewState;
    [super dealloc];
}

- (UITableViewStyle)style
{
    return _tableViewState->style;
}

- (id<UITableViewDataSource>)dataSource
{
    return _tableViewState->dataSource;
}

- (void)setDataSource:(id<UITableViewDataSource>)dataSource
{
    _tableViewState->dataSource = dataSource;
    [self forgetRows];
}

- (id<UITableViewDelegate>)delegate
{
    return _tableViewState->delegate;
}

- (void)setDelegate:(id<UITableViewDelegate>)delegate
{
    _tableViewState->delegate = delegate;
    [self forgetRows];
}

- (UIColor*)separatorColor
{
    return _tableViewState->separatorColor;
}

- (void)setSeparatorColor:(UIColor*)color
{
    brimsound::doubles::assignRetained(_tableViewState->separatorColor, color);
}

- (void)reloadData
{
    [self forgetRows];
    [self measure];
}

- (void)deleteRowsAtIndexPaths:(NSArray*)indexPaths withRowAnimation:(UITableViewRowAnimation)animation
{
    auto& state = *_tableViewState;
    // All rows are about to be asked for.
    if (!state.sections)
        return;
    std::set<Row> gone;
    CGFloat distance = 0;
    for (NSIndexPath* indexPath in indexPaths) {
        const auto row = rowAt(indexPath);
        if (!state.hasRow(row))
            [NSException raise:NSInternalInconsistencyException format:@"No row to delete at %@", indexPath];
        if (gone.insert(row).second)
            distance += [self rectForRow:row].size.height;
    }
    const auto former = *state.sections;
    [self measure];
    for (NSInteger section = 0; section < state.sectionCount(); ++section) {
        const auto before = static_cast<NSInteger>(former[static_cast<std::size_t>(section)].size()) - 1;
        const auto deleted = std::ranges::count(gone, section, &Row::section);
        if (state.rowCount(section) != before - deleted) {
            [NSException raise:NSInternalInconsistencyException
                        format:@"Section %ld has %ld rows after %ld of %ld were deleted", section,
                        state.rowCount(section), deleted, before];
        }
    }

    for (const auto& [row, cell] : std::exchange(state.cells, {})) {
        if (gone.contains(row))
            [self putAside:cell];
        else
            state.cells.emplace(without(gone, row), cell);
    }
    if (state.selectedRow)
        state.selectedRow = gone.contains(*state.selectedRow)
            ? std::nullopt
            : std::optional(without(gone, *state.selectedRow));
    [self makeCellsFromBelow:distance];
    [UIView beginAnimations:nil context:nullptr];
    [UIView setAnimationDuration:rowsMoveTime];
    [UIView setAnimationBeginsFromCurrentState:YES];
    [self placeCells];
    [UIView commitAnimations];
}

- (id)dequeueReusableCellWithIdentifier:(NSString*)identifier
{
    auto found = _tableViewState->reusable.extract([identifier UTF8String]);
    if (!found)
        return nil;
    UITableViewCell* const cell = [found.mapped() autorelease];
    [cell prepareForReuse];
    return cell;
}

- (CGRect)rectForRowAtIndexPath:(NSIndexPath*)indexPath
{
    if (!_tableViewState->sections)
        [self measure];
    const auto row = rowAt(indexPath);
    return _tableViewState->hasRow(row) ? [self rectForRow:row] : CGRect {};
}

- (UITableViewCell*)cellForRowAtIndexPath:(NSIndexPath*)indexPath
{
    const auto found = _tableViewState->cells.find(rowAt(indexPath));
    return found == _tableViewState->cells.end() ? nil : found->second;
}

- (void)layoutSubviews
{
    [super layoutSubviews];
    if (!_tableViewState->sections)
        [self measure];
    [self setContentSize:CGSizeMake([self bounds].size.width, [self contentSize].height)];
    // A table that became taller, or has fewer rows, does not stay scrolled beyond its end.
    const CGFloat furthest = std::max(0.0, [self contentSize].height - [self bounds].size.height);
    if ([self contentOffset].y > furthest)
        [self setContentOffset:CGPointMake(0, furthest)];
    [self makeCellsFromBelow:0];
    [self placeCells];
}

- (void)measure
{
    auto& state = *_tableViewState;
    id dataSource = state.dataSource;
    id delegate = state.delegate;
    const bool grouped = state.style == UITableViewStyleGrouped;
    const auto heightOfTitle = [&](SEL selector, NSInteger section) -> CGFloat {
        if (![dataSource respondsToSelector:selector])
            return 0;
        NSString* const title = selector == @selector(tableView:titleForHeaderInSection:)
            ? [dataSource tableView:self titleForHeaderInSection:section]
            : [dataSource tableView:self titleForFooterInSection:section];
        return [title length] > 0 ? titleHeight : 0;
    };

    NSInteger count = dataSource ? 1 : 0;
    if ([dataSource respondsToSelector:@selector(numberOfSectionsInTableView:)])
        count = [dataSource numberOfSectionsInTableView:self];
    std::vector<std::vector<CGFloat>> sections;
    CGFloat y = 0;
    for (NSInteger section = 0; section < count; ++section) {
        y += (grouped ? gapAroundSection : 0)
            + heightOfTitle(@selector(tableView:titleForHeaderInSection:), section);
        auto& tops = sections.emplace_back();
        const NSInteger rows = [dataSource tableView:self numberOfRowsInSection:section];
        for (NSInteger row = 0; row < rows; ++row) {
            tops.push_back(y);
            y += [delegate respondsToSelector:@selector(tableView:heightForRowAtIndexPath:)]
                ? [delegate tableView:self heightForRowAtIndexPath:indexPathOf({ section, row })]
                : rowHeight;
        }
        tops.push_back(y);
        y += (grouped ? gapAroundSection : 0)
            + heightOfTitle(@selector(tableView:titleForFooterInSection:), section);
    }
    state.sections = std::move(sections);
    [self setContentSize:CGSizeMake([self bounds].size.width, y)];
}

- (CGRect)rectForRow:(const Row&)row
{
    const auto& tops = (*_tableViewState->sections)[static_cast<std::size_t>(row.section)];
    const auto index = static_cast<std::size_t>(row.row);
    return CGRectMake(0, tops[index], [self bounds].size.width, tops[index + 1] - tops[index]);
}

- (void)putAside:(UITableViewCell*)cell
{
    [cell removeFromSuperview];
    [cell setHighlighted:NO animated:NO];
    [cell setSelected:NO animated:NO];
    if (NSString* identifier = [cell reuseIdentifier])
        _tableViewState->reusable.emplace([identifier UTF8String], cell);
    else
        [cell release];
}

- (void)forgetRows
{
    for (const auto& [row, cell] : std::exchange(_tableViewState->cells, {}))
        [self putAside:cell];
    _tableViewState->selectedRow.reset();
    _tableViewState->sections.reset();
    [self setNeedsLayout];
}

- (void)makeCellsFromBelow:(CGFloat)distance
{
    auto& state = *_tableViewState;
    const auto isOnView
        = [&](const Row& row) { return NSIntersectsRect([self rectForRow:row], [self bounds]); };
    for (auto entry = state.cells.begin(); entry != state.cells.end();) {
        const auto [row, cell] = *entry;
        entry = isOnView(row) ? std::next(entry) : state.cells.erase(entry);
        if (isOnView(row))
            continue;
        // Whoever set the row to be not selected did not tell the table.
        if (state.selectedRow == row && ![cell isSelected])
            state.selectedRow.reset();
        [self putAside:cell];
    }

    for (NSInteger section = 0; state.sections && section < state.sectionCount(); ++section) {
        for (NSInteger index = 0; state.hasRow({ section, index }); ++index) {
            const Row row { section, index };
            if (!isOnView(row) || state.cells.contains(row))
                continue;
            auto rect = [self rectForRow:row];
            NSIndexPath* const indexPath = indexPathOf(row);
            UITableViewCell* const cell = [state.dataSource tableView:self cellForRowAtIndexPath:indexPath];
            if (!cell) {
                [NSException raise:NSInternalInconsistencyException
                            format:@"The data source has no cell for %@", indexPath];
            }
            // Whoever is asked may have the table ask anew.
            if (!state.hasRow(row))
                return;
            [cell setFrame:rect];
            [cell setSelected:row == state.selectedRow animated:NO];
            state.cells.emplace(row, [cell retain]);
            id delegate = state.delegate;
            if ([delegate respondsToSelector:@selector(tableView:willDisplayCell:forRowAtIndexPath:)])
                [delegate tableView:self willDisplayCell:cell forRowAtIndexPath:indexPath];
            if (!state.cells.contains(row))
                return;
            [self addSubview:cell];
            rect.origin.y += distance;
            [cell setFrame:rect];
        }
    }
}

- (void)placeCells
{
    for (const auto& [row, cell] : _tableViewState->cells)
        [cell setFrame:[self rectForRow:row]];
}

- (void)selectRow:(const Row&)row
{
    auto& state = *_tableViewState;
    if (const auto former = state.selectedRow; former && *former != row)
        [[self cellForRowAtIndexPath:indexPathOf(*former)] setSelected:NO animated:NO];
    state.selectedRow = row;
    NSIndexPath* const indexPath = indexPathOf(row);
    UITableViewCell* const cell = [self cellForRowAtIndexPath:indexPath];
    [cell setHighlighted:YES animated:NO];
    [cell setSelected:YES animated:NO];
    [cell setHighlighted:NO animated:NO];
    id delegate = state.delegate;
    if ([delegate respondsToSelector:@selector(tableView:didSelectRowAtIndexPath:)])
        [delegate tableView:self didSelectRowAtIndexPath:indexPath];
}

- (BOOL)deleteRow:(const Row&)row
{
    id dataSource = _tableViewState->dataSource;
    NSIndexPath* const indexPath = indexPathOf(row);
    if (![dataSource respondsToSelector:@selector(tableView:commitEditingStyle:forRowAtIndexPath:)])
        return NO;
    if ([dataSource respondsToSelector:@selector(tableView:canEditRowAtIndexPath:)]
        && ![dataSource tableView:self canEditRowAtIndexPath:indexPath])
        return NO;
    [dataSource tableView:self
        commitEditingStyle:UITableViewCellEditingStyleDelete
         forRowAtIndexPath:indexPath];
    return YES;
}

@end

namespace brimsound::doubles {

bool tapRow(UITableView* table, NSIndexPath* indexPath)
{
    if (![table cellForRowAtIndexPath:indexPath])
        return false;
    [table retain];
    [table selectRow:rowAt(indexPath)];
    [table release];
    return true;
}

bool swipeToDelete(UITableView* table, NSIndexPath* indexPath)
{
    if (![table cellForRowAtIndexPath:indexPath])
        return false;
    [table retain];
    const bool deleted = [table deleteRow:rowAt(indexPath)];
    [table release];
    return deleted;
}

} // namespace brimsound::doubles
