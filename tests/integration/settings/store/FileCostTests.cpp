// The cost of reading the worst files: at most 64 MiB of memory, or 16 MiB plus twenty times the file if that
// is less, and a time in proportion to the file. Benchmarks measure the time.
#include "settings/store/preferences.h"
#include "settings/tweak.h"
#include "tests/support/BinaryPropertyList.h"
#include "tests/support/TemporaryRoot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <dlfcn.h>
#include <fstream>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace brimsound::tests {
namespace {

/// The size of the process's address space in bytes.
std::size_t addressSpace()
{
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

/// Far more than any file takes.
constexpr rlim_t mostSeconds = 4;

/// Reads the preferences with that limit of memory in bytes. When the memory is too small, or after several
/// seconds of processor time, a signal ends the process.
[[noreturn]] void readWithin(std::size_t memory) noexcept
{
    alarm(60);
    const rlimit time { mostSeconds, mostSeconds };
    malloc_trim(0);
    const rlimit limit { addressSpace() + memory, RLIM_INFINITY };
    if (setrlimit(RLIMIT_AS, &limit) != 0 || setrlimit(RLIMIT_CPU, &time) != 0)
        _exit(1);
    get_preferences();
    _exit(0);
}

/// Reads them in this way in a new process. Returns false when a signal ended it.
bool canBeReadWithin(std::size_t memory)
{
    const pid_t process = fork();
    if (process == 0)
        readWithin(memory);
    int status = 0;
    return waitpid(process, &status, 0) == process && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

class AFileThatCosts : public testing::Test {
protected:
    void SetUp() override
    {
        if (dlsym(RTLD_DEFAULT, "__asan_init"))
            GTEST_SKIP() << "AddressSanitizer needs additional memory";
    }

    /// Tries files of increasing size, up to the largest that is accepted.
    template <typename Make>
    void expectWithinBounds(std::initializer_list<std::size_t> counts, const Make& make)
    {
        for (const auto count : counts) {
            const std::string contents = make(count);
            expectCost(contents, (std::size_t { 16 } << 20) + 20 * contents.size());
        }
    }

    void expectCost(const std::string& contents, std::size_t memory = mostMemory)
    {
        root.write(preferencesPath, contents);
        EXPECT_TRUE(canBeReadWithin(std::min(memory, mostMemory)))
            << contents.size() << " bytes take too much";
    }

    static constexpr std::size_t mostMemory = std::size_t { 64 } << 20;

    TemporaryRoot root;
};

constexpr std::initializer_list<std::size_t> manyTimes { 30'000, 50'000, 60'000, 80'000, 100'000, 130'000,
    150'000, 250'000, 1'000'000 };

/// A dictionary with an array of that many copies of the objects that follow.
auto copiesOf(const std::vector<std::string>& objects)
{
    return [objects](std::size_t count) {
        std::vector<std::string> all { dictionaryOf(1, 2), stringOf("k"), arrayOfCopies(count, 3) };
        all.insert(all.end(), objects.begin(), objects.end());
        return binaryFile(all);
    };
}

auto markupOf(std::string item)
{
    return [item](std::size_t count) {
        return "<plist><dict><key>k</key><array>" + repeat(item, count) + "</array></dict></plist>";
    };
}

auto markupWithText(std::string text)
{
    return [text](std::size_t count) {
        return "<plist><dict><key>k</key><string>" + repeat(text, count) + "</string></dict></plist>";
    };
}

TEST_F(AFileThatCosts, StaysWithinBoundsWithCopiesOfScalars)
{
    expectWithinBounds(manyTimes, copiesOf({ "\x09" }));
    expectWithinBounds(manyTimes, copiesOf({ stringOf("") }));
    expectWithinBounds(manyTimes, copiesOf({ stringOf("\xff\xff\xff\xff") }));
    expectWithinBounds(manyTimes, copiesOf({ "\x41x" }));
}

TEST_F(AFileThatCosts, StaysWithinBoundsWithCopiesOfContainers)
{
    expectWithinBounds(manyTimes, copiesOf({ "\xa0" }));
    expectWithinBounds(manyTimes, copiesOf({ "\xd0" }));
    expectWithinBounds(manyTimes, copiesOf({ arrayOf({ 4 }), arrayOf({ 5 }), "\x09" }));
    expectWithinBounds(manyTimes, copiesOf({ dictionaryOf(4, 5), stringOf("key"), "\x09" }));
}

TEST_F(AFileThatCosts, StaysWithinBoundsWithCopiesOfLongTexts)
{
    const auto longText = std::string(100'000, 'x');
    expectWithinBounds({ 10, 30, 50, 100, 1000 }, copiesOf({ stringOf(longText) }));
    expectWithinBounds({ 10, 30, 50, 100, 1000 }, copiesOf({ stringOf(std::string(100'000, '\xff')) }));
}

TEST_F(AFileThatCosts, StaysWithinBoundsWithManyKeys)
{
    expectWithinBounds(manyTimes, [](std::size_t count) {
        std::string entries;
        for (std::size_t i = 0; i < count; ++i)
            entries += "<key>" + std::to_string(i) + "</key><true/>";
        return "<plist><dict>" + entries + "</dict></plist>";
    });
}

TEST_F(AFileThatCosts, StaysWithinBoundsWithManyTags)
{
    for (const auto* item :
        { "<true/>", "<array/>", "<dict/>", "<string/>", "<real>1</real>", "<array><true/></array>" })
        expectWithinBounds(manyTimes, markupOf(item));
}

TEST_F(AFileThatCosts, StaysWithinBoundsWithLongTexts)
{
    for (const auto* text : { "&amp;", "x&#65;", "<![CDATA[]]>", "x<!---->", "\xff", "x" })
        expectWithinBounds(manyTimes, markupWithText(text));
}

/// A dictionary with those keys; each value is the object after the last key.
std::vector<std::string> dictionaryOfKeys(const std::vector<std::string>& keys)
{
    std::vector<int> places;
    for (std::size_t i = 0; i < keys.size(); ++i)
        places.push_back(static_cast<int>(i) + 1);
    std::vector<std::string> objects { dictionaryOf(
        places, std::vector<int>(keys.size(), static_cast<int>(keys.size()) + 1)) };
    for (const auto& key : keys)
        objects.push_back(stringOf(key));
    objects.emplace_back("\x09");
    return objects;
}

TEST_F(AFileThatCosts, StaysWithinBoundsWithKeysThatCollide)
{
    auto keys = collidingKeys();
    std::string markup;
    for (const auto& key : keys)
        markup += "<key>" + key + "</key><true/>";
    expectCost("<plist><dict>" + markup + "</dict></plist>");
    keys.resize(60'000);
    expectCost(binaryFile(dictionaryOfKeys(keys)));
    EXPECT_EQ(get_preferences().size(), keys.size());
}

TEST_F(AFileThatCosts, StaysWithinBoundsWithAHundredThousandKeys)
{
    PropertyList::Dictionary preferences;
    for (int i = 0; i < 100'000; ++i)
        preferences.set(std::to_string(i), i);
    write_preferences(preferences);
    expectCost(root.read(preferencesPath));
    preferences.set(enabledKey, false);
    write_preferences(preferences);
    EXPECT_TRUE(get_preferences() == preferences);
}

TEST_F(AFileThatCosts, StaysWithinBoundsWithReferencesThatDouble)
{
    for (const std::size_t depth : { 10u, 20u, 100u, 500u }) {
        std::vector<std::string> objects { dictionaryOf(1, 2), stringOf("k") };
        for (std::size_t place = 2; place < depth; ++place)
            objects.push_back(arrayOf({ static_cast<int>(place) + 1, static_cast<int>(place) + 1 }));
        objects.emplace_back("\x09");
        expectCost(binaryFile(objects));
    }
}

TEST_F(AFileThatCosts, StaysWithinBoundsWithContainersOfTheMaximumDepth)
{
    constexpr int depth = 511;
    std::vector<std::string> objects;
    for (int place = 0; place < depth; ++place)
        objects.push_back(dictionaryOf({ depth + 1, depth + 2 }, { place + 1, depth }));
    objects.push_back(arrayOfCopies(1000, depth + 1));
    objects.push_back(stringOf("k"));
    objects.push_back(stringOf("l"));
    expectCost(binaryFile(objects));
    const auto nested = repeat("<array>" + repeat("<true/>", 400), depth) + repeat("</array>", depth);
    expectCost("<plist><dict><key>k</key>" + nested + "</dict></plist>");
}

TEST_F(AFileThatCosts, StaysWithinBoundsWithCountsBeyondTheFile)
{
    for (const char kind : { '\x4f', '\x5f', '\x6f', '\xaf', '\xcf', '\xdf' }) {
        for (const char* count : { "\x7f", "\xff", "\x10", "\x01" }) {
            for (const std::size_t size : { 1u, 2u, 4u, 8u }) {
                const auto logarithm = static_cast<char>(size == 1 ? 0 : size == 2 ? 1 : size == 4 ? 2 : 3);
                const auto head = std::string(1, kind) + static_cast<char>(0x10 | logarithm) + count
                    + std::string(size - 1, '\xff');
                expectCost(binaryFile({ dictionaryOf(1, 2), stringOf("k"), head }));
                expectCost(binaryFile({ head }));
            }
        }
    }
}

TEST_F(AFileThatCosts, StaysWithinBoundsWithObjectsThatOverlap)
{
    // Each byte of a long run of markers starts an object: an array, dictionary or text of fourteen or more.
    for (const char marker : { '\xae', '\xde', '\x5e', '\x6e', '\xaf', '\x5f' }) {
        for (const std::size_t length : { 1'000u, 50'000u })
            expectCost(overlappingFile(std::string(length, marker)));
    }
}

} // namespace
} // namespace brimsound::tests
