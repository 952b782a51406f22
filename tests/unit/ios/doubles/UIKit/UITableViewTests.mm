#include "tests/doubles/Doubles.h"
#include "tests/unit/ios/doubles/UIKit/Geometry.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

/// Provides a table with two sections.
@interface RowSource : NSObject <UITableViewDataSource, UITableViewDelegate> {
@public
    NSInteger counts[2];
    int cellsAskedFor;
    std::vector<std::string>* events;
}
@end

@implementation RowSource

- (instancetype)init
{
    self = [super init];
    events = new std::vector<std::string>;
    return self;
}

- (void)dealloc
{
    delete events;
    [super dealloc];
}

- (NSInteger)numberOfSectionsInTableView:(UITableView*)table
{
    return 2;
}

- (NSInteger)tableView:(UITableView*)table numberOfRowsInSection:(NSInteger)section
{
    return counts[section];
}

- (CGFloat)tableView:(UITableView*)table heightForRowAtIndexPath:(NSIndexPath*)indexPath
{
    return [indexPath section] == 0 ? 100 : 50;
}

- (UITableViewCell*)tableView:(UITableView*)table cellForRowAtIndexPath:(NSIndexPath*)indexPath
{
    ++cellsAskedFor;
    UITableViewCell* cell = [table dequeueReusableCellWithIdentifier:@"row"];
    if (cell)
        return cell;
    return [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                   reuseIdentifier:@"row"] autorelease];
}

- (void)tableView:(UITableView*)table
      willDisplayCell:(UITableViewCell*)cell
    forRowAtIndexPath:(NSIndexPath*)indexPath
{
    EXPECT_EQ([cell frame], [table rectForRowAtIndexPath:indexPath]);
    events->push_back("display " + std::to_string([indexPath row]));
}

- (void)tableView:(UITableView*)table didSelectRowAtIndexPath:(NSIndexPath*)indexPath
{
    events->push_back("select " + std::to_string([indexPath row]));
}

- (BOOL)tableView:(UITableView*)table canEditRowAtIndexPath:(NSIndexPath*)indexPath
{
    return [indexPath section] == 1;
}

- (void)tableView:(UITableView*)table
    commitEditingStyle:(UITableViewCellEditingStyle)style
     forRowAtIndexPath:(NSIndexPath*)indexPath
{
    EXPECT_EQ(style, UITableViewCellEditingStyleDelete);
    --counts[[indexPath section]];
    [table deleteRowsAtIndexPaths:[NSArray arrayWithObject:indexPath]
                 withRowAnimation:UITableViewRowAnimationAutomatic];
}

@end

namespace {

using testing::ElementsAre;

NSIndexPath* path(NSInteger section, NSInteger row)
{
    return [NSIndexPath indexPathForRow:row inSection:section];
}

/// A table 250 points high, with a row of 100 points and a hundred rows of 50.
class ATable : public testing::Test {
protected:
    ATable()
    {
        source->counts[0] = 1;
        source->counts[1] = 100;
        [table setDataSource:source];
        [table setDelegate:source];
        [table layoutIfNeeded];
    }
    ~ATable() override
    {
        [table release];
        [source release];
        [pool release];
    }

