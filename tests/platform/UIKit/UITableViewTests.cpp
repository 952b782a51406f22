#include "tests/platform/UIKit/Geometry.h"
#include "tests/platform/UIKit/Lists.h"

#include "platform/desktop/UIKit/Clock.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::Clock;
using desktop::Pointer;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr CGSize phone { 320, 400 };

TEST(ATable, HasCellsForTheRowsOnViewOnly)
{
    Rows rows { { 100 } };
    const TableInWindow list(rows, phone);
    EXPECT_THAT(list.table->subviews(), SizeIs(10));
    EXPECT_NE(list.table->cellForRowAtIndexPath({ 0, 9 }), nullptr);
    EXPECT_EQ(list.table->cellForRowAtIndexPath({ 0, 10 }), nullptr);
    EXPECT_EQ(list.table->cellForRowAtIndexPath({ 7, 0 }), nullptr);
    list.scrollTo(45);
    EXPECT_EQ(list.table->cellForRowAtIndexPath({ 0, 0 }), nullptr);
    EXPECT_NE(list.table->cellForRowAtIndexPath({ 0, 10 }), nullptr);
    EXPECT_THAT(list.table->subviews(), SizeIs(10));
}

TEST(ATable, PlacesItsRowsOneBelowTheOther)
{
    Rows rows { { 2, 0, 3 } };
    const TableInWindow list(rows, phone);
    EXPECT_EQ(list.table->cellForRowAtIndexPath({ 0, 0 })->frame(), CGRectMake(0, 0, 320, 44));
    EXPECT_EQ(list.table->cellForRowAtIndexPath({ 2, 0 })->frame(), CGRectMake(0, 88, 320, 44));
    EXPECT_EQ(list.peer().contentHeight(), 5 * 44);
}

TEST(ATable, AsksForTheHeightOfEveryRow)
{
    struct TallSecondRow : Rows {
        using Rows::Rows;
        CGFloat tableViewHeightForRowAtIndexPath(UITableView&, const NSIndexPath& row) override
        {
            return row.row == 1 ? 484 : 44;
        }
    };
    TallSecondRow rows { { 3 } };
    const TableInWindow list(rows, phone);
    EXPECT_EQ(list.table->cellForRowAtIndexPath({ 0, 1 })->frame(), CGRectMake(0, 44, 320, 484));
    EXPECT_EQ(list.peer().contentHeight(), 572);
}

TEST(ATable, MakesFewCellsForManyRows)
{
    Rows rows { { 10000 } };
    const TableInWindow list(rows, phone);
    for (int offset = 0; offset < 10000 * 44; offset += 150)
        list.scrollTo(offset);
    for (const double offset : { 300000.0, 0.0, 439000.0, 123.0 })
        list.scrollTo(offset);
    EXPECT_GT(rows.cellsAskedFor, 9000u);
    EXPECT_LE(rows.sizesAtBirth.size(), 11u);
}

TEST(ATable, ReusesCellsOfTheSameIdentifierOnly)
{
    Rows rows { { 100 } };
    rows.identifier = [](const NSIndexPath& row) { return row.row < 50 ? "upper" : "lower"; };
    const TableInWindow list(rows, phone);
    list.scrollTo(80 * 44);
    EXPECT_THAT(rows.sizesAtBirth, SizeIs(20));
    EXPECT_EQ(list.table->cellForRowAtIndexPath({ 0, 80 })->reuseIdentifier(), "lower");
    list.scrollTo(0);
    EXPECT_THAT(rows.sizesAtBirth, SizeIs(20));
    EXPECT_EQ(list.table->cellForRowAtIndexPath({ 0, 0 })->reuseIdentifier(), "upper");
}

