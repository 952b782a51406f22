#import <Preferences/Preferences.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

/// A pane with the resources' specifiers that implements some of their selectors.
@interface ListUnderTest : PSListController {
@public
    BOOL isFilterDisabled;
    NSInteger timesRespringed;
}
@end

@implementation ListUnderTest

- (NSArray*)specifiers
{
    if (!_specifiers)
        _specifiers = [[self loadSpecifiersFromPlistName:@"BrimsoundSettings" target:self] retain];
    return _specifiers;
}

- (id)filterDisabled
{
    return [NSNumber numberWithBool:isFilterDisabled];
}

- (void)setFilterDisabled:(id)value
{
    isFilterDisabled = [value boolValue];
}

- (void)respring:(PSSpecifier*)specifier
{
    ++timesRespringed;
}

@end

namespace {

class AList : public testing::Test {
protected:
    AList() { [list view]; }
    ~AList() override { [list release]; }

    UITableViewCell* cell(NSInteger section, NSInteger row)
    {
        return [list tableView:[list table]
            cellForRowAtIndexPath:[NSIndexPath indexPathForRow:row inSection:section]];
    }

    ListUnderTest* list = [[ListUnderTest alloc] initForContentSize:CGSizeMake(320, 568)];
};

TEST_F(AList, HasASectionForEachGroup)
{
    UITableView* table = [list table];
    EXPECT_EQ([list numberOfSectionsInTableView:table], 7);
    EXPECT_EQ([list tableView:table numberOfRowsInSection:0], 2);
    EXPECT_EQ([list tableView:table numberOfRowsInSection:2], 1);
    EXPECT_TRUE([[list tableView:table titleForHeaderInSection:3] isEqual:@"Engine"]);
    EXPECT_TRUE([[list tableView:table titleForFooterInSection:6] isEqual:@"Brimsound 1.5.5"]);
    EXPECT_FALSE([list tableView:table titleForHeaderInSection:0]);
}

TEST_F(AList, ReadsAndWritesASwitchBySelector)
{
    list->isFilterDisabled = YES;
    UISwitch* toggle = (UISwitch*)[cell(3, 0) accessoryView];
    EXPECT_TRUE([toggle isOn]);
    [toggle setOn:NO animated:NO];
    [toggle sendActionsForControlEvents:UIControlEventValueChanged];
    EXPECT_FALSE(list->isFilterDisabled);
}

TEST_F(AList, ShowsTheDefaultOfASwitchWithoutAGetter)
{
    EXPECT_TRUE([(UISwitch*)[cell(0, 0) accessoryView] isOn]);
    EXPECT_FALSE([(UISwitch*)[cell(3, 1) accessoryView] isOn]);
}

TEST_F(AList, SendsTheActionOfARowThatIsSelected)
{
    UITableView* table = [list table];
    [list tableView:table didSelectRowAtIndexPath:[NSIndexPath indexPathForRow:1 inSection:4]];
    EXPECT_EQ(list->timesRespringed, 1);
    [list tableView:table didSelectRowAtIndexPath:[NSIndexPath indexPathForRow:0 inSection:4]];
    EXPECT_EQ(list->timesRespringed, 1);
}

TEST_F(AList, ReloadsItsSpecifiersOnRequest)
{
    PSSpecifier* first = [[[list specifiers] objectAtIndex:0] retain];
    EXPECT_EQ([[list specifiers] objectAtIndex:0], first);
    [list reloadSpecifiers];
    EXPECT_NE([[list specifiers] objectAtIndex:0], first);
    [first release];
}

TEST_F(AList, HasNoSpecifiersWithoutThePlist)
{
    EXPECT_EQ([[list loadSpecifiersFromPlistName:@"Nothing" target:list] count], 0u);
}

TEST_F(AList, IsNullForAnInvalidSize)
{
    const auto noNumber = std::numeric_limits<CGFloat>::quiet_NaN();
    EXPECT_EQ([[ListUnderTest alloc] initForContentSize:CGSizeMake(noNumber, 568)], nil);
}

} // namespace
