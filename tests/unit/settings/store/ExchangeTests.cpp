// Each platform reads the files that the other one writes.
#include "platform/Foundation/PropertyListSerialization.h"
#include "settings/tweak.h"
#include "tests/unit/settings/TestPlatform.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace brimsound::tests {

namespace {

/// A value of each type in property lists, and values that formats handle differently.
PropertyList::Dictionary everyType()
{
    return {
        { "yes", true },
        { "no", false },
        { "one", 1 },
        { "negative", -300 },
        { "most", std::int64_t { INT64_MAX } },
        { "single", 5.8f },
        { "double", 0.1 },
        { "text", "Bässe \xF0\x9F\x8E\xB8" },
        { "empty", "" },
        { "data", PropertyList::Data { std::byte { 0 }, std::byte { 255 } } },
        { "date", PropertyList::Date { 700000000.5 } },
        { "gains", PropertyList::Array { 12.0f, -12.0f, 0.0f } },
        { "nested", PropertyList::Dictionary { { "list", PropertyList::Array {} } } },
    };
}

std::filesystem::path fileOf(const std::string& platform)
{
    return std::filesystem::path(WRITTEN_FILES) / ("written-on-a-" + platform + ".plist");
}

std::string bytesOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), {} };
}

class AFileWritten : public testing::TestWithParam<const char*> { };

TEST_P(AFileWritten, IsReadHere)
{
    TestPlatform platform;
    const auto bytes = bytesOf(fileOf(GetParam()));
    ASSERT_FALSE(bytes.empty());
    platform.writePreferencesFile(bytes);
    const auto read = readPropertyListFile(preferencesPath);
    ASSERT_TRUE(read && read->asDictionary());
    for (const auto& [key, value] : everyType()) {
        const auto* found = read->asDictionary()->find(key);
        ASSERT_TRUE(found) << key;
        EXPECT_TRUE(*found == value) << key;
    }
    EXPECT_EQ(read->asDictionary()->size(), everyType().size());
}

INSTANTIATE_TEST_SUITE_P(OnEach, AFileWritten, testing::Values("desktop", "device"));

// Ensures that the file that the other platform reads is the one that this platform writes.
TEST(AFileWrittenHere, IsTheOneThatTheOtherPlatformReads)
{
    const TestPlatform platform;
    const auto data = dataWithPropertyList(everyType(), NSPropertyListFormat::BinaryFormat_v1_0, 0);
    ASSERT_TRUE(data);
    EXPECT_TRUE(std::string(reinterpret_cast<const char*>(data->data()), data->size())
        == bytesOf(fileOf(THIS_PLATFORM)));
}

} // namespace

} // namespace brimsound::tests