    UITableViewCell* cell(NSInteger section, NSInteger row)
    {
        return [table cellForRowAtIndexPath:path(section, row)];
    }

    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    RowSource* source = [[RowSource alloc] init];
    UITableView* table = [[UITableView alloc] initWithFrame:CGRectMake(0, 0, 320, 250)
                                                      style:UITableViewStylePlain];
};

TEST_F(ATable, HasCellsOnlyForTheRowsInView)
{
    EXPECT_EQ([[table subviews] count], 4u);
    EXPECT_EQ([cell(0, 0) frame], CGRectMake(0, 0, 320, 100));
    EXPECT_EQ([cell(1, 2) frame], CGRectMake(0, 200, 320, 50));
    EXPECT_EQ(cell(1, 3), nil);
    EXPECT_EQ([table rectForRowAtIndexPath:path(1, 99)], CGRectMake(0, 5050, 320, 50));
    EXPECT_EQ([table rectForRowAtIndexPath : path(1, 100)], CGRect {});
    EXPECT_THAT(*source->events, ElementsAre("display 0", "display 0", "display 1", "display 2"));
}

TEST_F(ATable, SelectsOneRowAtATime)
{
    source->events->clear();
    EXPECT_TRUE(brimsound::doubles::tapRow(table, path(1, 0)));
    EXPECT_TRUE([cell(1, 0) isSelected]);
    EXPECT_TRUE(brimsound::doubles::tapRow(table, path(1, 2)));
    EXPECT_FALSE([cell(1, 0) isSelected]);
    EXPECT_TRUE([cell(1, 2) isSelected]);
    EXPECT_FALSE([cell(1, 2) isHighlighted]);
    EXPECT_FALSE(brimsound::doubles::tapRow(table, path(1, 50)));
    EXPECT_THAT(*source->events, ElementsAre("select 0", "select 2"));
}

TEST_F(ATable, MovesTheRowsBelowADeletedOneUp)
{
    UITableViewCell* above = cell(1, 0);
    UITableViewCell* below = cell(1, 2);
    const int askedFor = source->cellsAskedFor;
    EXPECT_TRUE(brimsound::doubles::swipeToDelete(table, path(1, 1)));
    EXPECT_EQ(cell(1, 0), above);
    EXPECT_EQ(cell(1, 1), below);
    EXPECT_EQ([below frame], CGRectMake(0, 150, 320, 50));
    EXPECT_EQ(brimsound::doubles::shownFrame(below), CGRectMake(0, 200, 320, 50));
    EXPECT_EQ(source->cellsAskedFor, askedFor + 1) << "for the row that came into view at the bottom";
    EXPECT_EQ(brimsound::doubles::shownFrame(cell(1, 2)), CGRectMake(0, 250, 320, 50));
    brimsound::doubles::advanceClock(0.31);
    EXPECT_EQ(brimsound::doubles::shownFrame(below), [below frame]);
    EXPECT_EQ([[table subviews] count], 4u);
}

TEST_F(ATable, DeletesOnlyWhatItsDataSourceLetsItDelete)
{
    EXPECT_FALSE(brimsound::doubles::swipeToDelete(table, path(0, 0)));
    EXPECT_EQ(source->counts[0], 1);
}

TEST_F(ATable, RefusesToDeleteRowsThatItsDataSourceStillHas)
{
    NSString* refusal = nil;
    @try {
        [table deleteRowsAtIndexPaths:[NSArray arrayWithObject:path(1, 1)]
                     withRowAnimation:UITableViewRowAnimationAutomatic];
    } @catch (NSException* exception) {
        refusal = [exception name];
    }
    EXPECT_TRUE([refusal isEqualToString:NSInternalInconsistencyException]);
}

TEST_F(ATable, RetainsItsCellsButNotItsDataSource)
{
    EXPECT_EQ([source retainCount], 1u);
    UITableViewCell* kept = [cell(0, 0) retain];
    [table setDataSource:nil];
    [table layoutIfNeeded];
    EXPECT_EQ([[table subviews] count], 0u);
    [table release];
    table = nil;
    [pool release];
    pool = [[NSAutoreleasePool alloc] init];
    EXPECT_EQ([kept retainCount], 1u);
    [kept release];
}

class ACell : public testing::Test {
protected:
    ~ACell() override
    {
        [cell release];
        [pool release];
    }

    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    UITableViewCell* cell = [[UITableViewCell alloc] initWithStyle:UITableViewCellStyleSubtitle
                                                   reuseIdentifier:@"row"];
};

TEST_F(ACell, WithoutASelectionStyleLooksTheSame)
{
    [cell setSelectionStyle:UITableViewCellSelectionStyleNone];
    [cell setSelected:YES];
    EXPECT_TRUE([cell isSelected]);
    EXPECT_EQ([[cell selectedBackgroundView] superview], nil);
    EXPECT_FALSE([[cell textLabel] isHighlighted]);
}

TEST_F(ACell, ReleasesItsViews)
{
    UIView* content = [[cell contentView] retain];
    UIView* accessory = [[UIView alloc] init];
    UIView* background = [[UIView alloc] init];
    [cell setAccessoryView:accessory];
    [cell setBackgroundView:background];
    [cell imageView];
    EXPECT_EQ([accessory retainCount], 3u);
    [cell setBackgroundView:nil];
    EXPECT_EQ([background retainCount], 1u);
    [cell release];
    cell = nil;
    EXPECT_EQ([content retainCount], 1u);
    EXPECT_EQ([accessory retainCount], 1u);
    [content release];
    [accessory release];
    [background release];
}

} // namespace
