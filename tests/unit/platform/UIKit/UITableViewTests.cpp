#include "tests/unit/platform/UIKit/Geometry.h"

#include "platform/UIKit/UITableView.h"
#include "platform/desktop/UIKit/HostedView.h"
#include "toolkit/table/Table.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

#include <utility>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Rows in one section. Writes down what a table tells.
class Rows : public UITableViewDataSource, public UITableViewDelegate {
public:
    explicit Rows(std::size_t rowCount)
        : count(rowCount)
    {
    }

    std::size_t tableViewNumberOfRowsInSection(UITableView&, std::size_t) override { return count; }
    RetainPtr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView& table, const NSIndexPath&) override
    {
        auto cell = table.dequeueReusableCellWithIdentifier("row");
        if (!cell) {
            cell = make<UITableViewCell>(UITableViewCellStyle::Default, "row");
            made.push_back(cell);
        }
        return cell;
    }
    bool tableViewCanEditRowAtIndexPath(UITableView&, const NSIndexPath& row) override { return row.row > 0; }
    void tableViewCommitEditingStyleForRowAtIndexPath(
        UITableView&, UITableViewCellEditingStyle style, const NSIndexPath& row) override
    {
        committed.emplace_back(style, row);
    }
    std::string tableViewTitleForHeaderInSection(UITableView&, std::size_t) override { return "above"; }
    std::string tableViewTitleForFooterInSection(UITableView&, std::size_t) override { return "below"; }

    CGFloat tableViewHeightForRowAtIndexPath(UITableView&, const NSIndexPath& row) override
    {
        return row.row == 0 ? 60 : 50;
    }
    void tableViewWillDisplayCellForRowAtIndexPath(
        UITableView&, UITableViewCell& cell, const NSIndexPath& row) override
    {
        displayed.emplace_back(&cell, row);
    }
    void tableViewDidSelectRowAtIndexPath(UITableView&, const NSIndexPath& row) override
    {
        selected.push_back(row);
    }

    std::size_t count;
    std::vector<RetainPtr<UITableViewCell>> made;
    std::vector<std::pair<UITableViewCell*, NSIndexPath>> displayed;
    std::vector<NSIndexPath> selected;
    std::vector<std::pair<UITableViewCellEditingStyle, NSIndexPath>> committed;
};

class ATableView : public testing::Test {
protected:
    ATableView()
    {
        table->setDataSource(&rows);
        table->setDelegate(&rows);
        table->layoutIfNeeded();
    }
    ~ATableView() override
    {
        table->setDataSource(nullptr);
        table->setDelegate(nullptr);
    }

    toolkit::Table& native() const { return desktop::nativeOf<toolkit::Table>(*table); }

    Rows rows { 20 };
    const RetainPtr<UITableView> table
        = make<UITableView>(CGRectMake(0, 0, 320, 400), UITableViewStyle::Plain);
};

TEST_F(ATableView, ShowsTheCellsOfItsDataSource)
{
    ASSERT_THAT(rows.made, SizeIs(8));
    EXPECT_EQ(table->cellForRowAtIndexPath({ 0, 1 }), rows.made[1].get());
    EXPECT_EQ(table->subviews(), std::vector<RetainPtr<UIView>>(rows.made.begin(), rows.made.end()));
    EXPECT_EQ(table->cellForRowAtIndexPath({ 0, 19 }), nullptr);
}

TEST_F(ATableView, HandsTheSameCellsOutForReuse)
{
    EXPECT_FALSE(table->dequeueReusableCellWithIdentifier("row"));
    table->reloadData();
    EXPECT_FALSE(table->dequeueReusableCellWithIdentifier("other"));
    const auto reused = table->dequeueReusableCellWithIdentifier("row");
    EXPECT_THAT(rows.made, testing::Contains(reused));
}

TEST_F(ATableView, TellsItsDelegateOfTheCellsThatItShows)
{
    ASSERT_THAT(rows.displayed, SizeIs(8));
    EXPECT_EQ(rows.displayed[1], std::pair(rows.made[1].get(), NSIndexPath { 0, 1 }));
}

TEST_F(ATableView, HasRowsOfTheDelegatesHeightsElseOfFortyFourPoints)
{
    EXPECT_EQ(table->rectForRowAtIndexPath({ 0, 1 }), CGRectMake(0, 60, 320, 50));
    table->setDelegate(nullptr);
    EXPECT_EQ(table->rectForRowAtIndexPath({ 0, 1 }), CGRectMake(0, 44, 320, 44));
    EXPECT_EQ(table->rectForRowAtIndexPath({ 0, 20 }), CGRect());
    EXPECT_EQ(table->rectForRowAtIndexPath({ 1, 0 }), CGRect());
}

