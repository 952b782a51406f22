#include "platform/desktop/UIKit/Clock.h"
#include "platform/desktop/UIKit/ViewPeer.h"
#include "platform/desktop/UIKit/Window.h"
#include "tests/platform/UIKit/Geometry.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using desktop::Clock;
using desktop::Color;
using desktop::peerOf;
using desktop::Window;
using testing::Contains;
using testing::IsEmpty;

const auto here = CGRectMake(0, 0, 20, 10);
const auto there = CGRectMake(100, 50, 40, 30);

RetainPtr<UIView> viewAt(const CGRect& frame)
{
    return make<UIView>(frame);
}

void moveIn(double seconds, UIView& view, const CGRect& frame)
{
    UIView::animateWithDurationAnimations(seconds, [&] { view.setFrame(frame); });
}

TEST(AnAnimatedView, IsThereAtOnceAndSeenOnItsWay)
{
    const auto view = viewAt(here);
    moveIn(0.2, *view, there);
    EXPECT_EQ(view->frame(), there);
    EXPECT_EQ(view->bounds().size, there.size);
    EXPECT_EQ(peerOf(*view).shownFrame(), here);

    Clock::shared().advance(0.1);
    EXPECT_EQ(peerOf(*view).shownFrame().origin.y * 2, peerOf(*view).shownFrame().origin.x);
    EXPECT_NEAR(peerOf(*view).shownFrame().origin.x, 50, 15);
    Clock::shared().advance(0.11);
    EXPECT_EQ(peerOf(*view).shownFrame(), there);
    EXPECT_EQ(peerOf(*view).animation, nullptr);
}

TEST(AnAnimatedView, FadesAndChangesItsColor)
{
    const auto view = viewAt(here);
    view->setBackgroundColor(UIColor::blackColor());
    UIView::animateWithDurationAnimations(0.5, [&] {
        view->setAlpha(0);
        view->setBackgroundColor(UIColor::whiteColor());
    });
    EXPECT_EQ(view->alpha(), 0);
    EXPECT_EQ(peerOf(*view).shownAlpha(), 1);
    EXPECT_EQ(peerOf(*view).shownBackground(), (Color { 0, 0, 0, 1 }));
    Clock::shared().advance(0.25);
    EXPECT_NEAR(peerOf(*view).shownAlpha(), 0.5, 0.05);
    EXPECT_NEAR(peerOf(*view).shownBackground().green, 0.5, 0.05);
    Clock::shared().advance(0.26);
    EXPECT_EQ(peerOf(*view).shownAlpha(), 0);
    EXPECT_EQ(peerOf(*view).shownBackground(), (Color { 1, 1, 1, 1 }));
}

TEST(AnAnimatedView, StartsAndEndsSlowly)
{
    EXPECT_NEAR(desktop::eased(0), 0, 1e-9);
    EXPECT_NEAR(desktop::eased(1), 1, 1e-9);
    EXPECT_NEAR(desktop::eased(0.5), 0.5, 1e-6);
    // Values of the curve's own equation, solved by hand for s = 1/4.
    const double x = 3 * 0.42 * 0.25 * 0.5625 + 3 * 0.58 * 0.0625 * 0.75 + 0.015625;
    EXPECT_NEAR(desktop::eased(x), 3 * 0.0625 * 0.75 + 0.015625, 1e-6);
    EXPECT_LT(desktop::eased(0.1), 0.05);
    EXPECT_GT(desktop::eased(0.9), 0.95);
}

TEST(AnAnimatedView, GoesOnFromWhereItIsSeen)
{
    const auto view = viewAt(here);
    moveIn(0.2, *view, there);
    Clock::shared().advance(0.1);
    const auto midway = peerOf(*view).shownFrame();
    moveIn(0.2, *view, here);
    EXPECT_EQ(peerOf(*view).shownFrame(), midway);
    Clock::shared().advance(0.15);
    EXPECT_NE(peerOf(*view).shownFrame(), here);
    Clock::shared().advance(0.1);
    EXPECT_EQ(peerOf(*view).shownFrame(), here);
}

TEST(AnAnimatedView, IsWhereItIsPutWithoutAnAnimation)
{
    const auto view = viewAt(here);
    UIView::animateWithDurationAnimations(0.5, [&] {
        view->setAlpha(0);
        view->setFrame(there);
    });
    Clock::shared().advance(0.1);
    view->setAlpha(1);
    EXPECT_EQ(peerOf(*view).shownAlpha(), 1);
    EXPECT_NE(peerOf(*view).shownFrame(), there) << "the other movement goes on";
    Clock::shared().advance(1);
    EXPECT_EQ(peerOf(*view).shownAlpha(), 1);
}

TEST(AnAnimatedView, MayGoAwayOnItsWay)
{
    auto view = viewAt(here);
    moveIn(0.2, *view, there);
    EXPECT_EQ(view->retainCount(), 1u);
    view = nullptr;
    Clock::shared().advance(1);
}

TEST(AnAnimatedView, IsTouchedWhereItIs)
{
    const auto window = make<Window>(CGSize { 300, 300 });
    const auto view = viewAt(here);
    window->addSubview(*view);
    moveIn(0.2, *view, there);
    EXPECT_EQ(desktop::hitTest(*window, { 110, 60 }), view.get());
    EXPECT_EQ(desktop::hitTest(*window, { 5, 5 }), window.get());
}

TEST(AnAnimatedView, IsPaintedAgainWhereItWasAndWhereItIsSeen)
{
    const auto window = make<Window>(CGSize { 300, 300 });
    const auto view = viewAt(here);
    window->addSubview(*view);
    moveIn(0.2, *view, there);
    Clock::shared().advance(0.1);
    const auto before = peerOf(*view).shownFrame();
    std::vector<CGRect> parts;
    window->onInvalidate = [&](const CGRect& part) { parts.push_back(part); };
    Clock::shared().advance(0.001);
    EXPECT_THAT(parts, Contains(before));
    EXPECT_THAT(parts, Contains(peerOf(*view).shownFrame()));
    Clock::shared().advance(1);
    EXPECT_THAT(parts, Contains(there));
    parts.clear();
    Clock::shared().advance(1);
    EXPECT_THAT(parts, IsEmpty());
    window->onInvalidate = nullptr;
}

TEST(AnAnimation, OfNoTimeMovesNothing)
{
    const auto view = viewAt(here);
    moveIn(0, *view, there);
    EXPECT_EQ(peerOf(*view).shownFrame(), there);
    EXPECT_EQ(peerOf(*view).animation, nullptr);
}

TEST(AnAnimation, WithinAnotherHasItsOwnTime)
{
    const auto inner = viewAt(here);
    const auto outer = viewAt(here);
    UIView::animateWithDurationAnimations(1, [&] {
        moveIn(0.1, *inner, there);
        outer->setFrame(there);
    });
    Clock::shared().advance(0.2);
    EXPECT_EQ(peerOf(*inner).shownFrame(), there);
    EXPECT_NE(peerOf(*outer).shownFrame(), there);
    Clock::shared().advance(1);
    EXPECT_EQ(peerOf(*outer).shownFrame(), there);
}

} // namespace

} // namespace brimsound::tests
