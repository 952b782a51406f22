#include "platform/System/process.h"

#include "tests/doubles/System/Commands.h"
#include "tests/support/NoDescriptors.h"

#include <sys/wait.h>

#include <gmock/gmock.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <string>

namespace brimsound::tests {

namespace {

class AShellCommand : public testing::Test {
protected:
    AShellCommand() { doubles::carryOutCommands(true); }
    ~AShellCommand() override { doubles::carryOutCommands(false); }

    static std::string restOf(std::FILE* stream)
    {
        std::array<char, 100> bytes {};
        return { bytes.data(), std::fread(bytes.data(), 1, bytes.size(), stream) };
    }

    static std::ptrdiff_t openDescriptors()
    {
        const std::filesystem::directory_iterator all("/proc/self/fd");
        return std::distance(begin(all), end(all));
    }
};

TEST_F(AShellCommand, ReturnsItsStatus)
{
    EXPECT_EQ(brimsound::system("true"), 0);
    EXPECT_EQ(WEXITSTATUS(brimsound::system("exit 3")), 3);
    const int killed = brimsound::system("kill -TERM $$");
    EXPECT_TRUE(WIFSIGNALED(killed));
    EXPECT_EQ(WTERMSIG(killed), SIGTERM);
}

TEST_F(AShellCommand, WritesToItsStream)
{
    auto* stream = brimsound::popen("echo text; exit 3", "r");
    ASSERT_NE(stream, nullptr);
    EXPECT_EQ(restOf(stream), "text\n");
    EXPECT_EQ(WEXITSTATUS(brimsound::pclose(stream)), 3);
}

TEST_F(AShellCommand, HasStreamsOfItsOwn)
{
    auto* first = brimsound::popen("echo first; exit 1", "r");
    auto* second = brimsound::popen("echo second; exit 2", "r");
    EXPECT_EQ(restOf(second), "second\n");
    EXPECT_EQ(restOf(first), "first\n");
    EXPECT_EQ(WEXITSTATUS(brimsound::pclose(first)), 1);
    EXPECT_EQ(WEXITSTATUS(brimsound::pclose(second)), 2);
}

TEST_F(AShellCommand, LeavesNothingOpen)
{
    const auto before = openDescriptors();
    brimsound::pclose(brimsound::popen("true", "r"));
    EXPECT_EQ(openDescriptors(), before);
    doubles::refuseProcesses(true);
    EXPECT_EQ(brimsound::popen("true", "r"), nullptr);
    doubles::refuseProcesses(false);
    EXPECT_EQ(openDescriptors(), before);
    errno = 0;
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD) << "a process was not waited for";
}

TEST_F(AShellCommand, HasNoStreamWithoutDescriptors)
{
    const NoDescriptors none;
    EXPECT_EQ(brimsound::popen("echo text", "r"), nullptr);
}

TEST_F(AShellCommand, IsNotWaitedForOnAnotherStream)
{
    EXPECT_EQ(brimsound::pclose(stdin), -1);
}

} // namespace

} // namespace brimsound::tests
