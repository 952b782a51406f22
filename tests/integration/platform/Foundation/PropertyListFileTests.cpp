#include "platform/Foundation/PropertyListSerialization.h"

#include "platform/desktop/process/ChildProcess.h"
#include "tests/support/BinaryPropertyList.h"
#include "tests/support/RecordingEffects.h"
#include "tests/support/TemporaryRoot.h"

#include <gmock/gmock.h>

#include <csignal>
#include <cstdio>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>

namespace brimsound {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using tests::arrayOf;
using tests::binaryFile;
using tests::dictionaryOf;
using tests::RecordingEffects;
using tests::repeat;
using tests::stringOf;
using tests::TemporaryRoot;
namespace fs = std::filesystem;

namespace {

constexpr auto path = "/values.plist";
constexpr auto binary = NSPropertyListFormat::BinaryFormat_v1_0;
constexpr auto xml = NSPropertyListFormat::XMLFormat_v1_0;

PropertyList everything()
{
    PropertyList::Dictionary dictionary;
    dictionary.set("yes", true);
    dictionary.set("no", false);
    dictionary.set("one", 1);
    dictionary.set("minus", -5);
    dictionary.set("smallest", std::numeric_limits<std::int64_t>::min());
    dictionary.set("largest", std::numeric_limits<std::int64_t>::max());
    dictionary.set("single", 5.8064516f);
    dictionary.set("double", 0.1);
    dictionary.set("text", "\xf0\x9f\x8e\xa7 Bässe & <Höhen>");
    dictionary.set("empty", "");
    dictionary.set("data", PropertyList::Data { std::byte { 0 }, std::byte { 255 }, std::byte { 7 } });
    dictionary.set("no data", PropertyList::Data {});
    dictionary.set("date", PropertyList::Date { 700'000'000 });
    dictionary.set("array", PropertyList::Array { 1, "two", PropertyList::Array {} });
    dictionary.set("a", PropertyList::Dictionary { { "z", 1 }, { "y", PropertyList::Dictionary {} } });
    return dictionary;
}

std::string text(const PropertyList::Data& data)
{
    return { reinterpret_cast<const char*>(data.data()), data.size() };
}

PropertyList::Data data(std::string_view bytes)
{
    const auto* first = reinterpret_cast<const std::byte*>(bytes.data());
    return { first, first + bytes.size() };
}

// The contents of the file, as read by Python.
std::string readByPython(const fs::path& file)
{
    desktop::ChildProcess python({ "python3", "-c",
                                     "import plistlib, sys\n"
                                     "print(ascii(plistlib.load(open(sys.argv[1], 'rb'))))",
                                     file },
        desktop::ChildProcess::Output::Piped);
    return python.readLine(std::chrono::seconds(30)).value_or("unreadable");
}

class ReadingAPropertyListFile : public testing::Test {
protected:
    std::optional<PropertyList> reading(std::string_view contents)
    {
        root.write(path, contents);
        return readPropertyListFile(path);
    }

    TemporaryRoot root;
};

class WritingAPropertyListFile : public testing::Test {
protected:
    std::optional<PropertyList> rereading(const PropertyList& value, NSPropertyListFormat format)
    {
        const auto bytes = dataWithPropertyList(value, format, 0);
        if (!bytes || !writeToFile(*bytes, path))
            return std::nullopt;
        return readPropertyListFile(path);
    }

    fs::path file() const { return root.path() / "values.plist"; }

