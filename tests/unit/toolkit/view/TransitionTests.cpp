#include "tests/unit/toolkit/Geometry.h"
#include "toolkit/time/Clock.h"
#include "toolkit/view/Transition.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

#include <utility>

namespace brimsound::tests {

namespace {

using testing::Contains;
using testing::IsEmpty;
using toolkit::Clock;
using toolkit::Color;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Rect;
using toolkit::Size;
using toolkit::Transition;
using toolkit::View;
using toolkit::Window;

constexpr auto here = makeRect(0, 0, 20, 10);
constexpr auto there = makeRect(100, 50, 40, 30);
constexpr Color black { 0, 0, 0 };
constexpr Color white { 1, 1, 1 };

void moveIn(double seconds, View& view, const Rect& frame)
{
    View::animate(seconds, [&] { view.setFrame(frame); });
}

TEST(AnAnimatedView, HasItsNewFrameAtOnceAndShowsOnItsWay)
{
    const auto view = make<View>(here);
    EXPECT_FALSE(view->isMoving());
    moveIn(0.2, *view, there);
    EXPECT_EQ(view->frame(), there);
    EXPECT_EQ(view->bounds().size, there.size);
    EXPECT_EQ(view->shownFrame(), here);
    EXPECT_TRUE(view->isMoving());

    Clock::shared().advance(0.1);
    EXPECT_EQ(view->shownFrame().origin.y * 2, view->shownFrame().origin.x);
    EXPECT_NEAR(view->shownFrame().origin.x, 50, 15);
    Clock::shared().advance(0.11);
    EXPECT_EQ(view->shownFrame(), there);
    EXPECT_FALSE(view->isMoving());
}

TEST(AnAnimatedView, StartsSlowly)
{
    const auto view = make<View>(here);
    moveIn(1, *view, there);
    Clock::shared().advance(0.1);
    EXPECT_LT(view->shownFrame().origin.x, 5);
    Clock::shared().advance(1);
}

TEST(AnAnimatedView, FadesAndChangesItsColor)
{
    const auto view = make<View>(here);
    view->setBackground(black);
    View::animate(0.5, [&] {
        view->setAlpha(0);
        view->setBackground(white);
    });
    EXPECT_EQ(view->alpha(), 0);
    EXPECT_EQ(view->shownAlpha(), 1);
    EXPECT_EQ(view->shownBackground(), black);
    Clock::shared().advance(0.25);
    EXPECT_NEAR(view->shownAlpha(), 0.5, 0.05);
    EXPECT_NEAR(view->shownBackground().green, 0.5, 0.05);
    Clock::shared().advance(0.26);
    EXPECT_EQ(view->shownAlpha(), 0);
    EXPECT_EQ(view->shownBackground(), white);
}

TEST(AnAnimatedView, FadesItsColorInAndOutWhereThereIsNone)
{
    const auto view = make<View>(here);
    View::animate(0.5, [&] { view->setBackground(white); });
    Clock::shared().advance(0.25);
    EXPECT_NEAR(view->shownBackground().alpha, 0.5, 0.05);
    Clock::shared().advance(0.26);
    View::animate(0.5, [&] { view->setBackground(std::nullopt); });
    Clock::shared().advance(0.25);
    EXPECT_NEAR(view->shownBackground().alpha, 0.5, 0.05);
    Clock::shared().advance(0.26);
    EXPECT_EQ(view->shownBackground().alpha, 0);
}

TEST(AnAnimatedView, ContinuesFromWhereItShowsWhenItIsAnimatedAgain)
{
    const auto view = make<View>(here);
    moveIn(0.2, *view, there);
    Clock::shared().advance(0.1);
    const auto midway = view->shownFrame();
    moveIn(0.2, *view, here);
    EXPECT_EQ(view->shownFrame(), midway);
    Clock::shared().advance(0.15);
    EXPECT_NE(view->shownFrame(), here);
    Clock::shared().advance(0.1);
    EXPECT_EQ(view->shownFrame(), here);
}

TEST(AnAnimatedView, StartsAtItsFormerValueOnRequest)
{
    const auto view = make<View>(here);
    moveIn(0.2, *view, there);
    Clock::shared().advance(0.1);
    const auto outer = std::exchange(Transition::changes(), { .duration = 0.2, .fromValue = true });
    view->setFrame(here);
    Transition::changes() = outer;
    EXPECT_EQ(view->shownFrame(), there);
    Clock::shared().advance(0.21);
    EXPECT_EQ(view->shownFrame(), here);
}

TEST(AnAnimatedView, ChangesAtOnceWhatIsSetWithoutAnAnimation)
{
    const auto view = make<View>(here);
    View::animate(0.5, [&] {
        view->setAlpha(0);
        view->setFrame(there);
    });
    Clock::shared().advance(0.1);
    view->setAlpha(1);
    EXPECT_EQ(view->shownAlpha(), 1);
    EXPECT_NE(view->shownFrame(), there) << "the other movement goes on";
    Clock::shared().advance(1);
    EXPECT_EQ(view->shownAlpha(), 1);
}

TEST(AnAnimatedView, MayBeDestroyedOnItsWay)
{
    auto view = make<View>(here);
    moveIn(0.2, *view, there);
    EXPECT_EQ(view->retainCount(), 1u);
    view = nullptr;
    Clock::shared().advance(1);
}

TEST(AnAnimatedView, IsTouchedAtItsNewPlace)
{
    const auto window = make<Window>(Size { 300, 300 });
    const auto view = make<View>(here);
    window->add(*view);
    moveIn(0.2, *view, there);
    EXPECT_EQ(window->hitTest({ 110, 60 }), view.get());
    EXPECT_EQ(window->hitTest({ 5, 5 }), window.get());
}

TEST(AnAnimatedView, IsPaintedAgainWhereItWasAndWhereItShows)
{
    const auto window = make<Window>(Size { 300, 300 });
    const auto view = make<View>(here);
    window->add(*view);
    moveIn(0.2, *view, there);
    Clock::shared().advance(0.1);
    const auto before = view->shownFrame();
    std::vector<Rect> parts;
    window->onInvalidate = [&](const Rect& part) { parts.push_back(part); };
    Clock::shared().advance(0.001);
    EXPECT_THAT(parts, Contains(before));
    EXPECT_THAT(parts, Contains(view->shownFrame()));
    Clock::shared().advance(1);
    EXPECT_THAT(parts, Contains(there));
    parts.clear();
    Clock::shared().advance(1);
    EXPECT_THAT(parts, IsEmpty());
    window->onInvalidate = nullptr;
}

TEST(AnimatingChanges, ForZeroSecondsMakesThemAtOnce)
{
    const auto view = make<View>(here);
    moveIn(0, *view, there);
    EXPECT_EQ(view->shownFrame(), there);
    EXPECT_FALSE(view->isMoving());
}

TEST(AnimatingChanges, WithinOtherChangesTakesItsOwnTime)
{
    const auto inner = make<View>(here);
    const auto outer = make<View>(here);
    View::animate(1, [&] {
        moveIn(0.1, *inner, there);
        outer->setFrame(there);
    });
    Clock::shared().advance(0.2);
    EXPECT_EQ(inner->shownFrame(), there);
    EXPECT_NE(outer->shownFrame(), there);
    Clock::shared().advance(1);
    EXPECT_EQ(outer->shownFrame(), there);
}

TEST(AnimatingChanges, CompletesOnceWhenTheTimeIsOver)
{
    const auto view = make<View>(here);
    int completions = 0;
    View::animate(
        0.3, [&] { view->setFrame(there); }, [&] { ++completions; });
    Clock::shared().advance(0.29);
    EXPECT_EQ(completions, 0);
    Clock::shared().advance(0.02);
    EXPECT_EQ(completions, 1);
    Clock::shared().advance(1);
    EXPECT_EQ(completions, 1);
}

TEST(AnimatingChanges, CompletesThoughAViewWasSetElsewhereSince)
{
    const auto view = make<View>(here);
    int completions = 0;
    View::animate(
        0.3, [&] { view->setFrame(there); }, [&] { ++completions; });
    view->setFrame(here);
    Clock::shared().advance(1);
    EXPECT_EQ(completions, 1);
}

} // namespace

} // namespace brimsound::tests
