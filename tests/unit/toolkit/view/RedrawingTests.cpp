#include "tests/unit/toolkit/Redrawing.h"

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Color;
using toolkit::make;
using toolkit::makeRect;
using toolkit::View;

constexpr Color black { 0, 0, 0 };

using MovingAView = Redrawing;

TEST_F(MovingAView, RedrawsTheOldAndTheNewPlace)
{
    const auto view = added<View>(makeRect(10, 10, 20, 20));
    view->setFrame(makeRect(100, 50, 20, 20));
    EXPECT_THAT(parts(), ElementsAre(makeRect(10, 10, 20, 20), makeRect(100, 50, 20, 20)));
}

TEST_F(MovingAView, ToWhereItIsRedrawsNothing)
{
    const auto view = added<View>(makeRect(10, 10, 20, 20));
    view->setFrame(makeRect(10, 10, 20, 20));
    EXPECT_THAT(parts(), IsEmpty());
}

TEST_F(MovingAView, RedrawsTheChildrenThatReachBeyondItToo)
{
    const auto view = added<View>(makeRect(10, 10, 20, 20));
    view->add(*make<View>(makeRect(15, 0, 30, 10)));
    parts();
    view->setFrame(makeRect(10, 100, 20, 20));
    EXPECT_THAT(parts(), ElementsAre(makeRect(10, 10, 45, 20), makeRect(10, 100, 45, 20)));
}

TEST_F(MovingAView, DoesNotRedrawHiddenChildrenThatReachBeyondIt)
{
    const auto view = added<View>(makeRect(10, 10, 20, 20));
    const auto hidden = make<View>(makeRect(15, 0, 30, 10));
    hidden->setHidden(true);
    view->add(*hidden);
    parts();
    view->setFrame(makeRect(10, 100, 20, 20));
    EXPECT_THAT(parts(), ElementsAre(makeRect(10, 10, 20, 20), makeRect(10, 100, 20, 20)));
}

TEST_F(MovingAView, DoesNotRedrawBeyondItsBoundsWhenItClips)
{
    const auto view = added<View>(makeRect(0, 0, 10, 10));
    view->add(*make<View>(makeRect(0, 0, 50, 50)));
    EXPECT_FALSE(view->clips());
    parts();
    view->setNeedsDisplay();
    EXPECT_THAT(parts(), ElementsAre(makeRect(0, 0, 50, 50)));
    view->setClips(true);
    EXPECT_TRUE(view->clips());
    EXPECT_EQ(together(), makeRect(0, 0, 50, 50)) << "what is cut off now";
    view->setNeedsDisplay();
    EXPECT_THAT(parts(), ElementsAre(makeRect(0, 0, 10, 10)));
}

using AddingAndRemovingAView = Redrawing;

TEST_F(AddingAndRemovingAView, RedrawsItsPlace)
{
    const auto view = make<View>(makeRect(10, 10, 20, 20));
    window->add(*view);
    EXPECT_THAT(parts(), ElementsAre(makeRect(10, 10, 20, 20)));
    view->removeFromParent();
    EXPECT_THAT(parts(), ElementsAre(makeRect(10, 10, 20, 20)));
}

using HidingAView = Redrawing;

TEST_F(HidingAView, RedrawsItsPlaceAndSoDoesShowingIt)
{
    const auto view = added<View>(makeRect(10, 10, 20, 20));
    view->setHidden(true);
    EXPECT_EQ(together(), makeRect(10, 10, 20, 20));
    view->setHidden(true);
    EXPECT_THAT(parts(), IsEmpty());
    view->setHidden(false);
    EXPECT_EQ(together(), makeRect(10, 10, 20, 20));
}

TEST_F(HidingAView, KeepsWhatChangesInItFromBeingRedrawn)
{
    const auto box = added<View>(makeRect(10, 10, 50, 50));
    const auto view = make<View>(makeRect(5, 5, 10, 10));
    box->add(*view);
    box->setHidden(true);
    parts();
    view->setBackground(black);
    view->setFrame(makeRect(20, 20, 10, 10));
    EXPECT_THAT(parts(), IsEmpty());
}

using AChangeInAView = Redrawing;

TEST_F(AChangeInAView, IsRedrawnInWindowCoordinates)
{
    const auto box = added<View>(makeRect(10, 10, 100, 100));
    const auto view = make<View>(makeRect(20, 60, 10, 10));
    box->add(*view);
    box->setOrigin({ 0, 40 });
    parts();
    view->setBackground(black);
    EXPECT_THAT(parts(), ElementsAre(makeRect(30, 30, 10, 10)));
}

TEST_F(AChangeInAView, OfAPartRedrawsThatPart)
{
    const auto view = added<View>(makeRect(10, 10, 100, 100));
    view->setOrigin({ 0, 40 });
    parts();
    view->setNeedsDisplay(makeRect(5, 50, 10, 10));
    EXPECT_THAT(parts(), ElementsAre(makeRect(15, 20, 10, 10)));
}

TEST_F(AChangeInAView, OutOfTheWindowRedrawsNothing)
{
    const auto view = make<View>(makeRect(20, 60, 10, 10));
    view->setBackground(black);
    EXPECT_THAT(parts(), IsEmpty());
}

TEST_F(AChangeInAView, OfItsAlphaRedrawsItOnceForEachNewAlpha)
{
    const auto view = added<View>(makeRect(10, 10, 20, 20));
    view->setAlpha(0.5);
    EXPECT_THAT(parts(), ElementsAre(makeRect(10, 10, 20, 20)));
    view->setAlpha(0.5);
    EXPECT_THAT(parts(), IsEmpty());
}

TEST_F(AChangeInAView, OfItsBackgroundRedrawsItWhenThatShows)
{
    const auto view = added<View>(makeRect(10, 10, 20, 20));
    view->setBackground(toolkit::transparent);
    EXPECT_THAT(parts(), IsEmpty());
    view->setBackground(black);
    EXPECT_THAT(parts(), ElementsAre(makeRect(10, 10, 20, 20)));
    view->setBackground(black);
    EXPECT_THAT(parts(), IsEmpty());
}

TEST_F(AChangeInAView, OfItsCornersRedrawsIt)
{
    const auto view = added<View>(makeRect(10, 10, 20, 20));
    view->setCornerRadius(4);
    EXPECT_THAT(parts(), ElementsAre(makeRect(10, 10, 20, 20)));
    view->setCornerRadius(4);
    EXPECT_THAT(parts(), IsEmpty());
}

} // namespace

} // namespace brimsound::tests
