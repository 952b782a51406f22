#include "platform/desktop/bus/DarwinNotifyPost.h"
#include "settings/tweak.h"
#include "tests/end_to_end/brimsound/Aftermath.h"
#include "tests/support/LastingBus.h"
#include "tests/support/ProcessUse.h"
#include "tests/support/Screen.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <csignal>
#include <fstream>
#include <optional>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

namespace brimsound::tests {
namespace {

using namespace std::chrono_literals;
/// Accepts connections like a bus, but never sends anything.
class MuteBus {
public:
    explicit MuteBus(const std::filesystem::path& path)
        : _socket(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address { AF_UNIX, {} };
        path.string().copy(address.sun_path, sizeof address.sun_path - 1);
        if (bind(_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0
            || listen(_socket, 100) != 0)
            throw std::system_error(errno, std::generic_category(), path);
    }
    MuteBus(const MuteBus&) = delete;
    MuteBus& operator=(const MuteBus&) = delete;
    ~MuteBus() { close(_socket); }

private:
    int _socket;
};

/// The child process that runs that program; 0 when there is none.
pid_t childOf(pid_t process, const std::string& program)
{
    const auto number = std::to_string(process);
    std::ifstream children("/proc/" + number + "/task/" + number + "/children");
    for (pid_t child = 0; children >> child;) {
        std::string name;
        std::ifstream("/proc/" + std::to_string(child) + "/comm") >> name;
        if (name == program)
            return child;
    }
    return 0;
}

class APaneWhoseBus : public testing::Test {
protected:
    /// Starts a pane on the bus.
    RunningProgram& start(const std::vector<std::string>& more)
    {
        pane.emplace(root.path(), more);
        EXPECT_FALSE(pane->state().is_null());
        return *pane;
    }

    TemporaryRoot root;
    LastingBus bus;
    std::optional<Screen> screen;
    std::optional<MediaServer> server;
    std::optional<RunningProgram> pane;
};

using APaneInAWindowWhoseBus = APaneWhoseBus;

TEST_F(APaneWhoseBus, IsGoneLogsEachSendSavesAndReconnectsLater)
{
    server.emplace();
    auto& headless = start({ "--headless" });
    headless.say("touch 3");
    EXPECT_EQ(headless.next("message").at("error"), nullptr);
    bus.kill();
    for (const auto* line : { "drag 3 1", "drag 3 2" }) {
        headless.say(line);
        EXPECT_TRUE(headless.next().at("error").is_string());
        EXPECT_EQ(headless.next().at("effect"), "log");
    }
    headless.say("lift 3");
    EXPECT_EQ(headless.next().at("effect"), "write");
    // Without a bus no notification is posted.
    EXPECT_EQ(headless.state().at("effect"), "state");
    EXPECT_EQ(storedGains().at(3), 2);
    EXPECT_EQ(server->process().exitStatus(10s), 1);

    bus.start();
    server.emplace();
    EXPECT_TRUE(comesToPlay(*server, storedGains()));
    EXPECT_TRUE(releaseArrives(headless, *server, 4));
}

TEST_F(APaneWhoseBus, WasReplacedBetweenTwoGesturesPostsOnTheNewOne)
{
    server.emplace();
    auto& headless = start({ "--headless" });
    bus.kill();
    bus.start();
    server.emplace();
    headless.say("switch FILTER_DISABLED on");
    EXPECT_EQ(headless.next().at("effect"), "write");
    EXPECT_EQ(headless.next().at("effect"), "notify");
    EXPECT_TRUE(releaseArrives(headless, *server, 4));
}

TEST_F(APaneWhoseBus, HangsBlocksEachSendForOneSecond)
{
    server.emplace();
    auto& headless = start({ "--headless" });
    bus.process().signal(SIGSTOP);
    for (const auto* line : { "touch 3", "drag 3 2" }) {
        headless.say(line);
        Json message;
        EXPECT_THAT(secondsOf([&] { message = headless.next(); }), oneSecond());
        EXPECT_TRUE(message.at("error").is_string());
        EXPECT_EQ(headless.next().at("effect"), "log");
    }
    headless.say("lift 3");
    EXPECT_LT(secondsOf([&] { EXPECT_EQ(headless.next().at("effect"), "write"); }), 0.9);

    bus.process().signal(SIGCONT);
    EXPECT_TRUE(comesToPlay(*server, storedGains()));
    EXPECT_TRUE(releaseArrives(headless, *server, 4));
}

TEST_F(APaneWhoseBus, IsReplacedByASilentOneBlocksEachSendForOneSecond)
{
    auto& headless = start({ "--headless" });
    bus.kill();
    std::optional<MuteBus> mute(bus.socket());
    headless.say("touch 3");
    Json message = headless.next();
    EXPECT_TRUE(message.at("error").is_string());
    headless.next("log");
    headless.say("drag 3 2");
    EXPECT_THAT(secondsOf([&] { message = headless.next(); }), oneSecond());
    EXPECT_TRUE(message.at("error").is_string());
    EXPECT_LT(secondsOf([&] { EXPECT_EQ(headless.next().at("effect"), "log"); }), 0.5);
    headless.say("lift 3");
    EXPECT_LT(secondsOf([&] { EXPECT_EQ(headless.next().at("effect"), "write"); }), 0.9);

    mute.reset();
    bus.kill();
    bus.start();
    server.emplace();
    EXPECT_TRUE(releaseArrives(headless, *server, 4));
}

TEST_F(APaneInAWindowWhoseBus, ComesBackReceivesNotificationsAgainByItself)
{
    screen.emplace();
    auto& window = start({});
    for (int losses = 0; losses < 2; ++losses) {
        bus.kill();
        std::this_thread::sleep_for(700ms);
        bus.start();
        // The pane starts the media server again without an action of the user.
        ASSERT_TRUE(eventually([] { return serverProcess() > 0; }));
        ASSERT_TRUE(desktop::darwinNotifyPost(settingsFinishedNotification));
        EXPECT_EQ(window.next().at("effect"), "delivered");
        EXPECT_EQ(window.next().at("text"), "Brimsound: got notification in settings");
    }
}

TEST(APaneWithABusOfItsOwn, HasItStartedAgainWhenItEnds)
{
    const TemporaryRoot root;
    const EnvironmentVariable noBus("DBUS_SESSION_BUS_ADDRESS", nullptr);
    const EnvironmentVariable noFolder("XDG_RUNTIME_DIR", nullptr);
    RunningProgram pane(root.path(), { "--headless" });
    ASSERT_FALSE(pane.state().is_null());

    const auto daemon = childOf(pane.process().processIdentifier(), "dbus-daemon");
    ASSERT_GT(daemon, 0);
    kill(daemon, SIGKILL);
    // The pane handles the end of the bus while it waits.
    ASSERT_TRUE(eventually([&] {
        pane.say("wait 0");
        const auto next = childOf(pane.process().processIdentifier(), "dbus-daemon");
        return next > 0 && next != daemon;
    }));
    pane.say("touch 3");
    EXPECT_EQ(pane.next("message").at("error"), nullptr);
    pane.say("lift 3");
    EXPECT_FALSE(pane.next("notify").is_null());
}

} // namespace
} // namespace brimsound::tests