TEST(ATable, HandsOutACellOnceAndOnlyWhenItIsOffView)
{
    Rows rows { { 100 } };
    const TableInWindow list(rows, phone);
    EXPECT_FALSE(list.table->dequeueReusableCellWithIdentifier("row"));
    rows.counts = { 1 };
    list.table->reloadData();
    list.window->layOut();
    std::vector<RetainPtr<UITableViewCell>> spare;
    while (auto cell = list.table->dequeueReusableCellWithIdentifier("row"))
        spare.push_back(cell);
    EXPECT_THAT(spare, SizeIs(9));
    EXPECT_THAT(spare, Each(testing::Truly([](const auto& cell) { return !cell->superview(); })));
    EXPECT_FALSE(list.table->dequeueReusableCellWithIdentifier("other"));
}

TEST(ATable, AsksAnewWhenItIsReloaded)
{
    Rows rows { { 3 } };
    const TableInWindow list(rows, phone);
    rows.counts = { 2, 4 };
    list.table->reloadData();
    EXPECT_EQ(list.table->cellForRowAtIndexPath({ 0, 0 }), nullptr);
    EXPECT_THAT(list.table->subviews(), IsEmpty());
    list.window->layOut();
    EXPECT_EQ(rows.cellsAskedFor, 9u);
    EXPECT_THAT(rows.sizesAtBirth, SizeIs(6));
    EXPECT_NE(list.table->cellForRowAtIndexPath({ 1, 3 }), nullptr);
}

TEST(ATable, IsNotLeftScrolledBeyondItsEndWhenItIsReloadedWithFewerRows)
{
    Rows rows { { 100 } };
    const TableInWindow list(rows, phone);
    list.scrollTo(4000);
    rows.counts = { 20 };
    list.table->reloadData();
    list.window->layOut();
    EXPECT_EQ(list.offset(), 20 * 44 - 400);
    EXPECT_NE(list.table->cellForRowAtIndexPath({ 0, 19 }), nullptr);
}

TEST(ATable, IsNotLeftScrolledBeyondItsEndWhenItIsResized)
{
    Rows rows { { 20 } };
    const TableInWindow list(rows, phone);
    list.scrollTo(10000);
    EXPECT_EQ(list.offset(), 480);
    list.resize({ 320, 800 });
    EXPECT_EQ(list.offset(), 80);
    EXPECT_EQ(list.table->cellForRowAtIndexPath({ 0, 19 })->frame().origin.y, 19 * 44);
    list.resize({ 320, 1000 });
    EXPECT_EQ(list.offset(), 0);
    EXPECT_NE(list.table->cellForRowAtIndexPath({ 0, 0 }), nullptr);
    list.resize({ 320, 300 });
    EXPECT_EQ(list.offset(), 0);
    EXPECT_EQ(list.table->cellForRowAtIndexPath({ 0, 8 }), nullptr);
}

TEST(ATable, WidensItsRowsWithItself)
{
    Rows rows { { 3 } };
    const TableInWindow list(rows, phone);
    list.resize({ 450, 400 });
    EXPECT_EQ(list.table->cellForRowAtIndexPath({ 0, 2 })->frame(), CGRectMake(0, 88, 450, 44));
}

TEST(ATable, MakesItsCellsAsWideAsTheRow)
{
    Rows rows { { 3 } };
    const TableInWindow list(rows, { 410, 400 });
    EXPECT_THAT(rows.sizesAtBirth, Each(CGSize { 410, 44 }));
    Rows wideRows { { 3 } };
    const TableInWindow wideList(wideRows, { 1000, 400 }, UITableViewStyle::Grouped);
    EXPECT_THAT(wideRows.sizesAtBirth, Each(CGSize { 640, 44 }));
}

TEST(ATable, WithoutADataSourceIsEmpty)
{
    Rows rows { { 3 } };
    const TableInWindow list(rows, phone);
    list.table->setDataSource(nullptr);
    list.window->layOut();
    EXPECT_THAT(list.table->subviews(), IsEmpty());
    EXPECT_EQ(list.peer().contentHeight(), 0);
}

TEST(ATable, DoesNotRetainWhoFillsIt)
{
    const auto window = make<desktop::Window>(phone);
    const auto table = make<UITableView>(CGRect { {}, phone }, UITableViewStyle::Plain);
    window->addSubview(*table);
    {
        Rows rows { { 3 } };
        table->setDataSource(&rows);
        window->layOut();
        table->setDataSource(nullptr);
    }
    window->layOut();
    EXPECT_THAT(table->subviews(), IsEmpty());
}

