#include "tests/doubles/System/Commands.h"
#include "tests/doubles/Trace.h"

#include <spawn.h>
#include <sys/wait.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <string>

namespace brimsound::doubles {
namespace {

using testing::ElementsAre;

class ACommand : public testing::Test {
protected:
    ACommand() { takeTrace(); }
    ~ACommand() override
    {
        carryOutCommands(false);
        refuseProcesses(false);
    }

    /// Starts the command in a shell. Returns the error, 0 for none.
    int start(std::string command)
    {
        std::string name = "sh";
        std::string option = "-c";
        const std::array<char*, 4> arguments { name.data(), option.data(), command.data(), nullptr };
        const std::array<char*, 1> environment { nullptr };
        return posix_spawn(&process, "/bin/sh", nullptr, nullptr, arguments.data(), environment.data());
    }

    int statusOf(const std::string& command)
    {
        EXPECT_EQ(start(command), 0);
        int status = -1;
        EXPECT_EQ(waitpid(process, &status, 0), process);
        return status;
    }

    pid_t process = 0;
};

TEST_F(ACommand, IsOnlyTracedAtFirst)
{
    EXPECT_EQ(statusOf("exit 3"), 0);
    EXPECT_THAT(takeTrace(), ElementsAre("shell exit 3"));
}

TEST_F(ACommand, IsExecutedWhenAllowed)
{
    carryOutCommands(true);
    EXPECT_EQ(WEXITSTATUS(statusOf("exit 3")), 3);
    EXPECT_THAT(takeTrace(), ElementsAre("shell exit 3"));
}

TEST_F(ACommand, CanBeRefused)
{
    carryOutCommands(true);
    refuseProcesses(true);
    EXPECT_EQ(start("exit 3"), EAGAIN);
    EXPECT_THAT(takeTrace(), ElementsAre("shell exit 3"));
}

} // namespace
} // namespace brimsound::doubles
