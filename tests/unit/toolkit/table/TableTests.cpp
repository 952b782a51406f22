#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/Rows.h"

#include "toolkit/time/Clock.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using toolkit::Cell;
using toolkit::Clock;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Rect;
using toolkit::Ref;
using toolkit::Role;
using toolkit::RowPath;
using toolkit::Size;
using toolkit::Table;
using toolkit::Window;

constexpr Size phone { 320, 400 };

TEST(ATable, HasCellsForTheRowsOnViewOnly)
{
    Rows rows { { 100 } };
    const TableInWindow list(rows, phone);
    EXPECT_THAT(list.table->children(), SizeIs(10));
    EXPECT_NE(list.cell(9), nullptr);
    EXPECT_EQ(list.cell(10), nullptr);
    EXPECT_EQ(list.table->cellOf({ 7, 0 }), nullptr);
    list.scrollTo(45);
    EXPECT_EQ(list.cell(0), nullptr);
    EXPECT_NE(list.cell(10), nullptr);
    EXPECT_THAT(list.table->children(), SizeIs(10));
}

TEST(ATable, PlacesItsRowsOneBelowTheOther)
{
    Rows rows { { 2, 0, 3 } };
    const TableInWindow list(rows, phone);
    EXPECT_EQ(list.table->cellOf({ 0, 0 })->frame(), makeRect(0, 0, 320, 44));
    EXPECT_EQ(list.table->cellOf({ 2, 0 })->frame(), makeRect(0, 88, 320, 44));
    EXPECT_EQ(list.table->contentHeight(), 5 * 44);
}

TEST(ATable, AsksForTheHeightOfEveryRow)
{
    struct TallSecondRow : Rows {
        using Rows::Rows;
        double rowHeight(RowPath path) override { return path.row == 1 ? 484 : 44; }
    };
    TallSecondRow rows { { 3 } };
    const TableInWindow list(rows, phone);
    EXPECT_EQ(list.cell(1)->frame(), makeRect(0, 44, 320, 484));
    EXPECT_EQ(list.table->contentHeight(), 572);
}

TEST(ATable, AsksForHeightsOnlyWhenItIsReloaded)
{
    struct CountingRows : Rows {
        using Rows::Rows;
        double rowHeight(RowPath) override
        {
            ++heightsAskedFor;
            return 44;
        }
        std::size_t heightsAskedFor = 0;
    };
    CountingRows rows { { 10000 } };
    const TableInWindow list(rows, phone);
    const auto before = rows.heightsAskedFor;
    list.scrollTo(4000);
    list.scrollTo(400000);
    list.tap({ 100, 100 });
    EXPECT_EQ(rows.heightsAskedFor, before);
    list.reload();
    EXPECT_EQ(rows.heightsAskedFor, before + 10000);
}

TEST(ATable, MeasuresItsRowsBeforeItIsLaidOutWhenItIsAsked)
{
    Rows rows { { 3 } };
    const TableInWindow list(rows, phone);
    rows.counts = { 3, 2 };
    list.table->reload();
    EXPECT_FALSE(list.table->rows().hasRow({ 1, 1 }));
    ASSERT_TRUE(list.table->measuredRows().hasRow({ 1, 1 }));
    EXPECT_EQ(list.table->measuredRows().rowRect({ 1, 1 }), makeRect(0, 176, 320, 44));
    EXPECT_FALSE(list.table->measuredRows().hasRow({ 1, 2 }));
    EXPECT_FALSE(list.table->measuredRows().hasRow({ 2, 0 }));
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
    EXPECT_LE(rows.initialSizes.size(), 11u);
}

TEST(ATable, ReusesCellsOfTheSameIdentifierOnly)
{
    Rows rows { { 100 } };
    rows.identifier = [](RowPath path) { return path.row < 50 ? "upper" : "lower"; };
    const TableInWindow list(rows, phone);
    list.scrollTo(80 * 44);
    EXPECT_THAT(rows.initialSizes, SizeIs(20));
    EXPECT_EQ(list.cell(80)->reuseIdentifier(), "lower");
    list.scrollTo(0);
    EXPECT_THAT(rows.initialSizes, SizeIs(20));
    EXPECT_EQ(list.cell(0)->reuseIdentifier(), "upper");
}

