// Which views touches and screen readers can reach.
#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/Rows.h"
#include "toolkit/control/Button.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Button;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Point;
using toolkit::Ref;
using toolkit::Role;
using toolkit::Size;
using toolkit::View;
using toolkit::Window;

/// A view in a box in a window.
class AViewToReach : public testing::Test {
protected:
    AViewToReach()
    {
        window->add(*box);
        box->add(*view);
    }

    const Ref<Window> window = make<Window>(Size { 200, 300 });
    const Ref<View> box = make<View>(makeRect(50, 50, 100, 100));
    const Ref<View> view = make<View>(makeRect(20, 20, 40, 40));
};

TEST_F(AViewToReach, IsReachableInAWindowOnly)
{
    EXPECT_TRUE(view->isReachable());
    box->removeFromParent();
    EXPECT_FALSE(view->isReachable());
}

TEST_F(AViewToReach, IsNotReachableWhileItOrAViewAroundItIsHiddenOrTooFaint)
{
    for (const auto& hidden : { view, box }) {
        hidden->setHidden(true);
        EXPECT_FALSE(view->isReachable());
        hidden->setHidden(false);
        hidden->setAlpha(0.009);
        EXPECT_FALSE(view->isReachable());
        hidden->setAlpha(0.01);
        EXPECT_TRUE(view->isReachable());
    }
}

TEST_F(AViewToReach, IsReachableThoughItIsNotInteractive)
{
    view->setInteractive(false);
    EXPECT_FALSE(view->canBeTouched());
    EXPECT_TRUE(view->isReachable()) << "it can be read";
}

TEST_F(AViewToReach, IsCoveredByAViewInFrontThatFillsTheParentOfBoth)
{
    const auto cover = make<View>(makeRect(0, 0, 100, 100));
    box->add(*cover);
    EXPECT_TRUE(cover->coversParent());
    EXPECT_TRUE(view->isCovered());
    EXPECT_FALSE(view->isReachable());
    EXPECT_FALSE(cover->isCovered());
    box->add(*view);
    EXPECT_FALSE(view->isCovered()) << "it is in front now";
    EXPECT_TRUE(view->isReachable());
}

TEST_F(AViewToReach, IsCoveredWhereAViewAroundItIs)
{
    window->add(*make<View>(makeRect(0, 0, 200, 300)));
    EXPECT_TRUE(view->isCovered());
    EXPECT_FALSE(view->isReachable());
}

TEST_F(AViewToReach, IsNotCoveredByAViewThatIsSmallerThanTheParentOrLetsTouchesThrough)
{
    const auto cover = make<View>(makeRect(0, 0, 100, 99));
    box->add(*cover);
    EXPECT_FALSE(view->isCovered());
    cover->setFrame(makeRect(-10, -10, 200, 200));
    EXPECT_TRUE(view->isCovered());
    cover->setInteractive(false);
    EXPECT_FALSE(cover->coversParent());
    EXPECT_FALSE(view->isCovered());
    cover->setInteractive(true);
    cover->setHidden(true);
    EXPECT_FALSE(view->isCovered());
}

TEST_F(AViewToReach, IsNotCoveredInAParentOfNoSize)
{
    const auto empty = make<View>();
    const auto cover = make<View>(makeRect(0, 0, 10, 10));
    empty->add(*cover);
    EXPECT_FALSE(cover->coversParent());
}

TEST_F(AViewToReach, IsTouchedInItsMiddle)
{
    EXPECT_EQ(view->placeToTouch(), (Point { 20, 20 }));
    view->setOrigin({ 0, 100 });
    EXPECT_EQ(view->placeToTouch(), (Point { 20, 120 }));
}

TEST_F(AViewToReach, IsTouchedInTheMiddleOfThePartThatShows)
{
    view->setFrame(makeRect(80, 20, 40, 40));
    EXPECT_EQ(view->placeToTouch(), (Point { 10, 20 }));
}

TEST_F(AViewToReach, IsTouchedBesideWhatLiesOverItsMiddle)
{
    box->add(*make<View>(makeRect(30, 30, 20, 20)));
    EXPECT_EQ(view->placeToTouch(), (Point { 1, 1 }));
    box->add(*make<View>(makeRect(20, 20, 39, 40)));
    EXPECT_EQ(view->placeToTouch(), (Point { 39, 1 }));
}

TEST_F(AViewToReach, IsTouchedThroughAChildThatTakesNoTouchesAndBesideOneThatDoes)
{
    const auto child = make<View>(makeRect(0, 0, 40, 40));
    view->add(*child);
    EXPECT_EQ(view->placeToTouch(), (Point { 20, 20 }));
    view->add(*make<Button>(makeRect(10, 0, 30, 40)));
    EXPECT_EQ(view->placeToTouch(), (Point { 1, 1 }));
}

TEST_F(AViewToReach, CannotBeTouchedWhereSomethingLiesOverAllOfIt)
{
    box->add(*make<View>(makeRect(20, 20, 40, 40)));
    EXPECT_FALSE(view->placeToTouch());
    EXPECT_FALSE(view->comeIntoReach());
}

