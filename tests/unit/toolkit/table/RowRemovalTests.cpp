#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/Rows.h"

#include "toolkit/time/Clock.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using toolkit::Cell;
using toolkit::Clock;
using toolkit::makeRect;
using toolkit::Pointer;
using toolkit::RowPath;

class RemovingRows : public testing::Test {
protected:
    Cell* cell(RowPath path) const { return list.table->cellOf(path); }

    void removeRows(const std::set<RowPath>& gone)
    {
        for (const auto& row : gone)
            --rows.counts[row.section];
        list.table->removeRows(gone);
    }

    void scrollOffAndBack() const
    {
        list.scrollTo(600);
        list.scrollTo(0);
    }

    Rows rows { { 2, 30 } };
    const TableInWindow list { rows, { 320, 400 } };
};

TEST_F(RemovingRows, KeepsTheCellsOfAllOthersAndMovesThemUp)
{
    auto* above = cell({ 0, 1 });
    auto* below = cell({ 1, 2 });
    const auto askedFor = rows.cellsAskedFor;
    removeRows({ { 1, 1 } });
    EXPECT_EQ(cell({ 0, 1 }), above);
    EXPECT_EQ(cell({ 1, 1 }), below);
    EXPECT_EQ(below->frame(), makeRect(0, 132, 320, 44));
    EXPECT_EQ(rows.cellsAskedFor, askedFor + 1) << "for the one that came on view at the bottom";
    EXPECT_EQ(list.table->contentHeight(), 31 * 44);
}

TEST_F(RemovingRows, AsksForTheNumberOfRowsAgain)
{
    rows.counts = { 2, 3 };
    list.table->removeRows({ { 1, 0 } });
    EXPECT_EQ(list.table->contentHeight(), 5 * 44);
    EXPECT_EQ(cell({ 1, 3 }), nullptr);
    EXPECT_NE(cell({ 1, 2 }), nullptr);
}

TEST_F(RemovingRows, MovesTheRowsInAThirdOfASecond)
{
    auto& below = *cell({ 1, 2 });
    removeRows({ { 1, 1 } });
    auto& newcomer = *cell({ 1, 7 });
    EXPECT_EQ(below.shownFrame().top(), 176);
    EXPECT_EQ(newcomer.shownFrame().top(), 440) << "it comes from below the bottom";
    Clock::shared().advance(0.15);
    EXPECT_NEAR(below.shownFrame().top(), 154, 3);
    EXPECT_NEAR(newcomer.shownFrame().top(), 418, 3);
    Clock::shared().advance(0.2);
    EXPECT_EQ(below.shownFrame().top(), 132);
    EXPECT_EQ(newcomer.shownFrame().top(), 396);
}

TEST_F(RemovingRows, TellsItsSourceAboutNewCellsAtTheirPlaces)
{
    std::vector<double> tops;
    rows.onWillShow = [&](const Cell& shown, RowPath) { tops.push_back(shown.frame().top()); };
    removeRows({ { 1, 1 } });
    EXPECT_THAT(tops, ElementsAre(396));
}

TEST_F(RemovingRows, SlidesAndFadesTheRowOutAndReusesItsCell)
{
    const auto gone = keep(cell({ 1, 1 }));
    removeRows({ { 1, 1 } });
    EXPECT_EQ(gone->parent(), list.table.get());
    Clock::shared().advance(0.15);
    EXPECT_LT(gone->shownFrame().left(), -100);
    EXPECT_LT(gone->shownAlpha(), 0.7);
    Clock::shared().advance(0.2);
    EXPECT_EQ(gone->parent(), nullptr);
    EXPECT_EQ(gone->alpha(), 1);
    EXPECT_EQ(list.table->takeReusableCell("row"), gone);
}

TEST_F(RemovingRows, RemovesSeveralAtOnce)
{
    auto* survivor = cell({ 1, 3 });
    removeRows({ { 1, 2 }, { 0, 0 }, { 1, 0 } });
    EXPECT_EQ(cell({ 1, 1 }), survivor);
    EXPECT_EQ(survivor->frame().top(), 88);
    EXPECT_EQ(list.table->contentHeight(), 29 * 44);
}