TEST(ATable, GivesACellForReuseOnceAndOnlyWhenItIsOffView)
{
    Rows rows { { 100 } };
    const TableInWindow list(rows, phone);
    EXPECT_FALSE(list.table->takeReusableCell("row"));
    rows.counts = { 1 };
    list.reload();
    std::vector<Ref<Cell>> spare;
    while (auto cell = list.table->takeReusableCell("row"))
        spare.push_back(cell);
    EXPECT_THAT(spare, SizeIs(9));
    EXPECT_THAT(spare, Each(testing::Truly([](const auto& cell) { return !cell->parent(); })));
    EXPECT_FALSE(list.table->takeReusableCell("other"));
}

TEST(ATable, KnowsTheRowsOfTheCellsOnView)
{
    Rows rows { { 100 } };
    const TableInWindow list(rows, phone);
    const auto cell = keep(list.cell(3));
    EXPECT_EQ(list.table->rowOf(*cell), (RowPath { 0, 3 }));
    list.table->reload();
    EXPECT_EQ(list.table->rowOf(*cell), std::nullopt);
}

TEST(ATable, AsksForItsRowsAgainWhenItIsReloaded)
{
    Rows rows { { 3 } };
    const TableInWindow list(rows, phone);
    rows.counts = { 2, 4 };
    list.table->reload();
    EXPECT_EQ(list.cell(0), nullptr);
    EXPECT_THAT(list.table->children(), IsEmpty());
    list.window->layOutAll();
    EXPECT_EQ(rows.cellsAskedFor, 9u);
    EXPECT_THAT(rows.initialSizes, SizeIs(6));
    EXPECT_NE(list.table->cellOf({ 1, 3 }), nullptr);
}

TEST(ATable, HasNotMeasuredItsRowsFromAReloadToTheNextLayout)
{
    Rows rows { { 3 } };
    const TableInWindow list(rows, phone);
    EXPECT_TRUE(list.table->isMeasured());
    list.table->reload();
    EXPECT_FALSE(list.table->isMeasured());
    list.window->layOutAll();
    EXPECT_TRUE(list.table->isMeasured());
}

TEST(ATable, IsNotLeftScrolledBeyondItsEndWhenItIsReloadedWithFewerRows)
{
    Rows rows { { 100 } };
    const TableInWindow list(rows, phone);
    list.scrollTo(4000);
    rows.counts = { 20 };
    list.reload();
    EXPECT_EQ(list.offset(), 20 * 44 - 400);
    EXPECT_NE(list.cell(19), nullptr);
}

TEST(ATable, IsNotLeftScrolledBeyondItsEndWhenItIsResized)
{
    Rows rows { { 20 } };
    const TableInWindow list(rows, phone);
    list.scrollTo(10000);
    EXPECT_EQ(list.offset(), 480);
    list.resize({ 320, 800 });
    EXPECT_EQ(list.offset(), 80);
    EXPECT_EQ(list.cell(19)->frame().top(), 19 * 44);
    list.resize({ 320, 1000 });
    EXPECT_EQ(list.offset(), 0);
    EXPECT_NE(list.cell(0), nullptr);
    list.resize({ 320, 300 });
    EXPECT_EQ(list.offset(), 0);
    EXPECT_EQ(list.cell(8), nullptr);
}

TEST(ATable, WidensItsRowsWithItself)
{
    Rows rows { { 3 } };
    const TableInWindow list(rows, phone);
    list.resize({ 450, 400 });
    EXPECT_EQ(list.cell(2)->frame(), makeRect(0, 88, 450, 44));
}

TEST(ATable, MakesItsCellsAsWideAsTheRow)
{
    Rows rows { { 3 } };
    const TableInWindow list(rows, { 410, 400 });
    EXPECT_THAT(rows.initialSizes, Each(Size { 410, 44 }));
    Rows wideRows { { 3 } };
    const TableInWindow wideList(wideRows, { 1000, 400 }, Table::Style::Grouped);
    EXPECT_THAT(wideRows.initialSizes, Each(Size { 640, 44 }));
}

TEST(ATable, WithoutASourceIsEmpty)
{
    Rows rows { { 3 } };
    const TableInWindow list(rows, phone);
    list.table->setSource(nullptr);
    list.window->layOutAll();
    EXPECT_THAT(list.table->children(), IsEmpty());
    EXPECT_EQ(list.table->contentHeight(), 0);
    EXPECT_FALSE(list.table->canDelete({ 0, 0 }));
}

TEST(ATable, MayOutliveItsSource)
{
    const auto window = make<Window>(phone);
    const auto table = make<Table>(Rect { {}, phone }, Table::Style::List);
    window->add(*table);
    {
        Rows rows { { 3 } };
        rows.table = table.get();
        table->setSource(&rows);
        window->layOutAll();
        table->setSource(nullptr);
    }
    window->layOutAll();
    EXPECT_THAT(table->children(), IsEmpty());
}