TEST_F(ATableView, TellsItsDelegateOfASelectedRow)
{
    native().select({ 0, 2 });
    EXPECT_THAT(rows.selected, ElementsAre(NSIndexPath { 0, 2 }));
    table->setDelegate(nullptr);
    table->layoutIfNeeded();
    native().select({ 0, 3 });
    EXPECT_THAT(rows.selected, SizeIs(1));
}

TEST_F(ATableView, HasItsDataSourceDeleteRowsThatCanBeEdited)
{
    EXPECT_TRUE(native().deleteRow({ 0, 2 }));
    EXPECT_FALSE(native().deleteRow({ 0, 0 }));
    EXPECT_THAT(
        rows.committed, ElementsAre(std::pair(UITableViewCellEditingStyle::Delete, NSIndexPath { 0, 2 })));
}

TEST_F(ATableView, RemovesRowsAndKeepsTheCellsOfTheOthers)
{
    rows.count = 18;
    table->deleteRowsAtIndexPathsWithRowAnimation({ { 0, 2 }, { 0, 1 } }, UITableViewRowAnimation::Automatic);
    EXPECT_EQ(table->cellForRowAtIndexPath({ 0, 0 }), rows.made[0].get());
    EXPECT_EQ(table->cellForRowAtIndexPath({ 0, 1 }), rows.made[3].get());
    EXPECT_EQ(native().contentHeight(), 60 + 17 * 50);
}

TEST_F(ATableView, IsEmptyWithoutADataSource)
{
    table->setDataSource(nullptr);
    table->layoutIfNeeded();
    EXPECT_THAT(table->subviews(), IsEmpty());
    EXPECT_EQ(native().contentHeight(), 0);
}

TEST_F(ATableView, ScrollsToAContentOffset)
{
    table->setContentOffset({ 7, 100 });
    EXPECT_EQ(table->contentOffset(), (CGPoint { 0, 100 }));
    table->setContentOffset({ 0, 10000 });
    EXPECT_EQ(table->contentOffset(), (CGPoint { 0, 610 }));
    table->setContentOffset({});
    EXPECT_EQ(table->contentOffset(), CGPoint());
}

TEST_F(ATableView, GivesItsSeparatorColorBack)
{
    EXPECT_FALSE(table->separatorColor());
    table->setSeparatorColor(UIColor::colorWithRedGreenBlueAlpha(1, 0, 0, 1));
    EXPECT_EQ(native().separatorColor(), (toolkit::Color { 1, 0, 0 }));
    EXPECT_TRUE(table->separatorColor());
    table->setSeparatorColor(nullptr);
    EXPECT_FALSE(table->separatorColor());
    EXPECT_EQ(native().separatorColor(), std::nullopt);
}

TEST_F(ATableView, HasTheTitlesOfItsDataSourceInGroupsOnly)
{
    EXPECT_EQ(native().rows().sections()[0].header, "");
    const auto grouped = make<UITableView>(CGRectMake(0, 0, 320, 400), UITableViewStyle::Grouped);
    grouped->setDataSource(&rows);
    const auto& section = desktop::nativeOf<toolkit::Table>(*grouped).measuredRows().sections()[0];
    EXPECT_EQ(section.header, "above");
    EXPECT_EQ(section.footer, "below");
    grouped->setDataSource(nullptr);
}

TEST(ACellOfATableView, LivesAsLongAsTheTableHasIt)
{
    static bool isGone;
    isGone = false;
    struct WatchedCell : UITableViewCell {
        WatchedCell()
            : UITableViewCell(UITableViewCellStyle::Default, "row")
        {
        }
        ~WatchedCell() override { isGone = true; }
    };
    struct OneRow : UITableViewDataSource {
        std::size_t tableViewNumberOfRowsInSection(UITableView&, std::size_t) override { return 1; }
        RetainPtr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView&, const NSIndexPath&) override
        {
            return make<WatchedCell>();
        }
    };
    OneRow row;
    auto table = make<UITableView>(CGRectMake(0, 0, 320, 400), UITableViewStyle::Plain);
    table->setDataSource(&row);
    table->layoutIfNeeded();
    EXPECT_FALSE(isGone);
    EXPECT_NE(dynamic_cast<WatchedCell*>(table->cellForRowAtIndexPath({ 0, 0 })), nullptr);
    table = nullptr;
    EXPECT_TRUE(isGone);
}

} // namespace

} // namespace brimsound::tests
