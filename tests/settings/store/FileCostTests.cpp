// What the worst of files cost: at most two seconds, and 16 MiB and twenty times the file of memory.
#include "settings/store/preferences.h"
#include "settings/tweak.h"
#include "tests/support/BinaryPropertyList.h"
#include "tests/support/TemporaryRoot.h"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <fstream>
#include <malloc.h>
#include <optional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace brimsound::tests {
namespace {

/// What the process holds of addresses, in bytes.
std::size_t addressSpace()
{
    std::size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

/// Reads the preferences with no more memory than that, in bytes; without it, or after a minute, the process
/// ends by a signal.
[[noreturn]] void readWithin(std::size_t memory) noexcept
{
    alarm(60);
    malloc_trim(0);
    const rlimit limit { addressSpace() + memory, RLIM_INFINITY };
    if (setrlimit(RLIMIT_AS, &limit) != 0)
        _exit(1);
    get_preferences();
    _exit(0);
}

double secondsOf(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Reads them so in a new process. The seconds of processor time that it took; nothing when the process was
/// ended.
std::optional<double> timeOfReadingWithin(std::size_t memory)
{
    const pid_t process = fork();
    if (process == 0)
        readWithin(memory);
    int status = 0;
    rusage usage {};
    if (wait4(process, &status, 0, &usage) != process || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return std::nullopt;
    return secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
}

class AFileThatCosts : public testing::Test {
protected:
    void SetUp() override
    {
        if (dlsym(RTLD_DEFAULT, "__asan_init"))
            GTEST_SKIP() << "AddressSanitizer takes memory of its own";
    }

    /// Tries files that grow, so that one is the largest to be taken.
    template <typename Make>
    void expectWithinBounds(std::initializer_list<std::size_t> counts, const Make& make)
    {
        for (const auto count : counts) {
            const std::string contents = make(count);
            root.write(preferencesPath, contents);
            const auto seconds = timeOfReadingWithin((std::size_t { 16 } << 20) + 20 * contents.size());
            ASSERT_TRUE(seconds) << count << " in " << contents.size() << " bytes take too much";
            EXPECT_LE(*seconds, 2) << count << " in " << contents.size() << " bytes";
        }
    }

    TemporaryRoot root;
};

constexpr std::initializer_list<std::size_t> manyTimes { 30'000, 50'000, 60'000, 80'000, 100'000, 130'000,
    150'000, 250'000, 1'000'000 };

/// A dictionary with an array of so many copies of the objects that follow.
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

} // namespace
} // namespace brimsound::tests
