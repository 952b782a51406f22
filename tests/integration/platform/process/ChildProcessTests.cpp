#include "platform/desktop/process/ChildProcess.h"

#include <gmock/gmock.h>

#include <csignal>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace brimsound::desktop {

using namespace std::chrono_literals;
using testing::ThrowsMessage;

namespace {

bool exists(pid_t process)
{
    return kill(process, 0) == 0;
}

bool endsSoon(pid_t process)
{
    for (int i = 0; i < 1000 && exists(process); ++i)
        std::this_thread::sleep_for(5ms);
    return !exists(process);
}

} // namespace

TEST(AChildProcess, ReturnsItsExitStatus)
{
    EXPECT_EQ(ChildProcess({ "sh", "-c", "exit 3" }).exitStatus(10s), 3);
    EXPECT_EQ(ChildProcess({ "sh", "-c", "kill -9 $$" }).exitStatus(10s), 128 + SIGKILL);
}

TEST(AChildProcess, RunsUntilItIsTerminated)
{
    ChildProcess child({ "sleep", "1000" });
    EXPECT_TRUE(child.running());
    EXPECT_EQ(child.exitStatus(1ms), std::nullopt);
    child.signal(SIGTERM);
    EXPECT_EQ(child.exitStatus(10s), 128 + SIGTERM);
    EXPECT_FALSE(child.running());
}

TEST(AChildProcess, EndsWithItsObject)
{
    pid_t process = 0;
    {
        const ChildProcess child({ "sleep", "1000" });
        process = child.processIdentifier();
        EXPECT_TRUE(exists(process));
    }
    EXPECT_FALSE(exists(process));
}

TEST(AChildProcess, IsKilledWhenItIgnoresTermination)
{
    pid_t process = 0;
    {
        ChildProcess child({ "sh", "-c", "trap '' TERM; echo ready; while :; do sleep 0.1; done" },
            ChildProcess::Output::Piped);
        process = child.processIdentifier();
        ASSERT_EQ(child.readLine(10s), "ready");
    }
    EXPECT_FALSE(exists(process));
}

TEST(AChildProcess, EndsWhenItsParentCrashes)
{
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t parent = fork();
    if (parent == 0) {
        const ChildProcess child({ "sleep", "1000" });
        const auto process = child.processIdentifier();
        [[maybe_unused]] const auto written = write(ends[1], &process, sizeof process);
        kill(getpid(), SIGKILL);
    }
    pid_t process = 0;
    ASSERT_EQ(read(ends[0], &process, sizeof process), static_cast<ssize_t>(sizeof process));
    close(ends[0]);
    close(ends[1]);
    ASSERT_EQ(waitpid(parent, nullptr, 0), parent);
    EXPECT_TRUE(endsSoon(process));
    kill(process, SIGKILL);
}

TEST(AChildProcess, ReturnsItsOutputLineByLine)
{
    ChildProcess child({ "printf", "one\ntwo\nhalf" }, ChildProcess::Output::Piped);
    EXPECT_EQ(child.readLine(10s), "one");
    EXPECT_EQ(child.readLine(10s), "two");
    EXPECT_EQ(child.readLine(10s), std::nullopt);
}

TEST(AChildProcess, IsNotWaitedForLongerThanAsked)
{
    ChildProcess child({ "sleep", "1000" }, ChildProcess::Output::Piped);
    EXPECT_EQ(child.readLine(20ms), std::nullopt);
}

TEST(AChildProcess, ThatCannotBeRunIsReported)
{
    EXPECT_THAT([] { ChildProcess({ "/nowhere/program" }); },
        ThrowsMessage<std::runtime_error>("cannot run /nowhere/program: No such file or directory"));
}

} // namespace brimsound::desktop
