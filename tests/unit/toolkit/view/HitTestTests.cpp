#include "tests/unit/toolkit/Geometry.h"
#include "toolkit/window/Window.h"

#include <gtest/gtest.h>

namespace brimsound::tests {

namespace {

using toolkit::make;
using toolkit::makeRect;
using toolkit::Point;
using toolkit::Ref;
using toolkit::Size;
using toolkit::View;
using toolkit::Window;

/// Two overlapping views in a box in a window.
class AHitTest : public testing::Test {
protected:
    AHitTest()
    {
        window->add(*box);
        box->add(*below);
        box->add(*above);
    }

    const View* hit(Point point) const { return window->hitTest(point); }

    const Ref<Window> window = make<Window>(Size { 200, 200 });
    const Ref<View> box = make<View>(makeRect(50, 50, 100, 100));
    const Ref<View> below = make<View>(makeRect(10, 10, 50, 50));
    const Ref<View> above = make<View>(makeRect(30, 30, 50, 50));
};

TEST_F(AHitTest, FindsTheFrontmostView)
{
    EXPECT_EQ(hit({ 70, 70 }), below.get());
    EXPECT_EQ(hit({ 90, 90 }), above.get());
    box->add(*below);
    EXPECT_EQ(hit({ 90, 90 }), below.get());
}

TEST_F(AHitTest, FindsTheViewAroundWhereThereIsNoChild)
{
    EXPECT_EQ(hit({ 55, 55 }), box.get());
    EXPECT_EQ(hit({ 10, 10 }), window.get());
}

TEST_F(AHitTest, CountsTheTopLeftEdgesInAndTheOthersOut)
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

TEST_F(AHitTest, DoesNotFindThePartOfAViewThatIsOutsideItsParent)
{
    below->setFrame(makeRect(-40, 0, 60, 60));
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

TEST_F(AHitTest, PassesOverAViewThatIsNotInteractiveAndEverythingInIt)
{
    const auto inAbove = make<View>(makeRect(0, 0, 50, 50));
    above->add(*inAbove);
    EXPECT_EQ(hit({ 90, 90 }), inAbove.get());
    above->setInteractive(false);
    EXPECT_FALSE(above->isInteractive());
    EXPECT_EQ(hit({ 90, 90 }), below.get());
}

TEST_F(AHitTest, PassesOverAViewThatIgnoresTouches)
{
    class Ignoring : public View {
    public:
        using View::View;
        bool ignoresTouches() const override { return true; }
    };
    box->add(*make<Ignoring>(makeRect(0, 0, 100, 100)));
    EXPECT_EQ(hit({ 90, 90 }), above.get());
}

TEST_F(AHitTest, FollowsAScrolledOrigin)
{
    box->setOrigin({ 0, 40 });
    EXPECT_EQ(hit({ 90, 50 }), above.get());
    EXPECT_EQ(hit({ 65, 60 }), below.get());
    EXPECT_EQ(hit({ 90, 95 }), box.get());
}

TEST_F(AHitTest, ConvertsPointsThroughFramesAndScrolledOrigins)
{
    box->setOrigin({ 0, 40 });
    EXPECT_EQ(above->fromWindow({ 90, 60 }), (Point { 10, 20 }));
    EXPECT_EQ(above->toWindow({ 10, 20 }), (Point { 90, 60 }));
    EXPECT_EQ(box->fromWindow({ 90, 60 }), (Point { 40, 50 }));
    EXPECT_EQ(window->fromWindow({ 5, 6 }), (Point { 5, 6 }));
}

} // namespace

} // namespace brimsound::tests
