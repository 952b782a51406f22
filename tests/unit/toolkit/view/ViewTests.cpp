#include "tests/unit/toolkit/Geometry.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Color;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Ref;
using toolkit::Size;
using toolkit::View;
using toolkit::Window;

/// Records its destruction.
class NotingView : public View {
public:
    explicit NotingView(bool& isGone)
        : _isGone(isGone)
    {
    }

protected:
    ~NotingView() override { _isGone = true; }

private:
    bool& _isGone;
};

TEST(AView, HasTheFrameThatItWasGiven)
{
    const auto view = make<View>(makeRect(10.5, 20, 30, 40));
    EXPECT_EQ(view->frame(), makeRect(10.5, 20, 30, 40));
    view->setFrame(makeRect(1, 2, 3, 4));
    EXPECT_EQ(view->frame(), makeRect(1, 2, 3, 4));
}

TEST(AView, HasBoundsOfItsSizeThatStartAtItsOrigin)
{
    const auto view = make<View>(makeRect(10, 20, 30, 40));
    EXPECT_EQ(view->bounds(), makeRect(0, 0, 30, 40));
    view->setOrigin({ 0, 7 });
    EXPECT_EQ(view->bounds(), makeRect(0, 7, 30, 40));
    EXPECT_EQ(view->frame(), makeRect(10, 20, 30, 40));
}

TEST(AView, IsVisibleOpaqueAndWithoutABackgroundAtFirst)
{
    const auto view = make<View>();
    EXPECT_EQ(view->alpha(), 1);
    EXPECT_FALSE(view->isHidden());
    EXPECT_FALSE(view->clips());
    EXPECT_TRUE(view->isInteractive());
    EXPECT_EQ(view->background(), std::nullopt);
    EXPECT_EQ(view->cornerRadius(), 0);
    EXPECT_EQ(view->parent(), nullptr);
    EXPECT_THAT(view->children(), IsEmpty());
}

TEST(AView, KeepsItsBackgroundAndItsCornerRadius)
{
    const auto view = make<View>();
    view->setBackground(Color { 1, 0, 0 });
    EXPECT_EQ(view->background(), (Color { 1, 0, 0 }));
    view->setBackground(std::nullopt);
    EXPECT_EQ(view->background(), std::nullopt);
    view->setCornerRadius(20);
    EXPECT_EQ(view->cornerRadius(), 20);
}

TEST(AView, KeepsItsAlphaBetweenZeroAndOne)
{
    const auto view = make<View>();
    view->setAlpha(0.5);
    EXPECT_EQ(view->alpha(), 0.5);
    view->setAlpha(-1);
    EXPECT_EQ(view->alpha(), 0);
    view->setAlpha(2);
    EXPECT_EQ(view->alpha(), 1);
}

/// A view in a parent of 100 by 100 points.
class AResizedParent : public testing::Test {
protected:
    AResizedParent() { parent->add(*view); }

    const Ref<View> parent = make<View>(makeRect(0, 0, 100, 100));
    const Ref<View> view = make<View>(makeRect(10, 20, 30, 40));
};

TEST_F(AResizedParent, LeavesAViewThatDoesNotFollowAsItIs)
{
    EXPECT_FALSE(view->followsWidth());
    EXPECT_FALSE(view->followsHeight());
    parent->setFrame(makeRect(0, 0, 150, 170));
    EXPECT_EQ(view->frame(), makeRect(10, 20, 30, 40));
}

TEST_F(AResizedParent, ChangesTheWidthOfAViewThatFollowsIt)
{
    view->setFollowsParent(true, false);
    EXPECT_TRUE(view->followsWidth());
    EXPECT_FALSE(view->followsHeight());
    parent->setFrame(makeRect(5, 5, 110, 120));
    EXPECT_EQ(view->frame(), makeRect(10, 20, 40, 40));
}

TEST_F(AResizedParent, ChangesWidthAndHeightOfAViewThatFollowsBothEvenBelowZero)
{
    view->setFollowsParent(true, true);
    EXPECT_TRUE(view->followsHeight());
    parent->setFrame(makeRect(5, 5, 40, 10));
    EXPECT_EQ(view->frame(), makeRect(10, 20, -30, -50));
}

TEST_F(AResizedParent, ChangesNothingWhenItOnlyMoves)
{
    view->setFollowsParent(true, true);
    parent->setFrame(makeRect(50, 50, 100, 100));
    EXPECT_EQ(view->frame(), makeRect(10, 20, 30, 40));
}

TEST(AddingAView, PutsItInFrontOfTheOthers)
{
    const auto parent = make<View>();
    const auto a = make<View>();
    const auto b = make<View>();
    parent->add(*a);
    parent->add(*b);
    EXPECT_THAT(parent->children(), ElementsAre(a, b));
    parent->add(*a);
    EXPECT_THAT(parent->children(), ElementsAre(b, a));
    EXPECT_EQ(a->parent(), parent.get());
}

TEST(AddingAView, TakesItOutOfItsFormerParent)
{
    const auto former = make<View>();
    const auto latter = make<View>();
    const auto view = make<View>();
    former->add(*view);
    latter->add(*view);
    EXPECT_THAT(former->children(), IsEmpty());
    EXPECT_THAT(latter->children(), ElementsAre(view));
    EXPECT_EQ(view->parent(), latter.get());
    EXPECT_EQ(view->retainCount(), 2u);
}

