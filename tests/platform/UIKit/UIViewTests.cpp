#include "platform/UIKit/UILabel.h"
#include "platform/desktop/UIKit/ViewPeer.h"
#include "platform/desktop/UIKit/Window.h"
#include "tests/platform/UIKit/Geometry.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::convertFromWindow;
using desktop::convertToWindow;
using desktop::Window;
using testing::ElementsAre;
using testing::IsEmpty;

class CountingView : public UIView {
public:
    using UIView::UIView;

    void layoutSubviews() override { ++layouts; }

    int layouts = 0;
};

/// Tells when it dies.
class MortalView : public UIView {
public:
    explicit MortalView(bool& isDead)
        : _isDead(isDead)
    {
    }

protected:
    ~MortalView() override { _isDead = true; }

private:
    bool& _isDead;
};

TEST(AView, HasItsFrameAndBoundsFromItsOwnOriginOn)
{
    const auto view = make<UIView>(CGRectMake(10.5, 20, 30, 40));
    EXPECT_EQ(view->frame(), CGRectMake(10.5, 20, 30, 40));
    EXPECT_EQ(view->bounds(), CGRectMake(0, 0, 30, 40));
    view->setFrame(CGRectMake(1, 2, 3, 4));
    EXPECT_EQ(view->frame(), CGRectMake(1, 2, 3, 4));
    desktop::setOrigin(*view, { 0, 7 });
    EXPECT_EQ(view->bounds(), CGRectMake(0, 7, 3, 4));
    EXPECT_EQ(view->frame(), CGRectMake(1, 2, 3, 4));
}

TEST(AView, IsVisibleAndOpaqueAndWithoutABackgroundAtFirst)
{
    const auto view = make<UIView>();
    EXPECT_EQ(view->alpha(), 1);
    EXPECT_FALSE(view->isHidden());
    EXPECT_FALSE(view->backgroundColor());
    EXPECT_EQ(view->superview(), nullptr);
    EXPECT_THAT(view->subviews(), IsEmpty());
}

TEST(AView, KeepsItsAlphaBetweenInvisibleAndOpaque)
{
    const auto view = make<UIView>();
    view->setAlpha(0.5);
    EXPECT_EQ(view->alpha(), 0.5);
    view->setAlpha(-1);
    EXPECT_EQ(view->alpha(), 0);
    view->setAlpha(2);
    EXPECT_EQ(view->alpha(), 1);
}

TEST(AView, FollowsItsSuperviewsSizeAsFarAsItIsFlexible)
{
    const auto superview = make<UIView>(CGRectMake(0, 0, 100, 100));
    const auto view = make<UIView>(CGRectMake(10, 20, 30, 40));
    superview->addSubview(*view);
    EXPECT_EQ(view->autoresizingMask(), UIViewAutoresizingNone);
    superview->setFrame(CGRectMake(0, 0, 150, 170));
    EXPECT_EQ(view->frame(), CGRectMake(10, 20, 30, 40));
    view->setAutoresizingMask(UIViewAutoresizingFlexibleWidth);
    superview->setFrame(CGRectMake(5, 5, 160, 190));
    EXPECT_EQ(view->frame(), CGRectMake(10, 20, 40, 40));
    view->setAutoresizingMask(UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight);
    superview->setFrame(CGRectMake(5, 5, 100, 100));
    EXPECT_EQ(view->frame(), CGRectMake(10, 20, -20, -50));
    superview->setFrame(CGRectMake(50, 50, 100, 100));
    EXPECT_EQ(view->frame(), CGRectMake(10, 20, -20, -50)) << "it only moved";
}

TEST(AddingASubview, PutsItInFrontOfTheOthers)
{
    const auto superview = make<UIView>();
    const auto a = make<UIView>();
    const auto b = make<UIView>();
    superview->addSubview(*a);
    superview->addSubview(*b);
    EXPECT_THAT(superview->subviews(), ElementsAre(a, b));
    superview->addSubview(*a);
    EXPECT_THAT(superview->subviews(), ElementsAre(b, a));
    EXPECT_EQ(a->superview(), superview.get());
}

TEST(AddingASubview, TakesItOutOfItsFormerSuperview)
{
    const auto former = make<UIView>();
    const auto latter = make<UIView>();
    const auto view = make<UIView>();
    former->addSubview(*view);
    latter->addSubview(*view);
    EXPECT_THAT(former->subviews(), IsEmpty());
    EXPECT_THAT(latter->subviews(), ElementsAre(view));
    EXPECT_EQ(view->superview(), latter.get());
    EXPECT_EQ(view->retainCount(), 2u);
}

TEST(RemovingAViewFromItsSuperview, LeavesBothWithoutTheOther)
{
    const auto superview = make<UIView>();
    const auto view = make<UIView>();
    view->removeFromSuperview();
    superview->addSubview(*view);
    view->removeFromSuperview();
    EXPECT_THAT(superview->subviews(), IsEmpty());
    EXPECT_EQ(view->superview(), nullptr);
    EXPECT_EQ(view->retainCount(), 1u);
}

