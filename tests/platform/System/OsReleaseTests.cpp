#include "platform/desktop/System/OsRelease.h"

#include <gmock/gmock.h>

namespace brimsound::desktop {

TEST(AValueInOsRelease, IsReadAsTheShellWould)
{
    const auto version = [](std::string_view text) { return valueInOsRelease(text, "VERSION_ID"); };
    EXPECT_EQ(version("NAME=\"Debian GNU/Linux\"\nVERSION_ID=\"12\"\nVERSION=\"12 (bookworm)\"\n"), "12");
    EXPECT_EQ(version("VERSION_ID='22.04'"), "22.04");
    EXPECT_EQ(version("VERSION_ID=39\r\n"), "39");
    EXPECT_EQ(version("VERSION_ID=3.18.4 # not this\n"), "3.18.4");
    EXPECT_EQ(version("VERSION_ID=\"a \\\"b\\\" \\$c\"\n"), "a \"b\" $c");
    EXPECT_EQ(version("VERSION_ID='a\\b'\n"), "a\\b");
    EXPECT_EQ(version("VERSION_ID=1\nVERSION_ID=2\n"), "2");
}

TEST(AValueInOsRelease, IsEmptyWhenItIsMissing)
{
    EXPECT_EQ(valueInOsRelease("", "VERSION_ID"), "");
    EXPECT_EQ(valueInOsRelease("VERSION_ID_LIKE=1\n#VERSION_ID=2\nBUILD_VERSION_ID=3\n", "VERSION_ID"), "");
    EXPECT_EQ(valueInOsRelease("VERSION_ID=\n", "VERSION_ID"), "");
    EXPECT_EQ(valueInOsRelease("VERSION_ID=\"\n", "VERSION_ID"), "");
}

} // namespace brimsound::desktop
