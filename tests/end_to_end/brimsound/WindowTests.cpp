#include "tests/end_to_end/brimsound/Program.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/Screen.h"
#include "tests/support/TestBus.h"
#include "tests/support/WaylandScreen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace brimsound::tests {
namespace {

using testing::TestWithParam;
using testing::Values;

enum class Display { X11, Wayland };

/// The pane under a script, in a window of 320 by 568 points.
class ARealWindow : public TestWithParam<Display> {
protected:
    ARealWindow()
    {
        if (GetParam() == Display::Wayland)
            _wayland.emplace(_screen, 320, 568);
        open();
    }

    void open()
    {
        pane.emplace(root.path(), std::vector<std::string> {});
        // The answer arrives when the window is shown.
        pane->say("wait 0.2");
        pane->state();
    }

    /// Performs the actions in the window with xdotool and waits for the end.
    void point(const std::vector<std::string>& actions)
    {
        const auto window = _wayland ? std::pair("--class", "Weston") : std::pair("--name", "Brimsound");
        std::vector<std::string> command { "env", "DISPLAY=" + _screen.name(), "xdotool", "search",
            "--onlyvisible", window.first, window.second };
        command.insert(command.end(), actions.begin(), actions.end());
        desktop::ChildProcess xdotool(command);
        ASSERT_EQ(xdotool.exitStatus(std::chrono::seconds(20)), 0);
        // The pane handles window events while it waits for a line.
        pane->say("wait 0.2");
    }

private:
    Screen _screen;
    std::optional<WaylandScreen> _wayland;
    TestBus _bus;

protected:
    TemporaryRoot root;
    std::optional<RunningProgram> pane;
};

INSTANTIATE_TEST_SUITE_P(On, ARealWindow, Values(Display::X11, Display::Wayland),
    [](const auto& instance) { return instance.param == Display::X11 ? "X11" : "Wayland"; });

/// The trace of a gesture until its notification is delivered.
std::vector<Json> gesture(RunningProgram& pane)
{
    std::vector<Json> lines;
    do {
        lines.push_back(pane.next());
    } while (!lines.back().is_null() && lines.back().at("effect") != "delivered");
    return lines;
}

TEST_P(ARealWindow, ReactsToAPointerAsToAScript)
{
    // The third band's thumb on the first screen.
    point({ "mousemove", "--window", "%1", "175", "541", "mousedown", "1" });
    const auto touched = pane->next();
    EXPECT_EQ(touched.at("effect"), "message");
    EXPECT_EQ(touched.at("vals"), Json(std::vector<double>(11, 0.0)));

    point({ "mousemove", "--window", "%1", "200", "541", "mousemove", "--window", "%1", "238", "541" });
    point({ "mouseup", "1" });
    auto byPointer = gesture(*pane);
    ASSERT_GE(byPointer.size(), 4u);
    const auto lastDrag = byPointer[byPointer.size() - 4];
    EXPECT_EQ(lastDrag.at("effect"), "message");
    EXPECT_EQ(lastDrag.at("vals")[3], 6.0);
    EXPECT_EQ(lastDrag.at("vals")[0], -6.0);
    const auto pointed = pane->state();

    pane->say("touch 3");
    pane->say("drag 3 0");
    pane->say("drag 3 6");
    pane->say("lift 3");
    pane->say("wait 0.1");
    const auto byScript = gesture(*pane);
    EXPECT_EQ(byScript[byScript.size() - 4], lastDrag);
    for (std::size_t fromEnd = 1; fromEnd <= 4; ++fromEnd)
        EXPECT_EQ(byScript[byScript.size() - fromEnd], byPointer[byPointer.size() - fromEnd]);
    EXPECT_EQ(pane->state(), pointed);
}

TEST_P(ARealWindow, ScrollsByTheWheelWithoutMovingASlider)
{
    const auto before = pane->state();
    point({ "mousemove", "--window", "%1", "175", "541", "click", "5", "click", "5" });
    EXPECT_EQ(pane->state(), before);
    // The content has moved up, so the same position is now on a lower slider.
    point({ "mousedown", "1", "mouseup", "1" });
    const auto pressed = pane->next();
    EXPECT_EQ(pressed.at("effect"), "message");
}

TEST_P(ARealWindow, CanBeResized)
{
    if (GetParam() == Display::Wayland)
        GTEST_SKIP() << "the test's compositor gives every window its own size";
    pane->say("resize 400 700");
    pane->say("wait 0.2");
    pane->say("touch 0");
    pane->say("drag 0 6");
    // The sliders are 40 points narrower than the row; the thumb's center stays 14 points from their ends.
    const double bar = pane->state().at("blackBar")[0];
    EXPECT_NEAR(bar, 35 + 14 + (360 - 28) * (12 - 6) / 24.0, 1e-4);
}

TEST_P(ARealWindow, ReceivesNotificationsOfOtherProcessesByItself)
{
    root.write("/var/mobile/Library/Preferences/com.quorvix.brimsound.plist",
        "<plist><dict><key>PREAMP</key><real>-5</real></dict></plist>");
    pane->say("post com.quorvix.brimsound.settingsfinishnotify");
    EXPECT_EQ(pane->next("delivered").at("effect"), "delivered");
    EXPECT_EQ(pane->state().at("sliders")[0], -5.0);
}

TEST_P(ARealWindow, BringsASliderToZeroByADoubleClickOnItsThumbAsADragDoes)
{
    pane->say("touch 3");
    pane->say("drag 3 6");
    pane->say("lift 3");
    pane->say("wait 0.1");
    gesture(*pane);
    point({ "mousemove", "--window", "%1", "238", "541", "click", "--repeat", "2", "--delay", "50", "1" });
    const auto firstClick = gesture(*pane);
    EXPECT_EQ(firstClick.front().at("vals")[3], 6.0);
    const auto secondClick = gesture(*pane);
    ASSERT_GE(secondClick.size(), 5u);
    EXPECT_EQ(secondClick[0].at("vals")[3], 6.0) << "the touch itself moves nothing";
    EXPECT_EQ(secondClick[1].at("vals")[3], 0.0);
    EXPECT_EQ(pane->state().at("sliders")[3], 0.0);
}

TEST(AProgramThatCannotReachItsDisplay, IsHeadlessByItself)
{
    const EnvironmentVariable display("DISPLAY", ":4711");
    const EnvironmentVariable platform("QT_QPA_PLATFORM", nullptr);
    const TemporaryRoot root;
    const TestBus bus;
    const auto run = runProgram({ "--root", root.path(), "--snapshot", root.path() / "pane.png" });
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_TRUE(std::filesystem::exists(root.path() / "pane.png"));
}

} // namespace
} // namespace brimsound::tests
