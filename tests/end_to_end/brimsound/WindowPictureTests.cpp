// What the window shows on a screen.
#include "tests/end_to_end/brimsound/Program.h"
#include "tests/end_to_end/brimsound/ScreenPicture.h"
#include "tests/support/TestBus.h"
#include "tests/support/WaylandScreen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>
#include <tuple>

namespace brimsound::tests {
namespace {

using testing::Combine;
using testing::TestWithParam;
using testing::Values;

enum class Display { X11, Wayland };

/// The window on a screen with that many pixels per point.
class APaintedWindow : public TestWithParam<std::tuple<Display, const char*>> {
protected:
    APaintedWindow()
    {
        // Into the lower right corner of the compositor's window. Without a pointer in it, the compositor
        // draws one of its own over the pane.
        desktop::ChildProcess pointer({ "xdotool", "mousemove", "598", "898" });
        pointer.exitStatus(std::chrono::seconds(20));
        if (std::get<Display>(GetParam()) == Display::Wayland)
            _wayland.emplace(screen, 600, 900);
    }

    Screen screen;

private:
    std::optional<WaylandScreen> _wayland;
    TestBus _bus;
};

INSTANTIATE_TEST_SUITE_P(
    On, APaintedWindow, Combine(Values(Display::X11, Display::Wayland), Values("1", "1.25", "1.5")));

TEST_P(APaintedWindow, ShowsWhatASnapshotShows)
{
    const std::string scale = std::get<const char*>(GetParam());
    const EnvironmentVariable factor("QT_SCALE_FACTOR", scale.c_str());
    const TemporaryRoot root;
    RunningProgram pane(root.path(), {});
    pane.say("wait 0.2");
    // Each repaints a part of the window.
    for (const auto* line : { "touch 2", "drag 2 7", "drag 2 -4.4", "lift 2", "switch AUTO_PREAMP off" })
        pane.say(line);
    pane.say("wait 0.5");
    const auto file = root.path() / "pane.png";
    pane.say("snapshot \"" + file.string() + "\" " + scale);
    pane.say("wait 0.1");
    pane.state();
    const QImage snapshot(QString::fromStdString(file));
    ASSERT_GE(snapshot.width(), 320);

    // Without the pointer.
    const auto part = snapshot.rect().adjusted(0, 0, 0, -8);
    const auto expected = snapshot.copy(part).convertToFormat(QImage::Format_RGB32);
    const auto shown = [&] { return pictureOf(screen).copy(part); };
    for (int tries = 0; tries < 100 && shown() != expected; ++tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    EXPECT_TRUE(shown() == expected);
}

} // namespace
} // namespace brimsound::tests