    TemporaryRoot root;
    RecordingEffects effects;
};

ino_t inodeOf(const fs::path& file)
{
    struct stat status { };
    stat(file.c_str(), &status);
    return status.st_ino;
}

} // namespace

TEST_F(ReadingAPropertyListFile, KeepsTheOrderAndTypesOfXML)
{
    const auto value
        = reading("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
                  "<plist version=\"1.0\"><dict><key>z</key><integer>-3</integer><key>a</key><true/>"
                  "<key>m</key><real>2.5</real><key>t</key><string>a &amp; b</string></dict></plist>");
    ASSERT_TRUE(value && value->asDictionary());
    const auto& dictionary = *value->asDictionary();
    EXPECT_EQ(dictionary,
        (PropertyList::Dictionary { { "z", -3 }, { "a", true }, { "m", 2.5 }, { "t", "a & b" } }));
    EXPECT_EQ(dictionary.begin()[0].key, "z");
    EXPECT_EQ(dictionary.begin()[1].key, "a");
    EXPECT_EQ(dictionary.begin()[2].key, "m");
}

TEST_F(ReadingAPropertyListFile, AcceptsATopLevelOfAnyType)
{
    EXPECT_EQ(reading("<plist><string>text</string></plist>"), PropertyList("text"));
    EXPECT_EQ(reading("<plist><array/></plist>"), PropertyList(PropertyList::Array {}));
    EXPECT_EQ(reading(binaryFile({ std::string("\x10\x2a") })), PropertyList(42));
}

TEST_F(ReadingAPropertyListFile, DoesNotCountSiblingContainersAsNested)
{
    for (const auto* item : { "<array></array>", "<array/>", "<array />", "<dict></dict>", "<dict/>" }) {
        const auto value = reading("<plist><array>" + repeat(item, 1000) + "</array></plist>");
        ASSERT_TRUE(value && value->asArray()) << item;
        EXPECT_EQ(value->asArray()->size(), 1000u) << item;
    }
}

TEST_F(ReadingAPropertyListFile, ReturnsNothingWithoutAFile)
{
    EXPECT_EQ(readPropertyListFile("/missing.plist"), std::nullopt);
}

TEST_F(ReadingAPropertyListFile, ReturnsNothingForADirectory)
{
    EXPECT_EQ(readPropertyListFile("/var"), std::nullopt);
}

TEST_F(ReadingAPropertyListFile, ReturnsNothingForAPipeWithoutWaitingForIt)
{
    ASSERT_EQ(mkfifo((root.path() / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(readPropertyListFile("/pipe"), std::nullopt);
}

TEST_F(ReadingAPropertyListFile, ReturnsNothingForADevice)
{
    fs::create_symlink("/dev/zero", root.path() / "device");
    EXPECT_EQ(readPropertyListFile("/device"), std::nullopt);
}

TEST_F(ReadingAPropertyListFile, ReturnsNothingForAnInvalidPropertyList)
{
    testing::internal::CaptureStderr();
    for (auto* contents : { "", " ", "garbage", "bplist00",
             "bplist00 and then nothing that makes sense, at length", "<plist>", "<plist/>", "<html></html>",
             "{ ENABLED = 1; }", "( 1, 2 )", "<plist><dict><key>a</key>", "\xff\xfe\x01" })
        EXPECT_EQ(reading(contents), std::nullopt) << contents;
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(ReadingAPropertyListFile, ReturnsNothingForATruncatedFile)
{
    const auto whole = text(*dataWithPropertyList(everything(), binary, 0));
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_EQ(reading(whole.substr(0, length)), std::nullopt) << length;
}

TEST_F(ReadingAPropertyListFile, ReturnsNothingForContainersNestedTooDeeply)
{
    constexpr int depth = 200'000;
    EXPECT_EQ(
        reading("<plist>" + repeat("<array>", depth) + repeat("</array>", depth) + "</plist>"), std::nullopt);

    std::vector<std::string> objects;
    for (int i = 0; i < 60'000; ++i)
        objects.push_back(arrayOf({ i + 1 }));
    objects.push_back("\x09");
    EXPECT_EQ(reading(binaryFile(objects)), std::nullopt);
}

TEST_F(ReadingAPropertyListFile, AcceptsValuesInUpToFiveHundredAndTwelveContainers)
{
    const auto markup = [](std::size_t depth, const std::string& value) {
        return "<plist>" + repeat("<array>", depth) + value + repeat("</array>", depth) + "</plist>";
    };
    const auto binaryOf = [](int depth, const std::string& value) {
        std::vector<std::string> objects;
        for (int i = 0; i < depth; ++i)
            objects.push_back(arrayOf({ i + 1 }));
        objects.push_back(value);
        return binaryFile(objects);
    };
    for (const auto& deepest : { markup(512, "<true/>"), markup(512, "<array/>"), markup(512, "<dict/>"),
             binaryOf(512, "\x09"), binaryOf(512, "\xa0"), binaryOf(512, "\xd0") }) {
        const auto value = reading(deepest);
        ASSERT_TRUE(value);
        EXPECT_TRUE(dataWithPropertyList(*value, binary, 0));
        EXPECT_TRUE(dataWithPropertyList(*value, xml, 0));
    }
    for (const auto& deeper : { markup(513, "<true/>"), markup(513, "<array/>"), markup(513, "<dict/>"),
             binaryOf(513, "\x09"), binaryOf(513, "\xa0"), binaryOf(513, "\xd0") })
        EXPECT_EQ(reading(deeper), std::nullopt);
}

TEST_F(ReadingAPropertyListFile, ReturnsNothingForAnArrayThatContainsItself)
{
    EXPECT_EQ(reading(binaryFile({ arrayOf({ 0 }) })), std::nullopt);
    EXPECT_EQ(reading(binaryFile({ arrayOf({ 1 }), arrayOf({ 0 }) })), std::nullopt);
}

TEST_F(ReadingAPropertyListFile, AcceptsSharedObjects)
{
    const PropertyList two = PropertyList::Array { true, true };
    EXPECT_EQ(reading(binaryFile({ arrayOf({ 1, 1 }), arrayOf({ 2, 2 }), "\x09" })),
        PropertyList(PropertyList::Array { two, two }));
}

TEST_F(ReadingAPropertyListFile, ReturnsNothingForReferencesThatDoubleTooOften)
{
    std::vector<std::string> objects;
    for (int i = 0; i < 100; ++i)
        objects.push_back(arrayOf({ i + 1, i + 1 }));
    objects.push_back("\x09");
    EXPECT_EQ(reading(binaryFile(objects)), std::nullopt);

    // The entries alone exceed the limit, because their key is empty.
    std::vector<std::string> dictionaries { dictionaryOf(1, 2), stringOf("") };
    for (int i = 2; i < 100; ++i)
        dictionaries.push_back(dictionaryOf({ 1, 1 }, { i + 1, i + 1 }));
    dictionaries.emplace_back("\x09");
    EXPECT_EQ(reading(binaryFile(dictionaries)), std::nullopt);
}

TEST_F(ReadingAPropertyListFile, ReplacesInvalidBytesInText)
{
    const PropertyList expected = PropertyList::Dictionary { { "a\uFFFDb", "\uFFFDc" } };
    const auto value = reading(binaryFile({ dictionaryOf(1, 2),
        stringOf("a\xff"
                 "b"),
        stringOf("\xc3"
                 "c") }));
    EXPECT_EQ(value, expected);
    EXPECT_EQ(reading("<plist><dict><key>a\xff"
                      "b</key><string>\xc3"
                      "c</string></dict></plist>"),
        expected);
    ASSERT_TRUE(value);
    EXPECT_NE(dataWithPropertyList(*value, binary, 0), std::nullopt);
}

TEST_F(ReadingAPropertyListFile, ReturnsNothingForTextThatGetsTooLongToBeSaved)
{
    // Each invalid byte becomes three.
    const auto value = reading(binaryFile({ stringOf(std::string(4'000'000, '\xff')) }));
    ASSERT_TRUE(value);
    EXPECT_TRUE(dataWithPropertyList(*value, binary, 0));
    EXPECT_EQ(reading(binaryFile({ stringOf(std::string(5'000'000, '\xff')) })), std::nullopt);
}

TEST_F(ReadingAPropertyListFile, KeepsAMomentBeforeTheReferenceDate)
{
    const auto date = std::string("\x33\xbf\xf8\0\0\0\0\0\0", 9);
    const auto value = reading(binaryFile({ date }));
    ASSERT_TRUE(value && value->asDate());
    EXPECT_EQ(value->asDate()->secondsSinceReferenceDate, -1.5);
    EXPECT_THAT(text(*dataWithPropertyList(*value, binary, 0)), HasSubstr(date));
}

TEST_F(ReadingAPropertyListFile, ClampsADateToTheRangeThatCanBeWritten)
{
    const auto value = reading(binaryFile({ "\x33\x7e\x37\xe4\x3c\x88\x01\x75\x9c" }));
    ASSERT_TRUE(value && value->asDate());
    EXPECT_NE(dataWithPropertyList(*value, binary, 0), std::nullopt);
}

TEST_F(ReadingAPropertyListFile, ReturnsNothingForAFileThatIsTooLong)
{
    const auto padded = [](std::size_t length) {
        const std::string start = "<plist><true/><!--";
        const std::string end = "--></plist>";
        return start + std::string(length - start.size() - end.size(), ' ') + end;
    };
    EXPECT_EQ(reading(padded(8 << 20)), PropertyList(true));
    EXPECT_EQ(reading(padded((8 << 20) + 1)), std::nullopt);

    const auto binaryOf = [](std::size_t length) {
        return binaryFile({ "\x09", std::string(length - 49, ' ') });
    };
    static constexpr std::size_t longest = 32 << 20;
    ASSERT_EQ(binaryOf(longest).size(), longest);
    EXPECT_EQ(reading(binaryOf(longest)), PropertyList(true));
    EXPECT_EQ(reading(binaryOf(longest + 1)), std::nullopt);
}

TEST_F(ReadingAPropertyListFile, AllocatesNothingForAFileThatIsTooLong)
{
    root.write(path, "bplist00");
    // A sparse file: it takes almost no disk space, but is larger than any machine's memory.
    fs::resize_file(root.path() / "values.plist", std::uintmax_t { 1 } << 42);
    EXPECT_EQ(readPropertyListFile(path), std::nullopt);
}

TEST_F(ReadingAPropertyListFile, ReturnsNothingForReferencesToNowhere)
{
    EXPECT_EQ(reading(binaryFile({ arrayOf({ 7 }) })), std::nullopt);
}

TEST_F(WritingAPropertyListFile, KeepsEveryTypeInBothFormats)
{
    EXPECT_EQ(rereading(everything(), binary), everything());
    EXPECT_THAT(root.read(path), testing::StartsWith("bplist00"));
    EXPECT_EQ(rereading(everything(), xml), everything());
    EXPECT_THAT(root.read(path), testing::StartsWith("<?xml"));
}

TEST_F(WritingAPropertyListFile, KeepsTheOrderOfADictionary)
{
    const PropertyList value
        = PropertyList::Dictionary { { "PREAMP", 0.0 }, { "ENABLED", true }, { "AUTO_PREAMP", false } };
    const auto read = rereading(value, binary);
    ASSERT_TRUE(read);
    std::vector<std::string> keys;
    for (const auto& [key, ignored] : *read->asDictionary())
        keys.push_back(key);
    EXPECT_THAT(keys, ElementsAre("PREAMP", "ENABLED", "AUTO_PREAMP"));
}

TEST_F(WritingAPropertyListFile, WritesAFileThatOtherProgramsReadTheSame)
{
    rereading(everything(), binary);
    EXPECT_EQ(readByPython(file()),
        "{'yes': True, 'no': False, 'one': 1, 'minus': -5, 'smallest': -9223372036854775808, "
        "'largest': 9223372036854775807, 'single': 5.806451797485352, 'double': 0.1, "
        "'text': '\\U0001f3a7 B\\xe4sse & <H\\xf6hen>', 'empty': '', 'data': b'\\x00\\xff\\x07', 'no data': "
        "b'', "
        "'date': datetime.datetime(2023, 3, 8, 20, 26, 40), 'array': [1, 'two', []], 'a': {'z': 1, 'y': "
        "{}}}");
}

TEST_F(WritingAPropertyListFile, TakesFourBytesForARealOfSinglePrecision)
{
    const auto single = text(*dataWithPropertyList(PropertyList::Array { 5.8064516f, -12.0f }, binary, 0));
    EXPECT_THAT(single, HasSubstr("\x22\x40\xb9\xce\x74"));
    EXPECT_THAT(single, HasSubstr(std::string("\x22\xc1\x40\x00\x00", 5)));

    const auto exact = text(*dataWithPropertyList(PropertyList::Array { 0.1, -12.0 }, binary, 0));
    EXPECT_THAT(exact, HasSubstr("\x23\x3f\xb9\x99\x99\x99\x99\x99\x9a"));
    EXPECT_THAT(exact, HasSubstr(std::string("\x23\xc0\x28\0\0\0\0\0\0", 9)));
}

TEST_F(WritingAPropertyListFile, ReturnsNoDataForAValueWithNull)
{
    EXPECT_EQ(dataWithPropertyList({}, binary, 0), std::nullopt);
    EXPECT_EQ(dataWithPropertyList(PropertyList::Array { 1, {} }, binary, 0), std::nullopt);
    const PropertyList nested = PropertyList::Dictionary { { "a", PropertyList::Array { PropertyList() } } };
    EXPECT_EQ(dataWithPropertyList(nested, binary, 0), std::nullopt);
    EXPECT_EQ(dataWithPropertyList(nested, xml, 0), std::nullopt);
}

TEST_F(WritingAPropertyListFile, ReturnsNoDataForInvalidText)
{
    for (auto* bytes : { "\xff", "a\xc3", "\x80", "\xe2\x82", "\xc0\x80" })
        EXPECT_EQ(dataWithPropertyList(bytes, binary, 0), std::nullopt) << bytes;
    EXPECT_EQ(dataWithPropertyList(PropertyList::Dictionary { { "\xff", 1 } }, binary, 0), std::nullopt);
    EXPECT_EQ(dataWithPropertyList(std::string("a\0b", 3), xml, 0), std::nullopt);
}

TEST_F(WritingAPropertyListFile, ReturnsNoDataForAValueNestedTooDeeply)
{
    PropertyList deep = 1;
    for (int i = 0; i < 512; ++i)
        deep = PropertyList::Array { std::move(deep) };
    for (const auto format : { binary, xml })
        EXPECT_TRUE(dataWithPropertyList(deep, format, 0));
    deep = PropertyList::Array { std::move(deep) };
    for (const auto format : { binary, xml })
        EXPECT_EQ(dataWithPropertyList(deep, format, 0), std::nullopt);
}

TEST_F(WritingAPropertyListFile, ReturnsNoDataForAValueThatIsTooLarge)
{
    EXPECT_TRUE(dataWithPropertyList(PropertyList::Array(600'000, true), binary, 0));
    EXPECT_FALSE(dataWithPropertyList(PropertyList::Array(650'000, true), binary, 0));
    EXPECT_TRUE(dataWithPropertyList(repeat("a", 12'000'000), binary, 0));
    EXPECT_FALSE(dataWithPropertyList(repeat("a", 13'000'000), binary, 0));

    std::vector<PropertyListDictionary::Entry> entries;
    entries.reserve(340'000);
    for (int i = 0; i < 340'000; ++i)
        entries.push_back({ std::to_string(i), true });
    EXPECT_FALSE(dataWithPropertyList(PropertyListDictionary(entries), binary, 0));
    entries.resize(200'000);
    EXPECT_TRUE(dataWithPropertyList(PropertyListDictionary(entries), binary, 0));
}

TEST_F(WritingAPropertyListFile, AcceptsTenThousandPresets)
{
    PropertyList::Dictionary presets;
    for (int i = 0; i < 10'000; ++i)
        presets.set("Preset " + std::to_string(i), PropertyList::Array(10, PropertyList(0.5f)));
    EXPECT_EQ(rereading(presets, binary), PropertyList(presets));
}

TEST_F(WritingAPropertyListFile, KeepsTheFileAndTruncatesIt)
{
    root.write(path, "an older and longer text");
    const auto inode = inodeOf(file());
    EXPECT_TRUE(writeToFile(data("new"), path));
    EXPECT_EQ(root.read(path), "new");
    EXPECT_EQ(inodeOf(file()), inode);
}

TEST_F(WritingAPropertyListFile, CreatesItForTheUserOnly)
{
    ASSERT_TRUE(writeToFile(data("new"), path));
    EXPECT_EQ(fs::status(file()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(WritingAPropertyListFile, IsReportedAsAnEffectWhenItIsDone)
{
    writeToFile(data("new"), path);
    writeToFile(data("new"), "/other.plist");
    EXPECT_THAT(effects.trace(), ElementsAre("write /values.plist", "write /other.plist"));
}

TEST_F(WritingAPropertyListFile, CreatesNoFolders)
{
    EXPECT_FALSE(writeToFile(data("new"), "/missing/values.plist"));
    EXPECT_FALSE(root.contains("/missing"));
    EXPECT_THAT(effects.trace(), IsEmpty());
}

TEST_F(WritingAPropertyListFile, RejectsPipesAndFoldersWithoutBlocking)
{
    ASSERT_EQ(mkfifo(file().c_str(), 0600), 0);
    EXPECT_FALSE(writeToFile(data("new"), path));
    EXPECT_FALSE(writeToFile(data("new"), "/var"));
    EXPECT_THAT(effects.trace(), IsEmpty());
}

TEST_F(WritingAPropertyListFile, FailsWhenOnlyAPartCanBeWritten)
{
    rlimit before {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handlerBefore = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small { 1000, before.rlim_max };
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    root.write("/kept.plist", "old");
    const PropertyList::Data large(5000);
    EXPECT_FALSE(writeToFile(large, path));
    EXPECT_FALSE(writeToFile(large, "/kept.plist"));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handlerBefore);

    EXPECT_EQ(root.read("/kept.plist"), "old");
    EXPECT_THAT(effects.trace(), IsEmpty());
    EXPECT_EQ(std::distance(fs::directory_iterator(root.path()), {}), 2) << "a part of a file was left";
}

} // namespace brimsound
