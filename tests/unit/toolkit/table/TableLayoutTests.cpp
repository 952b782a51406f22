#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/Rows.h"

#include <gmock/gmock.h>

#include <limits>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Direction;
using toolkit::makeRect;
using toolkit::RowPath;
using toolkit::TableLayout;

/// Two rows in the first section, none in the second, three in the third, in a grouped table of 320 points.
class ALayoutOfGroups : public testing::Test {
protected:
    double top(RowPath path) const { return layout.rowRect(path).top(); }

    Rows rows { { 2, 0, 3 } };
    const TableLayout layout { rows, true, 320 };
};

TEST(ALayoutWithoutRows, HasNoHeightAndNothingInIt)
{
    const TableLayout layout;
    EXPECT_EQ(layout.height(), 0);
    EXPECT_FALSE(layout.hasRow({}));
    EXPECT_EQ(layout.rowAt({ 0, 0 }), std::nullopt);
    EXPECT_THAT(layout.rowsIn(makeRect(0, 0, 1000, 1000)), IsEmpty());
    EXPECT_EQ(layout.rowBeside({}, Direction::Next), std::nullopt);
    EXPECT_EQ(layout.rowBeside({}, Direction::Previous), std::nullopt);
}

TEST_F(ALayoutOfGroups, FindsTheRowAtAPointFromItsTopLeftEdgeToTheNextRow)
{
    EXPECT_EQ(layout.rowAt({ 0, top({ 0, 0 }) }), (RowPath { 0, 0 }));
    EXPECT_EQ(layout.rowAt({ 319, top({ 0, 0 }) + 43.9 }), (RowPath { 0, 0 }));
    EXPECT_EQ(layout.rowAt({ 319, top({ 0, 0 }) + 44 }), (RowPath { 0, 1 }));
    EXPECT_EQ(layout.rowAt({ 100, top({ 2, 2 }) + 10 }), (RowPath { 2, 2 }));
}

TEST_F(ALayoutOfGroups, FindsNoRowBetweenTheGroupsOrBesideThem)
{
    EXPECT_EQ(layout.rowAt({ 100, top({ 0, 0 }) - 0.1 }), std::nullopt);
    EXPECT_EQ(layout.rowAt({ 100, top({ 0, 1 }) + 44 }), std::nullopt);
    EXPECT_EQ(layout.rowAt({ 100, top({ 2, 2 }) + 44 }), std::nullopt);
    EXPECT_EQ(layout.rowAt({ 320, top({ 0, 0 }) }), std::nullopt);
}

TEST_F(ALayoutOfGroups, FindsTheRowsThatComeIntoAPart)
{
    EXPECT_THAT(layout.rowsIn(makeRect(0, 0, 320, layout.height())),
        ElementsAre(
            RowPath { 0, 0 }, RowPath { 0, 1 }, RowPath { 2, 0 }, RowPath { 2, 1 }, RowPath { 2, 2 }));
    EXPECT_THAT(layout.rowsIn(makeRect(0, top({ 0, 1 }), 320, top({ 2, 0 }) + 1 - top({ 0, 1 }))),
        ElementsAre(RowPath { 0, 1 }, RowPath { 2, 0 }));
    EXPECT_THAT(layout.rowsIn(makeRect(0, top({ 2, 0 }) + 43, 320, 1)), ElementsAre(RowPath { 2, 0 }));
    EXPECT_THAT(layout.rowsIn(makeRect(0, 0, 320, top({ 0, 0 }))), IsEmpty());
    EXPECT_THAT(layout.rowsIn(makeRect(320, 0, 100, layout.height())), IsEmpty());
}

TEST_F(ALayoutOfGroups, KnowsTheLastRowOfASection)
{
    EXPECT_FALSE(layout.isLastOfSection({ 0, 0 }));
    EXPECT_TRUE(layout.isLastOfSection({ 0, 1 }));
}

TEST_F(ALayoutOfGroups, PassesOverAnEmptySectionFromRowToRow)
{
    EXPECT_EQ(layout.rowBeside({ 0, 0 }, Direction::Next), (RowPath { 0, 1 }));
    EXPECT_EQ(layout.rowBeside({ 0, 1 }, Direction::Next), (RowPath { 2, 0 }));
    EXPECT_EQ(layout.rowBeside({ 2, 2 }, Direction::Next), std::nullopt);
    EXPECT_EQ(layout.rowBeside({ 2, 2 }, Direction::Previous), (RowPath { 2, 1 }));
    EXPECT_EQ(layout.rowBeside({ 2, 0 }, Direction::Previous), (RowPath { 0, 1 }));
    EXPECT_EQ(layout.rowBeside({ 0, 0 }, Direction::Previous), std::nullopt);
}

TEST_F(ALayoutOfGroups, FindsTheRowBesideOneThatIsGone)
{
    EXPECT_EQ(layout.rowBeside({ 2, 9 }, Direction::Previous), (RowPath { 2, 2 }));
    EXPECT_EQ(layout.rowBeside({ 9, 9 }, Direction::Previous), (RowPath { 2, 2 }));
    EXPECT_EQ(layout.rowBeside({ 0, 9 }, Direction::Next), (RowPath { 2, 0 }));
}

TEST_F(ALayoutOfGroups, FindsTheFurthestRowLessThanADistanceAway)
{
    EXPECT_EQ(layout.rowAway({ 0, 0 }, Direction::Next, 0), (RowPath { 0, 1 })) << "the next one at least";
    EXPECT_EQ(layout.rowAway({ 2, 0 }, Direction::Next, 88), (RowPath { 2, 1 }));
    EXPECT_EQ(layout.rowAway({ 2, 0 }, Direction::Next, 89), (RowPath { 2, 2 }));
    EXPECT_EQ(layout.rowAway({ 2, 2 }, Direction::Previous, 89), (RowPath { 2, 0 }));
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(layout.rowAway({ 2, 1 }, Direction::Previous, infinity), (RowPath { 0, 0 }));
    EXPECT_EQ(layout.rowAway({ 2, 2 }, Direction::Next, 44), (RowPath { 2, 2 }))
        << "the row itself at the end";
}

} // namespace

} // namespace brimsound::tests
