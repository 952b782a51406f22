#include "toolkit/window/Overlay.h"

#include "tests/unit/toolkit/EventLog.h"
#include "tests/unit/toolkit/Geometry.h"
#include "toolkit/control/Button.h"
#include "toolkit/time/Clock.h"
#include "toolkit/window/Sheet.h"
#include "toolkit/window/TitleBar.h"
#include "toolkit/window/Window.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::Button;
using toolkit::Clock;
using toolkit::Color;
using toolkit::Key;
using toolkit::KeyStroke;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Overlay;
using toolkit::Ref;
using toolkit::Sheet;
using toolkit::Size;
using toolkit::View;
using toolkit::Window;

/// An overlay over a button.
class AnOverlay : public testing::Test {
protected:
    AnOverlay()
    {
        window->add(*button);
        log.listenTo(*button);
    }
    ~AnOverlay() override { Clock::shared().advance(1); }

    void tap() const
    {
        window->touchDown({ { 20, 20 } });
        window->touchUp({ 20, 20 });
    }

    EventLog log;
    const Ref<Window> window = make<Window>(Size { 320, 400 });
    const Ref<Button> button = make<Button>(makeRect(0, 0, 100, 100));
    const Ref<Overlay> overlay = make<Overlay>(0.4);
};

TEST_F(AnOverlay, DimsTheWholeWindow)
{
    overlay->appearIn(*window, false);
    EXPECT_EQ(overlay->parent(), window.get());
    EXPECT_EQ(overlay->frame(), makeRect(0, 0, 320, 400));
    EXPECT_EQ(overlay->background(), (Color { 0, 0, 0, 0.4 }));
    EXPECT_EQ(overlay->alpha(), 1);
}

TEST_F(AnOverlay, TakesTheTouchesFromWhatLiesBelow)
{
    overlay->appearIn(*window, true);
    tap();
    EXPECT_THAT(log.take(), IsEmpty());
    EXPECT_FALSE(button->isReachable());
    overlay->disappear(false);
    tap();
    EXPECT_THAT(log.take(), ElementsAre("down", "up inside"));
    EXPECT_EQ(overlay->parent(), nullptr);
}

TEST_F(AnOverlay, FadesInWithinAFifthOfASecond)
{
    overlay->appearIn(*window, true);
    EXPECT_NEAR(overlay->alpha(), 0.1, 1e-9);
    Clock::shared().advance(0.1);
    EXPECT_NEAR(overlay->alpha(), 0.55, 1e-6);
    Clock::shared().advance(0.11);
    EXPECT_EQ(overlay->alpha(), 1);
}

TEST_F(AnOverlay, FadesOutWithinAFifthOfASecondAndLeavesTheWindow)
{
    overlay->appearIn(*window, false);
    overlay->disappear(true);
    EXPECT_EQ(overlay->alpha(), 1);
    Clock::shared().advance(0.1);
    EXPECT_NEAR(overlay->alpha(), 0.5, 1e-6);
    EXPECT_EQ(overlay->parent(), window.get());
    Clock::shared().advance(0.11);
    EXPECT_EQ(overlay->parent(), nullptr);
}

TEST_F(AnOverlay, TakesNoTouchesWhileItFadesOut)
{
    overlay->appearIn(*window, false);
    overlay->disappear(true);
    tap();
    EXPECT_THAT(log.take(), ElementsAre("down", "up inside"));
    EXPECT_TRUE(button->isReachable());
}

TEST_F(AnOverlay, FadesOutFromWhereItWasFadingIn)
{
    overlay->appearIn(*window, true);
    Clock::shared().advance(0.1);
    const double alpha = overlay->alpha();
    overlay->disappear(true);
    EXPECT_EQ(overlay->alpha(), alpha);
    Clock::shared().advance(0.01);
    EXPECT_LT(overlay->alpha(), alpha);
}

TEST_F(AnOverlay, MayBeGoneBeforeItHasFadedOut)
{
    auto other = make<Overlay>(0.4);
    other->appearIn(*window, false);
    other->disappear(true);
    other->removeFromParent();
    other = nullptr;
    Clock::shared().advance(1);
    EXPECT_THAT(window->children(), ElementsAre(button));
}

TEST(ASheet, KeepsItsContentAsLargeAsTheWindow)
{
    const auto window = make<Window>(Size { 320, 400 });
    const auto content = make<View>();
    const auto sheet = make<Sheet>(*content, nullptr);
    sheet->appearIn(*window, false);
    window->layOutAll();
    EXPECT_EQ(content->parent(), sheet.get());
    EXPECT_EQ(content->frame(), makeRect(0, 0, 320, 400));
    sheet->setFrame(makeRect(0, 0, 200, 300));
    window->layOutAll();
    EXPECT_EQ(content->frame(), makeRect(0, 0, 200, 300));
}

TEST(ASheet, KeepsTheFocusFromWhatLiesBelow)
{
    const auto window = make<Window>(Size { 320, 400 });
    const auto button = make<Button>(makeRect(0, 0, 100, 100));
    button->setLabel("Below");
    window->add(*button);
    const auto sheet = make<Sheet>(*make<View>(), nullptr);
    sheet->appearIn(*window, false);
    window->keyPressed(Key::Tab, KeyStroke::First);
    EXPECT_EQ(window->focus().view(), nullptr);
    sheet->disappear(false);
    window->keyPressed(Key::Tab, KeyStroke::First);
    EXPECT_EQ(window->focus().view(), button.get());
}

TEST(ASheet, IsToldOfEachEscapeOnce)
{
    const auto window = make<Window>(Size { 320, 400 });
    int escapes = 0;
    const auto sheet = make<Sheet>(*make<View>(), [&] { ++escapes; });
    sheet->appearIn(*window, false);
    EXPECT_TRUE(window->keyPressed(Key::Escape, KeyStroke::First));
    EXPECT_FALSE(window->keyPressed(Key::Escape, KeyStroke::Repeated));
    EXPECT_EQ(escapes, 1);
}

TEST(ASheet, KeepsEscapeFromWhatLiesBelowThoughItDoesNothing)
{
    const auto window = make<Window>(Size { 320, 400 });
    const auto button = make<Button>(makeRect(0, 0, 320, 400));
    EventLog log;
    log.listenTo(*button);
    window->add(*button);
    const auto sheet = make<Sheet>(*make<View>(), nullptr);
    sheet->appearIn(*window, false);
    EXPECT_TRUE(window->keyPressed(Key::Escape, KeyStroke::First));
    EXPECT_THAT(log.take(), IsEmpty());
}

TEST(ATitleBar, CentersItsTitleBetweenItsMargins)
{
    const auto bar = make<toolkit::TitleBar>("Equalizer");
    bar->setFrame(makeRect(0, 0, 320, toolkit::TitleBar::height));
    bar->layOutIfNeeded();
    ASSERT_EQ(bar->children().size(), 1u);
    const auto& title = dynamic_cast<toolkit::Label&>(*bar->children().front());
    EXPECT_EQ(title.text(), "Equalizer");
    EXPECT_EQ(title.alignment(), toolkit::Alignment::Center);
    EXPECT_EQ(title.frame(), makeRect(15, 0, 290, 44));
}

} // namespace

} // namespace brimsound::tests