TEST(InsertingAView, PutsItAtItsPlaceFromTheBack)
{
    const auto parent = make<View>();
    const auto a = make<View>();
    const auto b = make<View>();
    const auto c = make<View>();
    parent->add(*a);
    parent->add(*b);
    parent->insert(*c, 1);
    EXPECT_THAT(parent->children(), ElementsAre(a, c, b));
    parent->insert(*c, 0);
    EXPECT_THAT(parent->children(), ElementsAre(c, a, b));
    parent->insert(*c, 9);
    EXPECT_THAT(parent->children(), ElementsAre(a, b, c));
}

TEST(RemovingAViewFromItsParent, LeavesBothWithoutTheOther)
{
    const auto parent = make<View>();
    const auto view = make<View>();
    view->removeFromParent();
    parent->add(*view);
    view->removeFromParent();
    EXPECT_THAT(parent->children(), IsEmpty());
    EXPECT_EQ(view->parent(), nullptr);
    EXPECT_EQ(view->retainCount(), 1u);
}

TEST(AChild, LivesAsLongAsItsParent)
{
    bool isGone = false;
    auto parent = make<View>();
    parent->add(*make<NotingView>(isGone));
    EXPECT_FALSE(isGone);
    parent = nullptr;
    EXPECT_TRUE(isGone);
}

TEST(AChild, IsDestroyedWhenItIsRemovedWithoutOtherReferences)
{
    bool isGone = false;
    const auto parent = make<View>();
    parent->add(*make<NotingView>(isGone));
    parent->children().front()->removeFromParent();
    EXPECT_TRUE(isGone);
}

TEST(AChild, SurvivesAMoveWhenOnlyItsParentHasAReference)
{
    bool isGone = false;
    const auto former = make<View>();
    const auto latter = make<View>();
    former->add(*make<NotingView>(isGone));
    latter->add(*former->children().front());
    EXPECT_FALSE(isGone);
}

TEST(AChild, HasNoParentWhenThatIsDestroyed)
{
    const auto view = make<View>();
    {
        const auto parent = make<View>();
        parent->add(*view);
    }
    EXPECT_EQ(view->parent(), nullptr);
    EXPECT_EQ(view->retainCount(), 1u);
}

TEST(AView, TellsWhenItIsDestroyed)
{
    bool isDestroyed = false;
    auto view = make<View>();
    view->onDestroyed = [&] { isDestroyed = true; };
    EXPECT_FALSE(isDestroyed);
    view = nullptr;
    EXPECT_TRUE(isDestroyed);
}

/// A view in a view.
class AnInnerView : public testing::Test {
protected:
    AnInnerView() { outer->add(*inner); }

    const Ref<View> outer = make<View>();
    const Ref<View> inner = make<View>();
};

TEST_F(AnInnerView, IsWithinItselfAndTheViewsAroundIt)
{
    const auto outermost = make<View>();
    outermost->add(*outer);
    EXPECT_TRUE(inner->isWithin(*inner));
    EXPECT_TRUE(inner->isWithin(*outer));
    EXPECT_TRUE(inner->isWithin(*outermost));
    EXPECT_FALSE(outer->isWithin(*inner));
    EXPECT_FALSE(inner->isWithin(*make<View>()));
}

TEST_F(AnInnerView, HasTheWindowThatItLiesIn)
{
    EXPECT_EQ(inner->window(), nullptr);
    const auto window = make<Window>(Size { 100, 100 });
    window->add(*outer);
    EXPECT_EQ(inner->window(), window.get());
    EXPECT_EQ(window->window(), window.get());
    outer->removeFromParent();
    EXPECT_EQ(inner->window(), nullptr);
}

TEST(ATaggedView, IsFoundInTheViewsAroundItDepthFirst)
{
    const auto outer = make<View>();
    const auto first = make<View>();
    const auto inFirst = make<View>();
    const auto second = make<View>();
    outer->add(*first);
    first->add(*inFirst);
    outer->add(*second);
    EXPECT_EQ(outer->tag(), 0);
    inFirst->setTag(5);
    second->setTag(5);
    outer->setTag(6);
    EXPECT_EQ(outer->withTag(5), inFirst.get());
    EXPECT_EQ(outer->withTag(6), outer.get());
    EXPECT_EQ(outer->withTag(7), nullptr);
    EXPECT_EQ(second->withTag(6), nullptr);
}

/// A view of 50 by 50 points in a view of 100 by 100 points, half of it beyond the right edge.
class AViewThatIsCutOff : public testing::Test {
protected:
    AViewThatIsCutOff()
    {
        window->add(*box);
        box->add(*view);
    }

    const Ref<Window> window = make<Window>(Size { 110, 300 });
    const Ref<View> box = make<View>(makeRect(20, 10, 100, 100));
    const Ref<View> view = make<View>(makeRect(75, 0, 50, 50));
};

TEST_F(AViewThatIsCutOff, HasAPartWithinAllThatIsAroundIt)
{
    EXPECT_EQ(view->partWithin(nullptr), makeRect(0, 0, 15, 50));
}

TEST_F(AViewThatIsCutOff, HasAPartUpToAViewAroundIt)
{
    EXPECT_EQ(view->partWithin(window.get()), makeRect(0, 0, 15, 50));
    EXPECT_EQ(view->partWithin(box.get()), makeRect(0, 0, 25, 50));
    EXPECT_EQ(view->partWithin(view.get()), makeRect(0, 0, 50, 50));
}

TEST_F(AViewThatIsCutOff, HasAPartInItsOwnCoordinates)
{
    box->setOrigin({ 0, 40 });
    view->setOrigin({ 0, 200 });
    EXPECT_EQ(view->partWithin(nullptr), makeRect(0, 240, 15, 10));
}

} // namespace

} // namespace brimsound::tests
