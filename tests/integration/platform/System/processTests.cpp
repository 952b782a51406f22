#include "platform/System/process.h"

#include "tests/support/OutsideEffects.h"
#include "tests/support/TemporaryRoot.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>

namespace brimsound {

using desktop::Reach;
using testing::ElementsAre;

namespace {

std::string readAll(std::FILE* stream)
{
    std::string text;
    for (int character = std::fgetc(stream); character != EOF; character = std::fgetc(stream))
        text += static_cast<char>(character);
    return text;
}

/// No file can be opened while this object exists.
class NoMoreFiles {
public:
    NoMoreFiles()
    {
        getrlimit(RLIMIT_NOFILE, &_before);
        const rlimit none { 0, _before.rlim_max };
        setrlimit(RLIMIT_NOFILE, &none);
    }
    NoMoreFiles(const NoMoreFiles&) = delete;
    NoMoreFiles& operator=(const NoMoreFiles&) = delete;
    ~NoMoreFiles() { setrlimit(RLIMIT_NOFILE, &_before); }

private:
    rlimit _before {};
};

} // namespace

TEST(RunningAShellCommand, WaitsForItAndReturnsItsStatus)
{
    const tests::TemporaryRoot root;
    tests::OutsideEffects effects(Reach::Everything);
    const auto command = "sleep 0.05; touch '" + (root.path() / "done").string() + "'; exit 7";
    EXPECT_EQ(WEXITSTATUS(brimsound::system(command.c_str())), 7);
    EXPECT_TRUE(root.contains("/done"));
    EXPECT_THAT(effects.trace(), ElementsAre("shell " + command));
}

TEST(ReadingFromAShellCommand, ReturnsItsOutputAndItsStatus)
{
    tests::OutsideEffects effects(Reach::Everything);
    auto* stream = brimsound::popen("printf 'one\\0two'; exit 3", "r");
    ASSERT_TRUE(stream);
    EXPECT_EQ(readAll(stream), std::string("one\0two", 7));
    EXPECT_EQ(WEXITSTATUS(brimsound::pclose(stream)), 3);
    EXPECT_THAT(effects.trace(), ElementsAre("shell printf 'one\\0two'; exit 3"));
}

TEST(ReadingFromAShellCommand, UsesAPipeThatOtherProgramsDoNotInherit)
{
    const tests::OutsideEffects effects(Reach::Everything);
    auto* stream = brimsound::popen("true", "r");
    ASSERT_TRUE(stream);
    EXPECT_TRUE(fcntl(fileno(stream), F_GETFD) & FD_CLOEXEC);
    brimsound::pclose(stream);
}

TEST(AShellCommand, ThatCannotBeStartedHasNoStream)
{
    const tests::OutsideEffects effects(Reach::Everything);
    auto* stream = brimsound::popen("true", "r");
    ASSERT_TRUE(stream);
    brimsound::pclose(stream);

    const NoMoreFiles none;
    EXPECT_EQ(brimsound::popen("true", "r"), nullptr);
}

TEST(AShellCommand, IsOnlyReportedWhenOnlyTheObserverIsReached)
{
    const tests::TemporaryRoot root;
    tests::OutsideEffects effects(Reach::ObserverOnly);
    const auto command = "touch '" + (root.path() / "done").string() + "'; echo output; exit 7";
    EXPECT_EQ(brimsound::system(command.c_str()), 0);
    auto* stream = brimsound::popen(command.c_str(), "r");
    ASSERT_TRUE(stream);
    EXPECT_EQ(readAll(stream), "");
    EXPECT_EQ(brimsound::pclose(stream), 0);
    EXPECT_FALSE(root.contains("/done"));
    EXPECT_THAT(effects.trace(), ElementsAre("shell " + command, "shell " + command));
}

} // namespace brimsound
