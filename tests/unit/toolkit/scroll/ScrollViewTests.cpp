#include "tests/unit/toolkit/Geometry.h"

#include "toolkit/scroll/ScrollView.h"
#include "toolkit/time/Clock.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace brimsound::tests {

namespace {

using toolkit::Clock;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Rect;
using toolkit::Ref;
using toolkit::ScrollView;
using toolkit::Size;
using toolkit::View;
using toolkit::Window;

constexpr double viewHeight = 400;
/// The offset that shows the end of the contents.
constexpr double contentEnd = 600;

class Page : public ScrollView {
public:
    Page()
        : ScrollView(makeRect(0, 0, 320, viewHeight))
    {
    }

    double contentHeight() const override { return viewHeight + contentEnd; }
};

class AScrollView : public testing::Test {
protected:
    AScrollView() { window->add(*page); }

    double offset() const { return page->bounds().top(); }

    /// Begins a touch and moves it far enough to scroll; the page has not moved yet.
    void grab(double y, double direction = 1) const
    {
        window->touchDown({ { 100, y - 20 * direction } });
        window->touchMove({ 100, y });
    }
    void pullTo(double y) const { window->touchMove({ 100, y }); }
    void release() const { window->touchUp({}); }

    /// Moves a finger at this speed, in points per second, and lifts it during the movement.
    void flick(double speed) const
    {
        grab(200, speed < 0 ? -1 : 1);
        for (int i = 1; i <= 5; ++i) {
            Clock::shared().advance(0.01);
            pullTo(200 + 0.01 * i * speed);
        }
        release();
    }