TEST(ATable, TellsItsSourceOfARowJustBeforeItAppears)
{
    Rows rows { { 3 } };
    std::vector<Rect> frames;
    rows.onWillShow = [&](Cell& cell, RowPath) {
        EXPECT_EQ(cell.parent(), nullptr);
        frames.push_back(cell.frame());
    };
    const TableInWindow list(rows, phone);
    EXPECT_THAT(
        frames, ElementsAre(makeRect(0, 0, 320, 44), makeRect(0, 44, 320, 44), makeRect(0, 88, 320, 44)));
    list.scrollTo(0);
    EXPECT_THAT(frames, SizeIs(3));
}

TEST(ATable, MayBeReloadedWhileItAsksForItsRows)
{
    Rows rows { { 100 } };
    const TableInWindow list(rows, phone);
    rows.identifier = [&](RowPath path) {
        if (path.row == 3 && rows.counts[0] == 100) {
            rows.counts = { 5 };
            list.table->reload();
        }
        return "row";
    };
    list.reload();
    list.window->layOutAll();
    EXPECT_THAT(list.table->children(), SizeIs(5));
    EXPECT_EQ(list.table->contentHeight(), 5 * 44);
}

TEST(ATable, MayLoseRowsWhileTheyAppear)
{
    Rows rows { { 100 } };
    const TableInWindow list(rows, phone);
    rows.onWillShow = [&](Cell&, RowPath path) {
        if (path.row != 3 || rows.counts[0] < 100)
            return;
        rows.counts = { 2 };
        list.table->removeRows({ { 0, 0 } });
    };
    list.reload();
    Clock::shared().advance(1);
    list.window->layOutAll();
    EXPECT_THAT(list.table->children(), SizeIs(2));
}

TEST(ATable, LeavesARowEmptyForWhichThereIsNoCell)
{
    struct Gap : Rows {
        using Rows::Rows;
        Ref<Cell> cell(RowPath path) override { return path.row == 1 ? nullptr : Rows::cell(path); }
    };
    Gap rows { { 3 } };
    const TableInWindow list(rows, phone);
    EXPECT_THAT(list.table->children(), SizeIs(2));
    EXPECT_EQ(list.cell(2)->frame().top(), 88);
}

TEST(ATable, ScrollsAsLittleAsItTakesToShowARow)
{
    Rows rows { { 30 } };
    const TableInWindow list(rows, phone);
    list.table->scrollToRow({ 0, 25 });
    EXPECT_EQ(list.offset(), 26 * 44 - 400);
    EXPECT_NE(list.cell(25), nullptr);
    list.table->scrollToRow({ 0, 99 });
    list.table->scrollToRow({ 3, 0 });
    EXPECT_EQ(list.offset(), 26 * 44 - 400);
}

TEST(ATable, HasHairlinesOfTheThemeBetweenItsRowsOrOfTheColorThatItIsGiven)
{
    Rows rows { { 2 } };
    const TableInWindow list(rows, phone);
    const auto themes = list.cell(1)->appearance().separator;
    EXPECT_GT(themes.alpha, 0);
    EXPECT_EQ(list.table->separatorColor(), std::nullopt);

    constexpr toolkit::Color red { 1, 0, 0 };
    list.table->setSeparatorColor(red);
    list.window->layOutAll();
    EXPECT_EQ(list.table->separatorColor(), red);
    EXPECT_EQ(list.cell(1)->appearance().separator, red);

    list.table->setSeparatorColor(std::nullopt);
    list.window->layOutAll();
    EXPECT_EQ(list.cell(1)->appearance().separator, themes);
}

class AGroupedTable : public testing::Test {
protected:
    /// The layout of a section in a table of this width.
    toolkit::TableSection section(double width, std::size_t index = 0)
    {
        const TableInWindow list(rows, { width, 400 }, Table::Style::Grouped);
        return list.table->rows().sections()[index];
    }

    Rows rows { { 2, 1 } };
};

