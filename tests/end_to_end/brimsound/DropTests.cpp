#include "tests/end_to_end/brimsound/Program.h"
#include "tests/support/Screen.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimsound::tests {
namespace {

/// Performs the actions with xdotool.
void point(const std::vector<std::string>& actions)
{
    std::vector<std::string> command { "xdotool" };
    command.insert(command.end(), actions.begin(), actions.end());
    desktop::ChildProcess xdotool(command);
    ASSERT_EQ(xdotool.exitStatus(std::chrono::seconds(20)), 0);
}

TEST(AFileThatIsDroppedOntoTheWindow, IsImportedAndChosenAndNotMoved)
{
    const Screen screen;
    const TestBus bus;
    const TemporaryRoot root;
    const TemporaryFolder folder;
    writeFile(folder.path() / "Mine.txt", "1 2 3 4 5 -1 -2 -3 -4 -5");
    RunningProgram pane(root.path(), {});
    pane.say("wait 0.2");
    pane.state();
    desktop::ChildProcess source(
        { DRAG_SOURCE, folder.path() / "Mine.txt" }, desktop::ChildProcess::Output::Piped);
    point({ "search", "--sync", "--onlyvisible", "--name", "Files" });

    // The source's window is to the right of the pane's.
    point({ "mousemove", "600", "100", "mousedown", "1", "sleep", "0.2", "mousemove", "550", "120" });
    point({ "mousemove", "300", "200", "sleep", "0.2", "mousemove", "160", "200", "sleep", "0.5", "mouseup",
        "1" });
    EXPECT_EQ(source.readLine(std::chrono::seconds(20)), "copy");
    pane.say("wait 1");
    const auto state = pane.state();
    EXPECT_EQ(state.at("sliders"), Json({ -5, 1, 2, 3, 4, 5, -1, -2, -3, -4, -5 }));
    EXPECT_EQ(state.at("panel"), "hidden");
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "Mine.txt"));
}

} // namespace
} // namespace brimsound::tests
