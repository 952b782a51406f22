#include "platform/desktop/process/ChildProcess.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/Screen.h"
#include "tests/support/TemporaryRoot.h"
#include "tests/support/TestBus.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>

namespace brimsound::tests {
namespace {

/// The window without a script, as a user opens it. Its sound system and its configuration are in the test's
/// folder.
class AUsersWindow : public testing::Test {
protected:
    AUsersWindow() { open(); }

    void open() { _pane.emplace(std::vector<std::string> { BRIMSOUND, "--root", _root.path() }); }

    /// Performs the actions with xdotool in the window, once that is shown. Returns what xdotool prints.
    std::string point(const std::vector<std::string>& actions)
    {
        std::vector<std::string> command { "xdotool", "search", "--sync", "--onlyvisible", "--name",
            "Brimsound" };
        command.insert(command.end(), actions.begin(), actions.end());
        desktop::ChildProcess xdotool(command, desktop::ChildProcess::Output::Piped);
        std::string printed;
        while (const auto line = xdotool.readLine(std::chrono::seconds(20)))
            printed += *line + '\n';
        EXPECT_EQ(xdotool.exitStatus(std::chrono::seconds(20)), 0);
        return printed;
    }

    /// Presses a key, which is to close the window. Returns the exit status of the program.
    std::optional<int> closeBy(const std::string& key)
    {
        // Not sent to the program's window, which no longer exists when the key is released.
        point({ "windowfocus", "--sync", "%1", "key", "--window", "0", key });
        return _pane->exitStatus(std::chrono::seconds(20));
    }

    bool hasSize(const std::string& width, const std::string& height)
    {
        const auto geometry = point({ "getwindowgeometry", "--shell", "%1" });
        return geometry.find("WIDTH=" + width + "\nHEIGHT=" + height + "\n") != std::string::npos;
    }

    const std::filesystem::path& root() const { return _root.path(); }

private:
    TemporaryRoot _root;
    TestBus _bus;
    Screen _screen;
    EnvironmentVariable _runtimeFolder { "XDG_RUNTIME_DIR", _root.path().c_str() };
    EnvironmentVariable _configuration { "XDG_CONFIG_HOME", (_root.path() / "configuration").c_str() };
    std::optional<desktop::ChildProcess> _pane;
};

TEST_F(AUsersWindow, ClosesByControlWAndControlQ)
{
    EXPECT_EQ(closeBy("ctrl+w"), 0);
    open();
    EXPECT_EQ(closeBy("ctrl+q"), 0);
}

TEST_F(AUsersWindow, HasTheSizeThatItWasClosedWith)
{
    EXPECT_TRUE(hasSize("320", "568"));
    point({ "windowsize", "--sync", "%1", "420", "600" });
    closeBy("ctrl+w");
    open();
    EXPECT_TRUE(hasSize("420", "600"));
}

TEST_F(AUsersWindow, IsNoLargerThanTheScreen)
{
    closeBy("ctrl+w");
    std::ofstream(root() / "configuration/brimsound/window.ini") << "[General]\nsize=@Size(4000 3000)\n";
    open();
    EXPECT_TRUE(hasSize("900", "1200"));
}

} // namespace
} // namespace brimsound::tests