TEST_F(RemovingRows, LeavesTheSelectedRowSelected)
{
    list.tap({ 100, 240 });
    auto* selected = cell({ 1, 3 });
    ASSERT_TRUE(selected->isSelected());
    removeRows({ { 1, 1 } });
    EXPECT_EQ(cell({ 1, 2 }), selected);
    EXPECT_TRUE(selected->isSelected());
    scrollOffAndBack();
    EXPECT_TRUE(cell({ 1, 2 })->isSelected());
    const auto kept = keep(cell({ 1, 2 }));
    removeRows({ { 1, 2 } });
    Clock::shared().advance(1);
    EXPECT_FALSE(kept->isSelected());
    scrollOffAndBack();
    for (const auto* shown : list.cells())
        EXPECT_FALSE(shown->isSelected()) << list.table->rowOf(*shown)->row;
}

TEST_F(RemovingRows, DoesNotSelectTheRowThatTakesThePlaceOfTheSelectedOne)
{
    list.tap({ 100, 398 });
    ASSERT_TRUE(cell({ 1, 7 })->isSelected());
    removeRows({ { 1, 7 } });
    EXPECT_FALSE(cell({ 1, 7 })->isSelected());
}

TEST_F(RemovingRows, ScrollsBackWithAnAnimationWhenTheEndComesUp)
{
    list.scrollTo(10000);
    const double end = list.offset();
    removeRows({ { 1, 29 } });
    list.window->layOutAll();
    EXPECT_EQ(list.offset(), end);
    Clock::shared().advance(0.1);
    EXPECT_LT(list.offset(), end);
    EXPECT_GT(list.offset(), end - 44);
    Clock::shared().advance(2);
    EXPECT_EQ(list.offset(), end - 44);
}

TEST_F(RemovingRows, MayRemoveTheLastOne)
{
    rows.counts = { 0, 1 };
    list.reload();
    removeRows({ { 1, 0 } });
    Clock::shared().advance(1);
    list.window->layOutAll();
    EXPECT_THAT(list.table->children(), IsEmpty());
    EXPECT_EQ(list.table->contentHeight(), 0);
}

TEST_F(RemovingRows, EndsAPressAndASwipeElsewhere)
{
    rows.isDeletable = [](RowPath) { return true; };
    list.table->swipe().open({ 1, 3 });
    Clock::shared().advance(1);
    auto* swiped = cell({ 1, 3 });
    removeRows({ { 1, 0 } });
    EXPECT_EQ(cell({ 1, 2 }), swiped);
    Clock::shared().advance(1);
    EXPECT_EQ(swiped->frame().left(), 0);
    EXPECT_THAT(list.table->children(), SizeIs(10)) << "without the button";

    list.window->touchDown({ { 100, 20 }, Pointer::Mouse });
    auto* pressed = cell({ 0, 0 });
    EXPECT_TRUE(pressed->isHighlighted());
    removeRows({ { 1, 0 } });
    EXPECT_FALSE(pressed->isHighlighted());
    list.window->touchUp({ 100, 20 });
    EXPECT_THAT(rows.selectedRows, IsEmpty());
}

TEST_F(RemovingRows, DoesNothingMoreWhenTheTableIsToBeReloadedAnyway)
{
    list.table->reload();
    removeRows({ { 1, 0 } });
    EXPECT_THAT(list.table->children(), IsEmpty());
    list.window->layOutAll();
    EXPECT_EQ(list.table->contentHeight(), 31 * 44);
}

TEST_F(RemovingRows, MayBeFollowedByAReloadAtOnce)
{
    removeRows({ { 1, 0 } });
    list.table->reload();
    EXPECT_THAT(list.table->children(), IsEmpty());
    list.window->layOutAll();
    Clock::shared().advance(1);
    EXPECT_THAT(list.table->children(), SizeIs(10));
    EXPECT_EQ(cell({ 1, 0 })->alpha(), 1);
}

} // namespace

} // namespace brimsound::tests
