// Many faults and gestures, as in a long session; fewer unless BRIMSOUND_LONG is set.
#include "settings/tweak.h"
#include "tests/end_to_end/brimsound/Aftermath.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/ProcessUse.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <thread>

namespace brimsound::tests {
namespace {

using namespace std::chrono_literals;

/// How much the memory use may vary without a leak.
constexpr std::size_t slack = 4 << 20;

int count(int often, int seldom)
{
    return std::getenv("BRIMSOUND_LONG") ? often : seldom;
}

class ALongLife : public testing::Test {
protected:
    // Freed memory that the sanitizer keeps, to detect later uses, would look like a leak here.
    EnvironmentVariable sanitizer { "ASAN_OPTIONS", "quarantine_size_mb=1" };
    TemporaryRoot root;
    TestBus bus;
};

/// The memory and descriptors of a process before and after an action.
class Use {
public:
    Use(std::string name, pid_t process)
        : _name(std::move(name))
        , _process(process)
        , _bytes(residentBytes(process))
        , _descriptors(openDescriptors(process))
    {
    }

    void expectSame() const
    {
        const auto bytes = residentBytes(_process);
        const auto descriptors = openDescriptors(_process);
        std::cout << _name << ": " << _bytes << " bytes and " << _descriptors << " descriptors before, "
                  << bytes << " and " << descriptors << " after\n";
        EXPECT_LT(bytes, _bytes + slack) << _name;
        EXPECT_EQ(descriptors, _descriptors) << _name;
    }

private:
    std::string _name;
    pid_t _process;
    std::size_t _bytes;
    std::size_t _descriptors;
};

/// Drags the third slider back and forth. Every message is answered.
void drag(RunningProgram& pane, int times)
{
    constexpr int batch = 500;
    for (int done = 0; done < times; done += batch) {
        for (int i = 0; i < batch; ++i)
            pane.say("drag 3 " + std::to_string((done + i) % 25 - 12));
        for (int i = 0; i < batch; ++i) {
            const auto message = pane.next();
            ASSERT_EQ(message.at("effect"), "message");
            ASSERT_EQ(message.at("error"), nullptr);
        }
    }
}

TEST_F(ALongLife, OfDragsDoesNotLeak)
{
    const int drags = count(1'000'000, 20'000);
    RunningProgram pane(root.path(), { "--headless" });
    pane.say("touch 3");
    ASSERT_EQ(pane.next().at("error"), nullptr);
    drag(pane, 5000);
    const Use ofPane("the pane", pane.process().processIdentifier());
    const Use ofServer("its media server", serverProcess());
    const auto time = secondsOf([&] { drag(pane, drags); });
    std::cout << drags << " drags in " << time << " s\n";
    ofPane.expectSame();
    ofServer.expectSame();
    pane.say("lift 3");
    EXPECT_FALSE(pane.next("write").is_null());
    EXPECT_EQ(storedGains().size(), 11u);
}

TEST_F(ALongLife, OfReleasesDoesNotLeak)
{
    const int releases = count(20'000, 500);
    RunningProgram pane(root.path(), { "--headless" });
    const auto release = [&](int times) {
        for (int i = 0; i < times; ++i) {
            pane.say("touch 3\nlift 3\nwait 0");
            ASSERT_FALSE(pane.next("delivered").is_null());
        }
    };
    release(200);
    const Use ofPane("the pane", pane.process().processIdentifier());
    const Use ofServer("its media server", serverProcess());
    release(releases);
    std::cout << releases << " releases\n";
    ofPane.expectSame();
    ofServer.expectSame();
}

TEST_F(ALongLife, OfKilledMediaServersIsSurvived)
{
    const int kills = count(1000, 40);
    std::optional<MediaServer> server(std::in_place);
    RunningProgram pane(root.path(), { "--headless" }, RunningProgram::Errors::Dropped);
    pane.say("touch 3");
    ASSERT_EQ(pane.next().at("error"), nullptr);
    const Use use("the pane", pane.process().processIdentifier());
    int failed = 0;
    for (int kill = 0; kill < kills; ++kill) {
        // The server is killed during these drags; the last of them are sent without a server.
        constexpr int drags = 20;
        for (int i = 0; i < drags; ++i)
            pane.say("drag 3 " + std::to_string(i % 10));
        std::this_thread::sleep_for(std::chrono::microseconds(kill * 7 % 3000));
        server->process().signal(SIGKILL);
        server.reset();
        pane.say("drag 3 11");
        int messages = 0;
        while (messages <= drags) {
            const auto line = pane.next();
            ASSERT_FALSE(line.is_null()) << kill;
            if (line.at("effect") != "message")
                continue;
            ++messages;
            failed += line.at("error").is_null() ? 0 : 1;
        }
        server.emplace();
        pane.say("drag 3 " + std::to_string(kill % 12));
        ASSERT_EQ(pane.next("message").at("error"), nullptr) << kill;
    }
    pane.say("lift 3");
    ASSERT_FALSE(pane.next("notify").is_null());
    EXPECT_TRUE(comesToPlay(*server, storedGains()));
    std::cout << kills << " kills, " << failed << " sends failed\n";
    EXPECT_GE(failed, kills);
    use.expectSame();
    EXPECT_TRUE(releaseArrives(pane, *server, 4));
}

} // namespace
} // namespace brimsound::tests
