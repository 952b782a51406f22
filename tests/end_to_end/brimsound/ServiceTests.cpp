// The app's media server when a service for it is installed on the session bus.
#include "desktop/brimsound/MediaServer.h"
#include "platform/desktop/bus/SessionBus.h"
#include "settings/tweak.h"
#include "tests/end_to_end/brimsound/Aftermath.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/TestBus.h"
#include "toolkit/time/Clock.h"

#include <poll.h>

#include <array>
#include <csignal>
#include <fstream>
#include <optional>
#include <thread>

namespace brimsound::tests {
namespace {

using namespace std::chrono_literals;
using desktop::MediaServer;
using desktop::SessionBus;

/// A service whose program is a shell script with a test's own commands. The sound of the machine is not
/// changed.
class AService : public testing::Test {
protected:
    void install(const std::string& commands)
    {
        writeFile(root.path() / "service.sh", "cd " + root.path().string() + "\n" + commands);
        writeFile(root.path() / "dbus-1/services/com.quorvix.brimsound.service",
            "[D-BUS Service]\nName=com.quorvix.brimsound\nExec=/bin/sh " + root.path().string()
                + "/service.sh\n");
        bus.emplace();
    }

    static std::string serverInTheService()
    {
        return "echo $$ >>started; exec " MEDIASERVERD " --silent --root .\n";
    }

    /// The app's use of the media server.
    void open(MediaServer::Sound sound = MediaServer::Sound::Equalized)
    {
        app.emplace(MEDIASERVERD, root.path(), sound);
    }

    /// The processes that the bus started.
    std::vector<pid_t> started() const
    {
        std::ifstream lines(root.path() / "started");
        return { std::istream_iterator<pid_t>(lines), {} };
    }

    /// Whether the app's own media server owns the name.
    static bool ownServerRuns()
    {
        std::ifstream status("/proc/" + std::to_string(serverProcess()) + "/status");
        const std::string wanted = "PPid:\t" + std::to_string(getpid());
        for (std::string line; std::getline(status, line);) {
            if (line == wanted)
                return true;
        }
        return false;
    }

    /// A turn of the app's main loop, which handles the bus only when a message has arrived.
    static void turnMainLoop()
    {
        const auto [speaker, listener] = SessionBus::shared().descriptors();
        std::array<pollfd, 2> inputs { { { speaker, POLLIN, 0 }, { listener, POLLIN, 0 } } };
        if (poll(inputs.data(), inputs.size(), 0) > 0)
            SessionBus::shared().process();
        toolkit::Clock::shared().advance(0.005);
    }

    /// Ends the media server and runs the app until there is another one. Returns whether one comes.
    static bool comesBack()
    {
        const auto before = serverProcess();
        return before > 0 && kill(before, SIGTERM) == 0 && eventually([&] {
            turnMainLoop();
            const auto now = serverProcess();
            return now > 0 && now != before;
        });
    }

    TemporaryRoot root;
    EnvironmentVariable data { "XDG_DATA_DIRS", root.path().c_str() };
    EnvironmentVariable noPipeWire { "PIPEWIRE_RUNTIME_DIR", root.path().c_str() };
    std::optional<TestBus> bus;
    std::optional<MediaServer> app;
};

TEST_F(AService, IsStartedByTheAppAndWaitedFor)
{
    install("sleep 1; " + serverInTheService());
    open();
    ASSERT_EQ(started().size(), 1U);
    EXPECT_EQ(serverProcess(), started()[0]);
}

TEST_F(AService, ThatEndsIsWaitedForAgain)
{
    install("[ -e started ] && sleep 1; " + serverInTheService());
    open();
    ASSERT_TRUE(comesBack());
    ASSERT_EQ(started().size(), 2U);
    EXPECT_EQ(serverProcess(), started()[1]);
}

TEST_F(AService, ThatDoesNotStartAgainIsReplacedByTheAppsOwnServer)
{
    install("[ -e started ] && exit 1; " + serverInTheService());
    open();
    ASSERT_TRUE(comesBack());
    EXPECT_TRUE(ownServerRuns());
}

TEST_F(AService, ThatHangsIsReplacedByTheAppsOwnServer)
{
    install("echo $$ >>started; exec sleep 60\n");
    EXPECT_GE(secondsOf([&] { open(); }), 4.9);
    EXPECT_TRUE(ownServerRuns());
    ASSERT_EQ(started().size(), 1U);
    kill(started()[0], SIGKILL);
}

TEST_F(AService, ThatHangsWhenItIsStartedAgainIsReplacedByTheAppsOwnServer)
{
    install("[ -e started ] && { echo $$ >>started; exec sleep 60; }; " + serverInTheService());
    open();
    ASSERT_TRUE(comesBack());
    EXPECT_TRUE(ownServerRuns());
    ASSERT_EQ(started().size(), 2U);
    kill(started()[1], SIGKILL);
}

TEST_F(AService, ThatIsDisabledDoesNotDelayTheAppsOwnServer)
{
    // What the bus runs when it cannot ask a service manager for the unit.
    install("exec /bin/false\n");
    EXPECT_LT(secondsOf([&] { open(); }), 2.0);
    EXPECT_TRUE(ownServerRuns());
    ASSERT_TRUE(comesBack());
    EXPECT_TRUE(ownServerRuns());
}

TEST_F(AService, IsNotStartedForAScript)
{
    install(serverInTheService());
    open(MediaServer::Sound::LeftAlone);
    EXPECT_TRUE(ownServerRuns());
    ASSERT_TRUE(comesBack());
    EXPECT_TRUE(ownServerRuns());
    EXPECT_EQ(started().size(), 0U);
}

TEST_F(AService, ThatIsNotInstalledDoesNotDelayTheAppsOwnServer)
{
    bus.emplace();
    EXPECT_LT(secondsOf([&] { open(); }), 2.0);
    EXPECT_TRUE(ownServerRuns());
}

} // namespace
} // namespace brimsound::tests
