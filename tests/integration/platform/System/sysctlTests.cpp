#include "platform/System/sysctl.h"

#include "tests/support/Shell.h"

#include <gmock/gmock.h>

namespace brimsound {

namespace {

// Asks for the size first, as callers do.
std::string machine()
{
    std::size_t size = 0;
    EXPECT_EQ(sysctlbyname("hw.machine", nullptr, &size, nullptr, 0), 0);
    std::string value(size, '?');
    EXPECT_EQ(sysctlbyname("hw.machine", value.data(), &size, nullptr, 0), 0);
    EXPECT_EQ(size, value.size());
    return value;
}

} // namespace

TEST(TheMachinesName, IsThatOfTheProductOrElseTheArchitecture)
{
    auto expected = tests::firstLineOf("sed 's/^ *//; s/ *$//' /sys/class/dmi/id/product_name 2>/dev/null");
    if (expected.empty())
        expected = tests::firstLineOf("uname -m");
    EXPECT_EQ(machine(), expected + '\0');
}

TEST(TheMachinesName, FitsIntoALargerBuffer)
{
    const auto name = machine();
    std::string buffer(name.size() + 10, '?');
    auto size = buffer.size();
    EXPECT_EQ(sysctlbyname("hw.machine", buffer.data(), &size, nullptr, 0), 0);
    EXPECT_EQ(size, name.size());
    EXPECT_EQ(buffer, name + std::string(10, '?'));
}

TEST(TheMachinesName, IsNotTruncated)
{
    std::string buffer(machine().size() - 1, '?');
    auto size = buffer.size();
    EXPECT_EQ(sysctlbyname("hw.machine", buffer.data(), &size, nullptr, 0), -1);
    EXPECT_EQ(buffer, std::string(buffer.size(), '?'));
}

TEST(SystemValues, CannotBeSetAndAreFew)
{
    std::size_t size = 100;
    char name[] = "iPhone6,1";
    EXPECT_EQ(sysctlbyname("hw.machine", nullptr, &size, name, sizeof name), -1);
    EXPECT_EQ(sysctlbyname("hw.model", nullptr, &size, nullptr, 0), -1);
    EXPECT_EQ(sysctlbyname("", nullptr, &size, nullptr, 0), -1);
    EXPECT_EQ(sysctlbyname("hw.machine", nullptr, nullptr, nullptr, 0), -1);
    EXPECT_EQ(size, 100u);
}

} // namespace brimsound