    const Ref<Window> window = make<Window>(Size { 320, viewHeight });
    Ref<Page> page = make<Page>();
};

TEST_F(AScrollView, IsFoundAroundWhatLiesInIt)
{
    const auto inner = make<View>();
    page->add(*inner);
    EXPECT_EQ(inner->enclosingScrollView(), page.get());
    EXPECT_EQ(page->enclosingScrollView(), page.get());
    EXPECT_EQ(window->enclosingScrollView(), nullptr);
}

TEST_F(AScrollView, ScrollsNoFurtherThanItsContents)
{
    page->scrollTo(250);
    EXPECT_EQ(offset(), 250);
    page->scrollTo(10000);
    EXPECT_EQ(offset(), contentEnd);
    page->scrollBy(-100);
    EXPECT_EQ(offset(), contentEnd - 100);
    page->scrollTo(-5);
    EXPECT_EQ(offset(), 0);
}

TEST_F(AScrollView, DoesNotScrollContentsThatFit)
{
    page->setFrame(makeRect(0, 0, 320, 2000));
    page->scrollTo(100);
    EXPECT_EQ(offset(), 0);
}

TEST_F(AScrollView, ScrollsByItsHeightAndToItsEnd)
{
    page->scrollPages(1);
    EXPECT_EQ(offset(), viewHeight);
    page->scrollPages(-0.5);
    EXPECT_EQ(offset(), viewHeight / 2);
    page->scrollToEnd();
    EXPECT_EQ(offset(), contentEnd);
}

TEST_F(AScrollView, ScrollsAsLittleAsItTakesToShowAPart)
{
    page->scrollTo(200);
    page->show(makeRect(0, 300, 10, 50));
    EXPECT_EQ(offset(), 200);
    page->show(makeRect(0, 150, 10, 50));
    EXPECT_EQ(offset(), 150);
    page->show(makeRect(0, 560, 10, 50));
    EXPECT_EQ(offset(), 210);
    page->show(makeRect(0, 5000, 10, 50));
    EXPECT_EQ(offset(), contentEnd);
}

TEST_F(AScrollView, ScrollsAViewThatLiesDeepInItIntoView)
{
    const auto outer = make<View>(makeRect(10, 500, 100, 100));
    const auto inner = make<View>(makeRect(10, 20, 30, 40));
    outer->add(*inner);
    page->add(*outer);
    scrollIntoView(*inner);
    EXPECT_EQ(offset(), 500 + 20 + 40 - viewHeight);
    page->removeFromParent();
    page->scrollTo(0);
    scrollIntoView(*inner);
    EXPECT_EQ(offset(), 0) << "out of a window nothing is in view";
}

TEST_F(AScrollView, FollowsAFingerPointForPoint)
{
    page->scrollTo(200);
    grab(200);
    EXPECT_EQ(offset(), 200);
    pullTo(150);
    EXPECT_EQ(offset(), 250);
    pullTo(300);
    EXPECT_EQ(offset(), 100);
}

TEST_F(AScrollView, StaysWhereAFingerThatRestedReleasesIt)
{
    page->scrollTo(200);
    grab(200);
    Clock::shared().advance(0.02);
    pullTo(150);
    Clock::shared().advance(0.5);
    release();
    Clock::shared().advance(2);
    EXPECT_EQ(offset(), 250);
}

TEST_F(AScrollView, ResistsAFingerBeyondItsTopTheMoreTheFurther)
{
    grab(100);
    pullTo(200);
    const double first = -offset();
    pullTo(300);
    const double second = -offset() - first;
    EXPECT_GT(first, 30);
    EXPECT_LT(first, 60);
    EXPECT_GT(second, 0);
    EXPECT_LT(second, first);
    pullTo(100000);
    EXPECT_GT(offset(), -viewHeight);
}

TEST_F(AScrollView, ResistsAFingerBeyondItsBottomAsMuch)
{
    grab(200);
    pullTo(300);
    const double atTop = -offset();
    release();
    page->scrollTo(contentEnd);
    grab(300, -1);
    pullTo(200);
    EXPECT_DOUBLE_EQ(offset(), contentEnd + atTop);
}

TEST_F(AScrollView, ComesBackFromBeyondItsEdges)
{
    grab(100);
    pullTo(300);
    release();
    Clock::shared().advance(0.1);
    EXPECT_LT(offset(), 0);
    Clock::shared().advance(2);
    EXPECT_EQ(offset(), 0);

    page->scrollTo(contentEnd);
    grab(300, -1);
    pullTo(100);
    EXPECT_GT(offset(), contentEnd);
    release();
    Clock::shared().advance(2);
    EXPECT_EQ(offset(), contentEnd);
}

TEST_F(AScrollView, ComesBackFromBeyondItsEdgesAfterATapOnTheWay)
{
    grab(100);
    pullTo(300);
    release();
    Clock::shared().advance(0.1);
    window->touchDown({ { 100, 100 } });
    const double caught = offset();
    EXPECT_LT(caught, 0);
    Clock::shared().advance(0.1);
    EXPECT_EQ(offset(), caught);
    release();
    Clock::shared().advance(2);
    EXPECT_EQ(offset(), 0);
}

TEST_F(AScrollView, FollowsAFingerFromWhereThatCatchesItBeyondItsEdge)
{
    grab(100);
    pullTo(300);
    release();
    Clock::shared().advance(0.05);
    const double caught = offset();
    EXPECT_LT(caught, -10);
    grab(100);
    pullTo(100);
    EXPECT_NEAR(offset(), caught, 1e-9);
    pullTo(101);
    EXPECT_LT(offset(), caught);
    EXPECT_GT(offset(), caught - 1);
}

TEST_F(AScrollView, GoesOnAfterAFlickAndSlowsDown)
{
    flick(-500);
    EXPECT_TRUE(page->isMoving());
    const double released = offset();
    EXPECT_DOUBLE_EQ(released, 25);
    Clock::shared().advance(0.2);
    const double first = offset() - released;
    EXPECT_GT(first, 50);
    EXPECT_LT(first, 100);
    Clock::shared().advance(0.2);
    const double second = offset() - released - first;
    EXPECT_GT(second, 0);
    EXPECT_LT(second, first);
}

TEST_F(AScrollView, EndsAFlickWithinItsContents)
{
    flick(-500);
    Clock::shared().advance(10);
    EXPECT_FALSE(page->isMoving());
    EXPECT_GT(offset(), 200);
    EXPECT_LT(offset(), 300);
    const double end = offset();
    Clock::shared().advance(1);
    EXPECT_EQ(offset(), end);
}

TEST_F(AScrollView, EndsAFlickThatIsTooFastAtItsEdge)
{
    flick(-20000);
    double furthestSeen = 0;
    for (int frame = 0; frame < 300; ++frame) {
        Clock::shared().advance(1.0 / 60);
        furthestSeen = std::max(furthestSeen, offset());
    }
    EXPECT_EQ(offset(), contentEnd);
    EXPECT_LE(furthestSeen, contentEnd + viewHeight / 2);
    flick(20000);
    Clock::shared().advance(5);
    EXPECT_EQ(offset(), 0);
}

TEST_F(AScrollView, IsCarriedBeyondItsEdgeByAnEighthOfItsHeightAtMost)
{
    flick(-11900);
    EXPECT_LT(offset(), contentEnd);
    Clock::shared().advance(1.0 / 60);
    EXPECT_EQ(offset(), contentEnd + viewHeight / 8);
}

TEST_F(AScrollView, EndsAFlickAtTheSamePlaceWhetherTimePassesInFramesOrAtOnce)
{
    flick(-500);
    Clock::shared().advance(5);
    const double atOnce = offset();
    page->scrollTo(0);
    flick(-500);
    for (int frame = 0; frame < 500; ++frame)
        Clock::shared().advance(0.01);
    EXPECT_NEAR(offset(), atOnce, 5);
}

TEST_F(AScrollView, StopsWhenAFingerComesDownDuringItsFlick)
{
    flick(-500);
    Clock::shared().advance(0.1);
    const double caught = offset();
    window->touchDown({ { 100, 100 } });
    Clock::shared().advance(0.1);
    EXPECT_EQ(offset(), caught);
    release();
    Clock::shared().advance(1);
    EXPECT_EQ(offset(), caught);
}

TEST_F(AScrollView, EndsItsFlickWhenItIsScrolledInCode)
{
    flick(-500);
    page->scrollTo(300);
    EXPECT_FALSE(page->isMoving());
    Clock::shared().advance(1);
    EXPECT_EQ(offset(), 300);
}

TEST_F(AScrollView, IsNotKeptAliveByItsMovement)
{
    bool isGone = false;
    page->onDestroyed = [&] { isGone = true; };
    flick(-500);
    EXPECT_EQ(page->retainCount(), 2u);
    page->removeFromParent();
    page = nullptr;
    EXPECT_TRUE(isGone);
    Clock::shared().advance(10);
}

/// A scroll view. Counts how often it needs drawing.
class TheScrollIndicator : public AScrollView {
protected:
    TheScrollIndicator()
    {
        window->layOutAll();
        window->onInvalidate = [this](const Rect&) { ++redrawings; };
    }
    ~TheScrollIndicator() override { window->onInvalidate = nullptr; }

    /// How often the view needed drawing within this time.
    int redrawingsIn(double seconds)
    {
        redrawings = 0;
        Clock::shared().advance(seconds);
        return redrawings;
    }

    int redrawings = 0;
};

TEST_F(TheScrollIndicator, StaysForAMomentThenFadesAndIsDrawnNoMore)
{
    page->scrollBy(50);
    EXPECT_EQ(redrawingsIn(0.79), 0);
    EXPECT_GT(redrawingsIn(0.2), 5);
    EXPECT_GT(redrawingsIn(0.2), 5);
    EXPECT_EQ(redrawingsIn(5), 0);
}

TEST_F(TheScrollIndicator, StaysLongerWhenTheViewIsScrolledAgain)
{
    page->scrollBy(50);
    Clock::shared().advance(0.7);
    page->scrollBy(50);
    EXPECT_EQ(redrawingsIn(0.79), 0);
    EXPECT_GT(redrawingsIn(0.4), 5);
}

} // namespace

} // namespace brimsound::tests
