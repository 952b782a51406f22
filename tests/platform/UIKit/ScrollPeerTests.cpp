#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/ScrollPeer.h"
#include "platform/desktop/UIKit/Window.h"
#include "tests/platform/UIKit/Geometry.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::Clock;
using desktop::Window;

constexpr double viewHeight = 400;
/// The offset that shows the end of the contents.
constexpr double contentEnd = 600;

struct SheetPeer : desktop::ScrollPeer {
    double contentHeight() const override { return viewHeight + contentEnd; }
};

class Sheet : public UIView {
public:
    Sheet()
        : UIView(new SheetPeer)
    {
        setFrame(CGRectMake(0, 0, 320, viewHeight));
    }
};

class AScrollView : public testing::Test {
protected:
    AScrollView() { window->addSubview(*sheet); }

    desktop::ScrollPeer& peer() const { return desktop::scrollPeerOf(*sheet); }
    double offset() const { return sheet->bounds().origin.y; }

    /// Puts a finger down and has it move so far that it scrolls, though not yet anywhere.
    void grab(double y, double direction = 1) const
    {
        window->touchDown({ { 100, y - 20 * direction } });
        window->touchMove({ 100, y });
    }
    void pullTo(double y) const { window->touchMove({ 100, y }); }
    void letGo() const { window->touchUp({}); }

    /// A finger that moves with that speed, in points a second, and is lifted while it moves.
    void flick(double speed) const
    {
        grab(200, speed < 0 ? -1 : 1);
        for (int i = 1; i <= 5; ++i) {
            Clock::shared().advance(0.01);
            pullTo(200 + 0.01 * i * speed);
        }
        letGo();
    }

    const RetainPtr<Window> window = make<Window>(CGSize { 320, viewHeight });
    const RetainPtr<Sheet> sheet = make<Sheet>();
};

TEST_F(AScrollView, IsFoundAroundWhatLiesInIt)
{
    const auto inner = make<UIView>();
    sheet->addSubview(*inner);
    EXPECT_EQ(desktop::enclosingScrollView(*inner), sheet.get());
    EXPECT_EQ(desktop::enclosingScrollView(*sheet), sheet.get());
    EXPECT_EQ(desktop::enclosingScrollView(*window), nullptr);
}

TEST_F(AScrollView, ScrollsNoFurtherThanItsContents)
{
    peer().scrollTo(250);
    EXPECT_EQ(offset(), 250);
    peer().scrollTo(10000);
    EXPECT_EQ(offset(), contentEnd);
    peer().scrollBy(-100);
    EXPECT_EQ(offset(), contentEnd - 100);
    peer().scrollTo(-5);
    EXPECT_EQ(offset(), 0);
}

TEST_F(AScrollView, DoesNotScrollContentsThatFit)
{
    sheet->setFrame(CGRectMake(0, 0, 320, 2000));
    peer().scrollTo(100);
    EXPECT_EQ(offset(), 0);
}

TEST_F(AScrollView, ScrollsAsLittleAsItTakesToShowAPart)
{
    peer().scrollTo(200);
    peer().scrollIntoView(CGRectMake(0, 300, 10, 50));
    EXPECT_EQ(offset(), 200);
    peer().scrollIntoView(CGRectMake(0, 150, 10, 50));
    EXPECT_EQ(offset(), 150);
    peer().scrollIntoView(CGRectMake(0, 560, 10, 50));
    EXPECT_EQ(offset(), 210);
    peer().scrollIntoView(CGRectMake(0, 5000, 10, 50));
    EXPECT_EQ(offset(), contentEnd);
}

TEST_F(AScrollView, FollowsAFingerPointForPoint)
{
    peer().scrollTo(200);
    grab(200);
    EXPECT_EQ(offset(), 200);
    pullTo(150);
    EXPECT_EQ(offset(), 250);
    pullTo(300);
    EXPECT_EQ(offset(), 100);
}

TEST_F(AScrollView, StaysWhereAFingerThatRestedLeavesIt)
{
    peer().scrollTo(200);
    grab(200);
    Clock::shared().advance(0.02);
    pullTo(150);
    Clock::shared().advance(0.5);
    letGo();
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
    letGo();
    peer().scrollTo(contentEnd);
    grab(300, -1);
    pullTo(200);
    EXPECT_DOUBLE_EQ(offset(), contentEnd + atTop);
}

TEST_F(AScrollView, ComesBackFromBeyondItsEdges)
{
    grab(100);
    pullTo(300);
    letGo();
    Clock::shared().advance(0.1);
    EXPECT_LT(offset(), 0);
    Clock::shared().advance(2);
    EXPECT_EQ(offset(), 0);

    peer().scrollTo(contentEnd);
    grab(300, -1);
    pullTo(100);
    EXPECT_GT(offset(), contentEnd);
    letGo();
    Clock::shared().advance(2);
    EXPECT_EQ(offset(), contentEnd);
}

TEST_F(AScrollView, ComesBackFromBeyondItsEdgesAfterATapOnTheWay)
{
    grab(100);
    pullTo(300);
    letGo();
    Clock::shared().advance(0.1);
    window->touchDown({ { 100, 100 } });
    const double caught = offset();
    EXPECT_LT(caught, 0);
    Clock::shared().advance(0.1);
    EXPECT_EQ(offset(), caught);
    letGo();
    Clock::shared().advance(2);
    EXPECT_EQ(offset(), 0);
}

TEST_F(AScrollView, IsTakenFromWhereItIsByAFingerThatCatchesItBeyondItsEdge)
{
    grab(100);
    pullTo(300);
    letGo();
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
    const double lifted = offset();
    EXPECT_DOUBLE_EQ(lifted, 25);
    Clock::shared().advance(0.2);
    const double first = offset() - lifted;
    EXPECT_GT(first, 50);
    EXPECT_LT(first, 100);
    Clock::shared().advance(0.2);
    const double second = offset() - lifted - first;
    EXPECT_GT(second, 0);
    EXPECT_LT(second, first);
}

TEST_F(AScrollView, EndsAFlickWithinItsContents)
{
    flick(-500);
    Clock::shared().advance(10);
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

TEST_F(AScrollView, EndsAFlickTheSameWhetherTimePassesInFramesOrAtOnce)
{
    flick(-500);
    Clock::shared().advance(5);
    const double atOnce = offset();
    peer().scrollTo(0);
    flick(-500);
    for (int frame = 0; frame < 500; ++frame)
        Clock::shared().advance(0.01);
    EXPECT_NEAR(offset(), atOnce, 5);
}

TEST_F(AScrollView, StandsStillWhenAFingerComesDownOnItsFlick)
{
    flick(-500);
    Clock::shared().advance(0.1);
    const double caught = offset();
    window->touchDown({ { 100, 100 } });
    Clock::shared().advance(0.1);
    EXPECT_EQ(offset(), caught);
    letGo();
    Clock::shared().advance(1);
    EXPECT_EQ(offset(), caught);
}

TEST_F(AScrollView, EndsItsFlickWhenItIsScrolledInCode)
{
    flick(-500);
    peer().scrollTo(300);
    Clock::shared().advance(1);
    EXPECT_EQ(offset(), 300);
}

TEST_F(AScrollView, IsNotKeptAliveForLongAfterItsLastMovement)
{
    flick(-500);
    EXPECT_GT(sheet->retainCount(), 2u);
    Clock::shared().advance(10);
    EXPECT_EQ(sheet->retainCount(), 2u);
}

} // namespace

} // namespace brimsound::tests