class AGroupedTable : public testing::Test {
protected:
    /// The parts of a section in a table of that width.
    desktop::TableSection section(double width, std::size_t index = 0)
    {
        const TableInWindow list(rows, { width, 400 }, UITableViewStyle::Grouped);
        return list.peer().sections[index];
    }

    Rows rows { { 2, 1 } };
};

TEST_F(AGroupedTable, LeavesRoomForHeadersAndFootersThatItHas)
{
    rows.headers = { "Equalizer" };
    rows.footers = { "", "Both take effect later." };
    const auto first = section(320);
    EXPECT_GT(first.headerRect.size.height, 0);
    EXPECT_EQ(first.footerRect, CGRect());
    EXPECT_GT(first.rowsRect.origin.y, first.headerRect.origin.y + first.headerRect.size.height);
    EXPECT_EQ(first.rowsRect.size.height, 88);

    const auto second = section(320, 1);
    EXPECT_EQ(second.headerRect, CGRect());
    EXPECT_GT(second.footerRect.size.height, 0);
    EXPECT_GT(second.rowsRect.origin.y, first.rowsRect.origin.y + 88);
    EXPECT_GT(second.footerRect.origin.y, second.rowsRect.origin.y + 44);

    const TableInWindow list(rows, phone, UITableViewStyle::Grouped);
    EXPECT_GT(list.peer().contentHeight(), second.footerRect.origin.y + second.footerRect.size.height);
}

TEST_F(AGroupedTable, GivesALongFooterMoreLinesWhenItIsNarrow)
{
    rows.footers = { "A sentence that is so long that it takes a line or two in a narrow table, and then "
                     "goes on for as long again, so that it takes three or four." };
    EXPECT_GT(section(200).footerRect.size.height, section(480).footerRect.size.height);
    EXPECT_LT(section(200).footerRect.size.width, 200);
}

TEST_F(AGroupedTable, MeasuresItsTextAnewWhenItBecomesWider)
{
    rows.footers = { "A sentence that is so long that it takes a line or two in a narrow table, and then "
                     "goes on for as long again, so that it takes three or four." };
    const TableInWindow list(rows, { 200, 400 }, UITableViewStyle::Grouped);
    const double narrow = list.peer().contentHeight();
    list.resize({ 480, 400 });
    EXPECT_LT(list.peer().contentHeight(), narrow);
}

TEST_F(AGroupedTable, SpansANarrowWindow)
{
    EXPECT_EQ(section(320).rowsRect.origin.x, 0);
    EXPECT_EQ(section(320).rowsRect.size.width, 320);
    EXPECT_EQ(section(500).rowsRect.size.width, 500);
}

TEST_F(AGroupedTable, IsACentredCardOfAReadableWidthInAWideWindow)
{
    for (const double width : { 501.0, 600.0, 700.0, 1000.0, 2000.0 }) {
        const auto rect = section(width).rowsRect;
        EXPECT_LE(rect.size.width, 640) << width;
        EXPECT_LT(rect.size.width, width) << width;
        EXPECT_DOUBLE_EQ(rect.origin.x, (width - rect.size.width) / 2) << width;
    }
    EXPECT_EQ(section(1000).rowsRect.size.width, 640);
}

class ATapOnARow : public testing::Test {
protected:
    bool isPressed(std::size_t row) const
    {
        return list.table->cellForRowAtIndexPath({ 0, row })->isHighlighted();
    }

    Rows rows { { 100 } };
    const TableInWindow list { rows, phone };
};

TEST_F(ATapOnARow, SelectsIt)
{
    list.tap({ 100, 100 });
    list.tap({ 100, 10 }, Pointer::Mouse);
    EXPECT_THAT(rows.selected, ElementsAre(NSIndexPath { 0, 2 }, NSIndexPath { 0, 0 }));
}

