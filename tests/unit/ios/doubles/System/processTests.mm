#include "tests/doubles/System/Commands.h"
#include "tests/doubles/Trace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace brimsound::doubles {
namespace {

using testing::ElementsAre;

class ACommand : public testing::Test {
protected:
    ACommand() { takeTrace(); }
    ~ACommand() override { carryOutCommands(false); }

    static std::string outputOf(const char* command)
    {
        auto* stream = popen(command, "r");
        std::array<char, 100> bytes {};
        const auto length = std::fread(bytes.data(), 1, bytes.size(), stream);
        pclose(stream);
        return { bytes.data(), length };
    }
};

TEST_F(ACommand, IsOnlyTracedAtFirst)
{
    EXPECT_EQ(std::system("exit 3"), 0);
    EXPECT_EQ(outputOf("echo text"), "");
    EXPECT_THAT(takeTrace(), ElementsAre("shell exit 3", "shell echo text"));
}

TEST_F(ACommand, IsExecutedWhenAllowed)
{
    carryOutCommands(true);
    EXPECT_NE(std::system("exit 3"), 0);
    EXPECT_EQ(outputOf("echo text"), "text\n");
    EXPECT_THAT(takeTrace(), ElementsAre("shell exit 3", "shell echo text"));
}

} // namespace
} // namespace brimsound::doubles
