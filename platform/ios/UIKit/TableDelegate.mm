#include "platform/ios/UIKit/TableDelegate.h"

#include "platform/ios/Foundation/NativeText.h"
#include "platform/ios/Foundation/Peer.h"
#include "platform/ios/UIKit/IndexPath.h"

using brimsound::ios::nativeOf;
using brimsound::ios::nativeText;
using brimsound::ios::objectOf;
using brimsound::ios::ours;

namespace {

brimsound::UITableView& tableOf(UITableView* native)
{
    return *objectOf<brimsound::UITableView>(native);
}

/// An empty title means no title.
NSString* titleOrNil(const std::string& title)
{
    return title.empty() ? nil : nativeText(title);
}

} // namespace

// The table only calls these methods while it has a data source or a delegate, and only those that it
// implements.
@implementation BRTableDelegate

- (NSInteger)numberOfSectionsInTableView:(UITableView*)table
{
    return static_cast<NSInteger>(_dataSource->numberOfSectionsInTableView(tableOf(table)));
}

- (NSInteger)tableView:(UITableView*)table numberOfRowsInSection:(NSInteger)section
{
    return static_cast<NSInteger>(
        _dataSource->tableViewNumberOfRowsInSection(tableOf(table), static_cast<std::size_t>(section)));
}

- (UITableViewCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)path
{
    const auto cell = _dataSource->tableViewCellForRowAtIndexPath(tableOf(table), ours(path));
    return [[nativeOf(cell.get()) retain] autorelease];
}

- (BOOL)tableView:(UITableView*)table canEditRowAtIndexPath:(NSIndexPath*)path
{
    return _dataSource->tableViewCanEditRowAtIndexPath(tableOf(table), ours(path));
}

- (void)tableView:(UITableView*)table
    commitEditingStyle:(UITableViewCellEditingStyle)style
     forRowAtIndexPath:(NSIndexPath*)path
{
    _dataSource->tableViewCommitEditingStyleForRowAtIndexPath(
        tableOf(table), static_cast<brimsound::UITableViewCellEditingStyle>(style), ours(path));
}

- (NSString*)tableView:(UITableView*)table titleForHeaderInSection:(NSInteger)section
{
    return titleOrNil(
        _dataSource->tableViewTitleForHeaderInSection(tableOf(table), static_cast<std::size_t>(section)));
}

- (NSString*)tableView:(UITableView*)table titleForFooterInSection:(NSInteger)section
{
    return titleOrNil(
        _dataSource->tableViewTitleForFooterInSection(tableOf(table), static_cast<std::size_t>(section)));
}

- (CGFloat)tableView:(UITableView*)table heightForRowAtIndexPath:(NSIndexPath*)path
{
    return _delegate->tableViewHeightForRowAtIndexPath(tableOf(table), ours(path));
}

- (void)tableView:(UITableView*)table
      willDisplayCell:(UITableViewCell*)cell
    forRowAtIndexPath:(NSIndexPath*)path
{
    _delegate->tableViewWillDisplayCellForRowAtIndexPath(
        tableOf(table), *objectOf<brimsound::UITableViewCell>(cell), ours(path));
}

- (void)tableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)path
{
    _delegate->tableViewDidSelectRowAtIndexPath(tableOf(table), ours(path));
}

@end
