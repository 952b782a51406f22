#include "platform/Foundation/NSData.h"

#include "tests/support/TemporaryRoot.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace brimsound {

using namespace std::string_view_literals;

namespace {

NSData bytesOf(std::string_view text)
{
    NSData data;
    appendText(data, text);
    return data;
}

} // namespace

TEST(ReadingAFile, ReturnsItsBytesUnchanged)
{
    const tests::TemporaryRoot root;
    constexpr auto bytes = "bplist00\0\xff\r\n\n"sv;
    root.write("/var/file.plist", bytes);
    EXPECT_EQ(dataWithContentsOfFile("/var/file.plist"), bytesOf(bytes));
    root.write("/var/empty.plist", "");
    EXPECT_EQ(dataWithContentsOfFile("/var/empty.plist"), NSData {});
}

TEST(ReadingAFile, ReturnsNothingWhenItIsNotARegularFile)
{
    const tests::TemporaryRoot root;
    ASSERT_EQ(mkfifo((root.path() / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(dataWithContentsOfFile("/missing"), std::nullopt);
    EXPECT_EQ(dataWithContentsOfFile("/var"), std::nullopt);
    EXPECT_EQ(dataWithContentsOfFile("/pipe"), std::nullopt) << "and does not wait for a writer";
}

TEST(AppendingText, AddsItsBytes)
{
    auto data = bytesOf("a\0b"sv);
    appendText(data, "\xc3\xa9");
    appendText(data, "");
    EXPECT_EQ(data, bytesOf("a\0b\xc3\xa9"sv));
    EXPECT_EQ(data.size(), 5u);
}

} // namespace brimsound