TEST_F(AViewToReach, CannotBeTouchedOutsideTheViewsAroundItOrOutOfAWindow)
{
    view->setFrame(makeRect(100, 20, 40, 40));
    EXPECT_FALSE(view->placeToTouch());
    box->removeFromParent();
    EXPECT_FALSE(view->placeToTouch());
    EXPECT_FALSE(view->comeIntoReach());
}

TEST_F(AViewToReach, CannotBeTouchedWhileItIsNotInteractive)
{
    view->setInteractive(false);
    EXPECT_FALSE(view->comeIntoReach());
    view->setInteractive(true);
    EXPECT_TRUE(view->comeIntoReach());
}

TEST_F(AViewToReach, DoesNotComeIntoReachWhileSomethingIsTouched)
{
    window->add(*make<Button>(makeRect(0, 200, 50, 50)));
    window->touchDown({ { 10, 210 } });
    EXPECT_FALSE(view->comeIntoReach());
    window->touchUp({ 10, 210 });
    EXPECT_TRUE(view->comeIntoReach());
}

TEST_F(AViewToReach, ComesIntoReachAfterTheLayoutThatPlacesIt)
{
    class Placing : public View {
    public:
        void layOut() override { children().front()->setFrame(makeRect(0, 0, 10, 10)); }
    };
    const auto outer = make<Placing>();
    outer->setFrame(makeRect(0, 200, 50, 50));
    const auto inner = make<View>();
    outer->add(*inner);
    window->add(*outer);
    EXPECT_FALSE(inner->placeToTouch());
    EXPECT_TRUE(inner->comeIntoReach());
    EXPECT_TRUE(inner->placeToTouch());
}

TEST(AViewInAList, ComesIntoReachByScrolling)
{
    Rows rows { { 20 } };
    const TableInWindow list(rows, { 320, 440 });
    const auto row = toolkit::keep(list.cell(9));
    list.scrollTo(200);
    EXPECT_TRUE(list.cell(4)->comeIntoReach());
    EXPECT_EQ(list.offset(), 4 * 44);
    EXPECT_TRUE(row->comeIntoReach());
    EXPECT_EQ(list.offset(), 4 * 44) << "it was visible";
}

/// A view that is an element for screen readers.
class Meaningful : public View {
public:
    using View::View;
    Role role() const override { return Role::Button; }
};

/// An element for screen readers that can contain others.
class MeaningfulGroup : public View {
public:
    using View::View;
    Role role() const override { return Role::Dialog; }
};

TEST_F(AViewToReach, HasTheMeaningfulViewsInItInReadingOrder)
{
    const auto bottom = make<Meaningful>(makeRect(0, 90, 10, 10));
    const auto right = make<Meaningful>(makeRect(90, 5, 10, 10));
    const auto plain = make<View>(makeRect(0, 5, 50, 50));
    const auto inPlain = make<Meaningful>(makeRect(0, 40, 10, 10));
    for (const auto& child : std::initializer_list<Ref<View>> { bottom, right, plain })
        box->add(*child);
    plain->add(*inPlain);
    EXPECT_THAT(box->accessibleChildren(), ElementsAre(inPlain.get(), right.get(), bottom.get()));
    EXPECT_THAT(window->accessibleChildren(), ElementsAre(inPlain.get(), right.get(), bottom.get()));
}

TEST_F(AViewToReach, HasNoMeaningfulViewsThatAreHiddenOrCovered)
{
    const auto below = make<Meaningful>(makeRect(0, 0, 10, 10));
    const auto hidden = make<Meaningful>(makeRect(0, 0, 10, 10));
    const auto cover = make<View>(makeRect(0, 0, 100, 100));
    const auto above = make<Meaningful>(makeRect(0, 0, 10, 10));
    for (const auto& child : std::initializer_list<Ref<View>> { below, cover, hidden, above })
        box->add(*child);
    hidden->setHidden(true);
    EXPECT_THAT(box->accessibleChildren(), ElementsAre(above.get()));
    cover->setHidden(true);
    EXPECT_THAT(box->accessibleChildren(), ElementsAre(below.get(), above.get()));
}

TEST_F(AViewToReach, HasTheOutermostMeaningfulViewsOnly)
{
    const auto group = make<MeaningfulGroup>(makeRect(0, 0, 10, 10));
    const auto inner = make<Meaningful>(makeRect(0, 0, 10, 10));
    const auto innermost = make<Meaningful>(makeRect(0, 0, 10, 10));
    box->add(*group);
    group->add(*inner);
    inner->add(*innermost);
    EXPECT_THAT(window->accessibleChildren(), ElementsAre(group.get()));
    EXPECT_THAT(group->accessibleChildren(), ElementsAre(inner.get()));
    EXPECT_THAT(inner->accessibleChildren(), IsEmpty()) << "a button is read as a whole";
    EXPECT_EQ(inner->accessibleParent(), group.get());
    EXPECT_EQ(group->accessibleParent(), nullptr);
}

} // namespace

} // namespace brimsound::tests