TEST_F(ATapOnARow, SelectsWhatIsThereAfterScrolling)
{
    list.scrollTo(440);
    list.tap({ 100, 100 });
    EXPECT_THAT(rows.selected, ElementsAre(NSIndexPath { 0, 12 }));
}

TEST_F(ATapOnARow, ThatMovesOffSelectsNothing)
{
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    EXPECT_TRUE(isPressed(2));
    list.window->touchMove({ 100, 200 });
    EXPECT_FALSE(isPressed(2));
    list.window->touchUp({ 100, 200 });
    EXPECT_THAT(rows.selected, IsEmpty());
}

TEST_F(ATapOnARow, ThatIsLiftedElsewhereSelectsNothing)
{
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    list.window->touchUp({ 100, 200 });
    EXPECT_THAT(rows.selected, IsEmpty());
}

TEST_F(ATapOnARow, ThatMovesOffAndBackSelectsIt)
{
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    list.window->touchMove({ 100, 200 });
    list.window->touchMove({ 100, 101 });
    list.window->touchUp({ 100, 101 });
    EXPECT_THAT(rows.selected, ElementsAre(NSIndexPath { 0, 2 }));
}

TEST_F(ATapOnARow, ThatIsTakenAwaySelectsNothing)
{
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    list.window->touchCancel();
    list.window->touchUp({ 100, 100 });
    EXPECT_FALSE(isPressed(2));
    EXPECT_THAT(rows.selected, IsEmpty());
}

TEST_F(ATapOnARow, ThatIsNotToBeSelectedSelectsNothing)
{
    list.table->cellForRowAtIndexPath({ 0, 2 })->setSelectionStyle(UITableViewCellSelectionStyle::None);
    list.tap({ 100, 100 });
    EXPECT_FALSE(isPressed(2));
    EXPECT_THAT(rows.selected, IsEmpty());
    list.tap({ 100, 60 });
    EXPECT_THAT(rows.selected, ElementsAre(NSIndexPath { 0, 1 }));
}

TEST_F(ATapOnARow, ThatBeganOnOneNotToBeSelectedSelectsNoOtherEither)
{
    list.tap({ 100, 60 });
    rows.selected.clear();
    list.table->cellForRowAtIndexPath({ 0, 2 })->setSelectionStyle(UITableViewCellSelectionStyle::None);
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    list.window->touchMove({ 100, 60 });
    EXPECT_FALSE(isPressed(2));
    list.window->touchUp({ 100, 60 });
    EXPECT_THAT(rows.selected, IsEmpty());
}

TEST_F(ATapOnARow, BelowTheLastSelectsNothing)
{
    rows.counts = { 2 };
    list.table->reloadData();
    list.tap({ 100, 200 });
    EXPECT_THAT(rows.selected, IsEmpty());
}

TEST_F(ATapOnARow, DuringWhichTheTableIsReloadedSelectsNothing)
{
    list.window->touchDown({ { 100, 100 }, Pointer::Mouse });
    rows.counts = { 1 };
    list.table->reloadData();
    list.window->layOut();
    list.window->touchMove({ 100, 101 });
    list.window->touchUp({ 100, 101 });
    EXPECT_THAT(rows.selected, IsEmpty());
}

TEST_F(ATapOnARow, MayReloadTheTable)
{
    struct Reloading : Rows {
        using Rows::Rows;
        void tableViewDidSelectRowAtIndexPath(UITableView& table, const NSIndexPath& row) override
        {
            counts = { 1 };
            table.reloadData();
            Rows::tableViewDidSelectRowAtIndexPath(table, row);
        }
    };
    Reloading reloading { { 100 } };
    const TableInWindow reloaded(reloading, phone);
    reloaded.tap({ 100, 100 });
    reloaded.window->layOut();
    Clock::shared().advance(1);
    EXPECT_THAT(reloading.selected, ElementsAre(NSIndexPath { 0, 2 }));
    EXPECT_THAT(reloaded.table->subviews(), SizeIs(1));
}

