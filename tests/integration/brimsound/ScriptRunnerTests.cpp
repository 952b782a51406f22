#include "desktop/brimsound/ScriptRunner.h"

#include "tests/integration/brimsound/RunningQt.h"
#include "tests/support/MediaServer.h"
#include "tests/support/TemporaryRoot.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimsound::tests {
namespace {

using namespace desktop;
using testing::ElementsAre;

/// Records the control events of a slider.
class EventListener : public NSObject {
public:
    explicit EventListener(UISlider& slider)
    {
        slider.addTargetActionForControlEvents(*this, "down", UIControlEventTouchDown);
        slider.addTargetActionForControlEvents(*this, "inside", UIControlEventTouchDragInside);
        slider.addTargetActionForControlEvents(*this, "outside", UIControlEventTouchDragOutside);
        slider.addTargetActionForControlEvents(*this, "up inside", UIControlEventTouchUpInside);
        slider.addTargetActionForControlEvents(*this, "up outside", UIControlEventTouchUpOutside);
        slider.addTargetActionForControlEvents(*this, "cancelled", UIControlEventTouchCancel);
    }

    std::span<const Method> methods() const override
    {
        static const std::array table {
            method<&EventListener::down>("down"),
            method<&EventListener::inside>("inside"),
            method<&EventListener::outside>("outside"),
            method<&EventListener::upInside>("up inside"),
            method<&EventListener::upOutside>("up outside"),
            method<&EventListener::cancelled>("cancelled"),
        };
        return table;
    }

    void down() { heard.emplace_back("down"); }
    void inside() { heard.emplace_back("inside"); }
    void outside() { heard.emplace_back("outside"); }
    void upInside() { heard.emplace_back("up inside"); }
    void upOutside() { heard.emplace_back("up outside"); }
    void cancelled() { heard.emplace_back("cancelled"); }

    std::vector<std::string> heard;
};

class AGesture : public testing::Test {
protected:
    AGesture() { host.window().layOut(); }

    /// The events of the third band's slider while the lines are executed.
    std::vector<std::string> eventsOf(std::initializer_list<const char*> lines)
    {
        // Outlives the sliders, which do not retain it.
        listener = make<EventListener>(*host.controller()->sliders()->at(3));
        for (const auto* line : lines)
            runner.run(line);
        return listener->heard;
    }

    RunningQt qt;
    TemporaryRoot root;
    TestBus bus;
    MediaServer server;
    RetainPtr<EventListener> listener;
    Trace trace { stdout };
    MainLoop loop { MainLoop::Time::Virtual };
    // Tall enough to show the sliders.
    PaneHost host { { 320, 1000 } };
    ScriptRunner runner { host, loop, trace, 1, [](toolkit::Size) {} };
};

TEST_F(AGesture, MovesAndEndsInsideOfTheSlider)
{
    EXPECT_THAT(eventsOf({ "touch 3", "drag 3 1", "lift 3" }), ElementsAre("down", "inside", "up inside"));
}

TEST_F(AGesture, MovesAndEndsOutsideOfTheSliderWhenItSaysSo)
{
    EXPECT_THAT(eventsOf({ "touch 3", "drag 3 1 outside", "lift 3 outside" }),
        ElementsAre("down", "outside", "up outside"));
}

TEST_F(AGesture, IsCanceled)
{
    EXPECT_THAT(eventsOf({ "touch 3", "drag 3 1", "cancel 3" }), ElementsAre("down", "inside", "cancelled"));
}

TEST_F(AGesture, OfARawFingerIsCanceledToo)
{
    EXPECT_THAT(
        eventsOf({ "finger down 175 541", "wait 0.2", "finger cancel" }), ElementsAre("down", "cancelled"));
}

} // namespace
} // namespace brimsound::tests
