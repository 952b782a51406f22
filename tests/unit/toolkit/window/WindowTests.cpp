#include "toolkit/window/Window.h"

#include "tests/unit/toolkit/EventLog.h"
#include "tests/unit/toolkit/Geometry.h"
#include "tests/unit/toolkit/Rows.h"
#include "toolkit/control/Button.h"

#include <gmock/gmock.h>

namespace brimsound::tests {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using toolkit::AccessibleChange;
using toolkit::Button;
using toolkit::keyWindow;
using toolkit::make;
using toolkit::makeRect;
using toolkit::Size;
using toolkit::View;
using toolkit::Window;

TEST(TheKeyWindow, IsTheWindowThatWasMadeLastWhileThatExists)
{
    EXPECT_EQ(keyWindow(), nullptr);
    auto first = make<Window>(Size { 100, 100 });
    EXPECT_EQ(keyWindow(), first.get());
    auto second = make<Window>(Size { 100, 100 });
    EXPECT_EQ(keyWindow(), second.get());
    first = nullptr;
    EXPECT_EQ(keyWindow(), second.get());
    second = nullptr;
    EXPECT_EQ(keyWindow(), nullptr);
}

TEST(AWindow, LaysOutWhatATouchHits)
{
    class Placing : public View {
    public:
        void layOut() override { children().front()->setFrame(bounds()); }
    };
    const auto window = make<Window>(Size { 100, 100 });
    const auto outer = make<Placing>();
    const auto button = make<Button>();
    EventLog log;
    log.listenTo(*button);
    outer->add(*button);
    outer->setFrame(makeRect(0, 0, 100, 100));
    window->add(*outer);
    window->touchDown({ { 50, 50 } });
    EXPECT_THAT(log.take(), ElementsAre("down"));
    window->touchUp({ 50, 50 });
}

TEST(AWindow, ScrollsWhatLiesUnderTheWheel)
{
    Rows rows { { 20 } };
    const TableInWindow list(rows, { 320, 440 });
    list.window->add(*make<View>(makeRect(0, 400, 320, 40)));
    list.window->scroll({ 100, 100 }, { 0, 30 });
    EXPECT_EQ(list.offset(), 30);
    list.window->scroll({ 100, 100 }, { 5, -10 });
    EXPECT_EQ(list.offset(), 20);
    list.window->scroll({ 100, 420 }, { 0, 30 });
    list.window->scroll({ 100, 500 }, { 0, 30 });
    EXPECT_EQ(list.offset(), 20) << "the list does not lie there";
}

TEST(AWindow, TellsAssistiveTechnologyOfViewsThatComeAndGo)
{
    const auto window = make<Window>(Size { 100, 100 });
    const auto view = make<View>();
    std::vector<std::pair<const View*, AccessibleChange>> told;
    window->onAccessibleChange
        = [&](const View& changed, AccessibleChange change) { told.emplace_back(&changed, change); };
    window->add(*view);
    view->accessibleChanged(AccessibleChange::ValueChanged);
    view->removeFromParent();
    view->accessibleChanged(AccessibleChange::ValueChanged);
    EXPECT_THAT(told,
        ElementsAre(std::pair { view.get(), AccessibleChange::Shown },
            std::pair { view.get(), AccessibleChange::ValueChanged },
            std::pair { view.get(), AccessibleChange::WillHide }));
    window->onAccessibleChange = nullptr;
}

TEST(AWindow, WorksWithoutListeners)
{
    const auto window = make<Window>(Size { 100, 100 });
    const auto view = make<View>(makeRect(0, 0, 10, 10));
    window->add(*view);
    view->setNeedsDisplay();
    view->removeFromParent();
    EXPECT_THAT(window->children(), IsEmpty());
}

} // namespace

} // namespace brimsound::tests
