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
using testing::Values;

enum class Display { X11, Wayland };

/// A screen of an X server, and a session bus.
class AScreen : public testing::Test {
protected:
    AScreen()
    {
        // Into the lower right corner of the compositor's window. Without a pointer in it, the compositor
        // draws one of its own over the pane.
        desktop::ChildProcess pointer({ "xdotool", "mousemove", "598", "898" });
        pointer.exitStatus(std::chrono::seconds(20));
    }

    /// Compares the pane's window, whose upper left corner is at that pixel of the screen, with a snapshot.
    void expectSnapshot(RunningProgram& pane, const std::filesystem::path& folder, const std::string& scale,
        QPoint corner) const
    {
        const auto file = folder / "pane.png";
        pane.say("snapshot \"" + file.string() + "\" " + scale);
        pane.say("wait 0.1");
        pane.state();
        const QImage snapshot(QString::fromStdString(file));
        ASSERT_GE(snapshot.width(), 320);

        // Without the pointer.
        const auto part = snapshot.rect().adjusted(0, 0, 0, -8);
        const auto expected = snapshot.copy(part).convertToFormat(QImage::Format_RGB32);
        const auto shown = [&] { return pictureOf(screen).copy(part.translated(corner)); };
        for (int tries = 0; tries < 100 && shown() != expected; ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        EXPECT_TRUE(shown() == expected);
    }

    Screen screen;

private:
    TestBus _bus;
};

/// The window on a screen with that many pixels per point.
class APaintedWindow : public AScreen, public testing::WithParamInterface<std::tuple<Display, const char*>> {
protected:
    APaintedWindow()
    {
        if (std::get<Display>(GetParam()) == Display::Wayland)
            _wayland.emplace(screen, 600, 900);
    }

private:
    std::optional<WaylandScreen> _wayland;
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
    expectSnapshot(pane, root.path(), scale, { 0, 0 });
}

TEST_F(AScreen, ThatAWindowIsMovedToShowsItInTheScreensOwnScale)
{
    // Two monitors beside each other.
    desktop::ChildProcess left({ "xrandr", "--setmonitor", "left", "400/100x1200/300+0+0", "screen" });
    ASSERT_EQ(left.exitStatus(std::chrono::seconds(20)), 0);
    desktop::ChildProcess right({ "xrandr", "--setmonitor", "right", "500/125x1200/300+400+0", "none" });
    ASSERT_EQ(right.exitStatus(std::chrono::seconds(20)), 0);
    const EnvironmentVariable factors("QT_SCREEN_SCALE_FACTORS", "left=1;right=1.5");
    const TemporaryRoot root;
    RunningProgram pane(root.path(), {});
    // A number of pixels that is a whole number of points on both.
    pane.say("resize 450 600");
    pane.say("wait 0.5");
    expectSnapshot(pane, root.path(), "1", { 0, 0 });

    desktop::ChildProcess move(
        { "xdotool", "search", "--sync", "--onlyvisible", "--name", "Brimsound", "windowmove", "400", "0" });
    ASSERT_EQ(move.exitStatus(std::chrono::seconds(20)), 0);
    pane.say("wait 0.5");
    expectSnapshot(pane, root.path(), "1.5", { 400, 0 });
}

} // namespace
} // namespace brimsound::tests