TEST(ATable, TellsItsDelegateOfARowJustBeforeItAppears)
{
    Rows rows { { 3 } };
    std::vector<CGRect> frames;
    rows.onWillDisplay = [&](UITableViewCell& cell, const NSIndexPath&) {
        EXPECT_EQ(cell.superview(), nullptr);
        frames.push_back(cell.frame());
    };
    const TableInWindow list(rows, phone);
    EXPECT_THAT(frames,
        ElementsAre(CGRectMake(0, 0, 320, 44), CGRectMake(0, 44, 320, 44), CGRectMake(0, 88, 320, 44)));
    list.scrollTo(0);
    EXPECT_THAT(frames, SizeIs(3));
}

TEST(ATable, MayBeReloadedWhileItAsksForItsRows)
{
    Rows rows { { 100 } };
    const TableInWindow list(rows, phone);
    rows.identifier = [&](const NSIndexPath& row) {
        if (row.row == 3 && rows.counts[0] == 100) {
            rows.counts = { 5 };
            list.table->reloadData();
        }
        return "row";
    };
    list.table->reloadData();
    list.window->layOut();
    list.window->layOut();
    EXPECT_THAT(list.table->subviews(), SizeIs(5));
    EXPECT_EQ(list.peer().contentHeight(), 5 * 44);
}

TEST(ATable, MayLoseRowsWhileTheyAppear)
{
    Rows rows { { 100 } };
    const TableInWindow list(rows, phone);
    rows.onWillDisplay = [&](UITableViewCell&, const NSIndexPath& row) {
        if (row.row != 3 || rows.counts[0] < 100)
            return;
        rows.counts = { 2 };
        list.table->deleteRowsAtIndexPathsWithRowAnimation({ { 0, 0 } }, UITableViewRowAnimation::Automatic);
    };
    list.table->reloadData();
    list.window->layOut();
    Clock::shared().advance(1);
    list.window->layOut();
    EXPECT_THAT(list.table->subviews(), SizeIs(2));
}

TEST(ATable, LeavesARowEmptyForWhichThereIsNoCell)
{
    struct Gap : Rows {
        using Rows::Rows;
        RetainPtr<UITableViewCell> tableViewCellForRowAtIndexPath(
            UITableView& table, const NSIndexPath& row) override
        {
            return row.row == 1 ? nullptr : Rows::tableViewCellForRowAtIndexPath(table, row);
        }
    };
    Gap rows { { 3 } };
    const TableInWindow list(rows, phone);
    EXPECT_THAT(list.table->subviews(), SizeIs(2));
    EXPECT_EQ(list.table->cellForRowAtIndexPath({ 0, 2 })->frame().origin.y, 88);
}

TEST(ATable, AsksForHeightsOnlyWhenItIsReloaded)
{
    struct Measured : Rows {
        using Rows::Rows;
        CGFloat tableViewHeightForRowAtIndexPath(UITableView&, const NSIndexPath&) override
        {
            ++heightsAskedFor;
            return 44;
        }
        std::size_t heightsAskedFor = 0;
    };
    Measured rows { { 10000 } };
    const TableInWindow list(rows, phone);
    const auto before = rows.heightsAskedFor;
    list.scrollTo(4000);
    list.scrollTo(400000);
    list.tap({ 100, 100 });
    EXPECT_EQ(rows.heightsAskedFor, before);
    list.table->reloadData();
    list.window->layOut();
    EXPECT_EQ(rows.heightsAskedFor, before + 10000);
}

TEST(ATable, ScrollsToAContentOffset)
{
    Rows rows { { 20 } };
    const TableInWindow list(rows, phone);
    list.table->setContentOffset({ 7, 100 });
    EXPECT_EQ(list.table->contentOffset(), (CGPoint { 0, 100 }));
    list.table->setContentOffset({ 0, 10000 });
    EXPECT_EQ(list.table->contentOffset(), (CGPoint { 0, 480 }));
    list.table->setContentOffset({});
    EXPECT_EQ(list.table->contentOffset(), CGPoint());
}

} // namespace

} // namespace brimsound::tests