TEST(ASubview, LivesAsLongAsItsSuperview)
{
    bool isDead = false;
    auto superview = make<UIView>();
    superview->addSubview(*make<MortalView>(isDead));
    EXPECT_FALSE(isDead);
    superview = nullptr;
    EXPECT_TRUE(isDead);
}

TEST(ASubview, DiesWhenItIsRemovedAndNobodyElseHoldsIt)
{
    bool isDead = false;
    const auto superview = make<UIView>();
    superview->addSubview(*make<MortalView>(isDead));
    superview->subviews().front()->removeFromSuperview();
    EXPECT_TRUE(isDead);
}

TEST(ASubview, SurvivesBeingMovedWhenOnlyItsSuperviewHeldIt)
{
    bool isDead = false;
    const auto former = make<UIView>();
    const auto latter = make<UIView>();
    former->addSubview(*make<MortalView>(isDead));
    latter->addSubview(*former->subviews().front());
    EXPECT_FALSE(isDead);
}

TEST(ASubview, IsWithoutASuperviewWhenThatDies)
{
    const auto view = make<UIView>();
    {
        const auto superview = make<UIView>();
        superview->addSubview(*view);
    }
    EXPECT_EQ(view->superview(), nullptr);
    EXPECT_EQ(view->retainCount(), 1u);
}

class ALayout : public testing::Test {
protected:
    ALayout()
    {
        window->addSubview(*view);
        window->layOut();
        view->layouts = 0;
    }

    const RetainPtr<Window> window = make<Window>(CGSize { 100, 100 });
    const RetainPtr<CountingView> view = make<CountingView>(CGRectMake(0, 0, 50, 50));
};

TEST_F(ALayout, RunsOnceAfterTheSizeChanged)
{
    view->setFrame(CGRectMake(0, 0, 60, 60));
    view->setFrame(CGRectMake(0, 0, 70, 70));
    EXPECT_EQ(view->layouts, 0);
    window->layOut();
    EXPECT_EQ(view->layouts, 1);
    window->layOut();
    EXPECT_EQ(view->layouts, 1);
}

TEST_F(ALayout, DoesNotRunWhenAViewMovesOrStays)
{
    view->setFrame(CGRectMake(20, 20, 50, 50));
    view->setFrame(CGRectMake(20, 20, 50, 50));
    window->layOut();
    EXPECT_EQ(view->layouts, 0);
}

TEST_F(ALayout, RunsOnceWhenItIsAskedFor)
{
    view->setNeedsLayout();
    view->setNeedsLayout();
    window->layOut();
    EXPECT_EQ(view->layouts, 1);
}

TEST_F(ALayout, RunsWhenASubviewIsAdded)
{
    view->addSubview(*make<UIView>());
    window->layOut();
    EXPECT_EQ(view->layouts, 1);
}

TEST_F(ALayout, ReachesTheSubviewsThatItResizes)
{
    class Filling : public UIView {
    public:
        void layoutSubviews() override
        {
            for (const auto& subview : subviews())
                subview->setFrame(bounds());
        }
    };
    const auto outer = make<Filling>();
    window->addSubview(*outer);
    outer->addSubview(*view);
    outer->setFrame(CGRectMake(0, 0, 30, 30));
    window->layOut();
    EXPECT_EQ(view->frame(), CGRectMake(0, 0, 30, 30));
    EXPECT_EQ(view->layouts, 1);
}

class AHitTest : public testing::Test {
protected:
    AHitTest()
    {
        window->addSubview(*box);
        box->addSubview(*below);
        box->addSubview(*above);
    }

    UIView* hit(CGPoint point) const { return desktop::hitTest(*window, point); }

    const RetainPtr<Window> window = make<Window>(CGSize { 200, 200 });
    const RetainPtr<UIView> box = make<UIView>(CGRectMake(50, 50, 100, 100));
    const RetainPtr<UIView> below = make<UIView>(CGRectMake(10, 10, 50, 50));
    const RetainPtr<UIView> above = make<UIView>(CGRectMake(30, 30, 50, 50));
};

TEST_F(AHitTest, FindsTheFrontmostView)
{
    EXPECT_EQ(hit({ 70, 70 }), below.get());
    EXPECT_EQ(hit({ 90, 90 }), above.get());
    box->addSubview(*below);
    EXPECT_EQ(hit({ 90, 90 }), below.get());
}

TEST_F(AHitTest, FindsTheViewAroundWhereNoSubviewIs)
{
    EXPECT_EQ(hit({ 55, 55 }), box.get());
    EXPECT_EQ(hit({ 10, 10 }), window.get());
}

TEST_F(AHitTest, CountsTheTopLeftEdgeInAndTheBottomRightEdgeOut)
{
    EXPECT_EQ(hit({ 50, 50 }), box.get());
    EXPECT_EQ(hit({ 150, 100 }), window.get());
    EXPECT_EQ(hit({ 100, 150 }), window.get());
}