TEST_F(AGroupedTable, LeavesRoomForHeadersAndFootersThatItHas)
{
    rows.headers = { "Equalizer" };
    rows.footers = { "", "Both take effect later." };
    const auto first = section(320);
    EXPECT_GT(first.headerRect.size.height, 0);
    EXPECT_EQ(first.footerRect, Rect());
    EXPECT_GT(first.rowsRect.top(), first.headerRect.bottom());
    EXPECT_EQ(first.rowsRect.size.height, 88);

    const auto second = section(320, 1);
    EXPECT_EQ(second.headerRect, Rect());
    EXPECT_GT(second.footerRect.size.height, 0);
    EXPECT_GT(second.rowsRect.top(), first.rowsRect.top() + 88);
    EXPECT_GT(second.footerRect.top(), second.rowsRect.top() + 44);

    const TableInWindow list(rows, phone, Table::Style::Grouped);
    EXPECT_GT(list.table->contentHeight(), second.footerRect.bottom());
}

TEST_F(AGroupedTable, GivesALongFooterMoreLinesWhenItIsNarrow)
{
    rows.footers = { "A sentence that is so long that it takes a line or two in a narrow table, and then "
                     "goes on for as long again, so that it takes three or four." };
    EXPECT_GT(section(200).footerRect.size.height, section(480).footerRect.size.height);
    EXPECT_LT(section(200).footerRect.size.width, 200);
}

TEST_F(AGroupedTable, MeasuresItsTextsAgainWhenItBecomesWider)
{
    rows.footers = { "A sentence that is so long that it takes a line or two in a narrow table, and then "
                     "goes on for as long again, so that it takes three or four." };
    const TableInWindow list(rows, { 200, 400 }, Table::Style::Grouped);
    const double narrow = list.table->contentHeight();
    list.resize({ 480, 400 });
    EXPECT_LT(list.table->contentHeight(), narrow);
}

TEST_F(AGroupedTable, SpansANarrowWindow)
{
    EXPECT_EQ(section(320).rowsRect.left(), 0);
    EXPECT_EQ(section(320).rowsRect.size.width, 320);
    EXPECT_EQ(section(500).rowsRect.size.width, 500);
}

TEST_F(AGroupedTable, IsACenteredCardOfAReadableWidthInAWideWindow)
{
    for (const double width : { 501.0, 600.0, 700.0, 1000.0, 2000.0 }) {
        const auto rect = section(width).rowsRect;
        EXPECT_LE(rect.size.width, 640) << width;
        EXPECT_LT(rect.size.width, width) << width;
        EXPECT_DOUBLE_EQ(rect.left(), (width - rect.size.width) / 2) << width;
    }
    EXPECT_EQ(section(1000).rowsRect.size.width, 640);
}

TEST_F(AGroupedTable, HasNoHairlineBelowTheLastRowOfAGroup)
{
    const TableInWindow list(rows, phone, Table::Style::Grouped);
    EXPECT_GT(list.cell(0)->appearance().separator.alpha, 0);
    EXPECT_EQ(list.cell(1)->appearance().separator.alpha, 0);
}

TEST_F(AGroupedTable, TellsItsCellsWhereTheirGroupIs)
{
    const TableInWindow narrow(rows, phone, Table::Style::Grouped);
    EXPECT_EQ(narrow.cell(1)->appearance().group, makeRect(0, -44, 320, 88));
    EXPECT_EQ(narrow.cell(1)->appearance().groupRadius, 0);
    const TableInWindow wide(rows, { 1000, 400 }, Table::Style::Grouped);
    EXPECT_EQ(wide.cell(1)->appearance().group, makeRect(0, -44, 640, 88));
    EXPECT_GT(wide.cell(1)->appearance().groupRadius, 0);
}

TEST_F(AGroupedTable, TellsAssistiveTechnologyItsHeadersAndFooters)
{
    rows.headers = { "Equalizer", "Sound" };
    rows.footers = { "", "Takes effect later." };
    const TableInWindow list(rows, phone, Table::Style::Grouped);
    list.table->setLabel("Settings");
    const auto accessible = list.table->accessible();
    EXPECT_EQ(accessible.role, Role::Table);
    EXPECT_EQ(accessible.name, "Settings");
    EXPECT_EQ(accessible.description, "Equalizer\nSound\nTakes effect later.");
}

TEST(AList, IsOneToAssistiveTechnologyAndTakesTheKeyboardWhileItHasRows)
{
    Rows rows { { 2 } };
    const TableInWindow list(rows, phone);
    EXPECT_EQ(list.table->role(), Role::List);
    EXPECT_TRUE(list.table->isFocusable());
    rows.counts = { 0 };
    list.reload();
    EXPECT_FALSE(list.table->isFocusable());
    const TableInWindow grouped(rows, phone, Table::Style::Grouped);
    EXPECT_FALSE(grouped.table->isFocusable());
}

} // namespace

} // namespace brimsound::tests