TEST_F(AHitTest, FindsNothingOutside)
{
    EXPECT_EQ(hit({ -1, 10 }), nullptr);
    EXPECT_EQ(hit({ 200, 10 }), nullptr);
}

TEST_F(AHitTest, DoesNotFindWhatSticksOutOfItsSuperview)
{
    below->setFrame(CGRectMake(-40, 0, 60, 60));
    EXPECT_EQ(hit({ 40, 60 }), window.get());
    EXPECT_EQ(hit({ 55, 60 }), below.get());
}

TEST_F(AHitTest, PassesOverAHiddenViewAndEverythingInIt)
{
    above->setHidden(true);
    EXPECT_EQ(hit({ 90, 90 }), below.get());
    box->setHidden(true);
    EXPECT_EQ(hit({ 90, 90 }), window.get());
}

TEST_F(AHitTest, PassesOverAViewThatIsTooFaintToBeSeen)
{
    above->setAlpha(0.009);
    EXPECT_EQ(hit({ 90, 90 }), below.get());
    above->setAlpha(0.01);
    EXPECT_EQ(hit({ 90, 90 }), above.get());
}

TEST_F(AHitTest, FollowsAScrolledOrigin)
{
    desktop::setOrigin(*box, { 0, 40 });
    EXPECT_EQ(hit({ 90, 50 }), above.get());
    EXPECT_EQ(hit({ 65, 60 }), below.get());
    EXPECT_EQ(hit({ 90, 95 }), box.get());
}

TEST_F(AHitTest, ConvertsPointsThroughFramesAndScrolledOrigins)
{
    desktop::setOrigin(*box, { 0, 40 });
    EXPECT_EQ(convertFromWindow({ 90, 60 }, *above), (CGPoint { 10, 20 }));
    EXPECT_EQ(convertToWindow({ 10, 20 }, *above), (CGPoint { 90, 60 }));
    EXPECT_EQ(convertFromWindow({ 90, 60 }, *box), (CGPoint { 40, 50 }));
    EXPECT_EQ(convertFromWindow({ 5, 6 }, *window), (CGPoint { 5, 6 }));
}

TEST(ATaggedView, IsFoundInWhatItLiesIn)
{
    const auto outer = make<UIView>();
    const auto first = make<UIView>();
    const auto inFirst = make<UIView>();
    const auto second = make<UIView>();
    outer->addSubview(*first);
    first->addSubview(*inFirst);
    outer->addSubview(*second);
    EXPECT_EQ(outer->tag(), 0);
    inFirst->setTag(5);
    second->setTag(5);
    outer->setTag(6);
    EXPECT_EQ(outer->viewWithTag(5), inFirst.get()) << "depth first";
    EXPECT_EQ(outer->viewWithTag(6), outer.get());
    EXPECT_EQ(outer->viewWithTag(7), nullptr);
    EXPECT_EQ(second->viewWithTag(6), nullptr);
}

TEST(AViewThatIsLeftAlone, LetsTouchesThroughToWhatLiesBelow)
{
    const auto window = make<Window>(CGSize { 100, 100 });
    const auto below = make<UIView>(CGRectMake(0, 0, 100, 100));
    const auto above = make<UIView>(CGRectMake(0, 0, 100, 100));
    const auto inAbove = make<UIView>(CGRectMake(0, 0, 100, 100));
    above->addSubview(*inAbove);
    window->addSubview(*below);
    window->addSubview(*above);
    EXPECT_TRUE(above->isUserInteractionEnabled());
    EXPECT_EQ(desktop::hitTest(*window, { 1, 1 }), inAbove.get());
    above->setUserInteractionEnabled(false);
    EXPECT_FALSE(above->isUserInteractionEnabled());
    EXPECT_EQ(desktop::hitTest(*window, { 1, 1 }), below.get());
}

TEST(AViewThatClips, DrawsWithinItsBoundsOnly)
{
    const auto view = make<UIView>(CGRectMake(0, 0, 10, 10));
    const auto large = make<UIView>(CGRectMake(0, 0, 50, 50));
    view->addSubview(*large);
    EXPECT_FALSE(view->clipsToBounds());
    EXPECT_EQ(desktop::reachOf(desktop::peerOf(*view)), CGRectMake(0, 0, 50, 50));
    view->setClipsToBounds(true);
    EXPECT_TRUE(view->clipsToBounds());
    EXPECT_EQ(desktop::reachOf(desktop::peerOf(*view)), CGRectMake(0, 0, 10, 10));
}

TEST(ALayer, HasSquareCornersAtFirst)
{
    const auto view = make<UIView>();
    EXPECT_EQ(view->layer().cornerRadius(), 0);
    view->layer().setCornerRadius(20);
    EXPECT_EQ(view->layer().cornerRadius(), 20);
}

} // namespace

} // namespace brimsound::tests
