// Compares how this code reads and writes property lists with two other programs: Python's plistlib and
// libplist.
#include "platform/desktop/Foundation/BinaryPropertyListWriter.h"
#include "platform/desktop/Foundation/PropertyListParsing.h"
#include "platform/desktop/process/ChildProcess.h"
#include "tests/support/Alike.h"
#include "tests/support/PropertyListDescription.h"
#include "tests/support/RandomPropertyLists.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <functional>
#include <map>
#include <span>

namespace brimsound::tests {
namespace {

namespace fs = std::filesystem;

/// A known difference of another program, and the values that it applies to.
struct Difference {
    std::string name;
    std::function<bool(const PropertyList&)> concerns;
};

bool isKeyOrText(const PropertyList& value, const std::function<bool(std::string_view)>& test)
{
    if (const auto* text = value.asString(); text && test(*text))
        return true;
    if (const auto* dictionary = value.asDictionary()) {
        for (const auto& entry : *dictionary) {
            if (test(entry.key))
                return true;
        }
    }
    return false;
}

bool holdsNul(std::string_view text)
{
    return text.find('\0') != std::string_view::npos;
}

/// Whether the text contains an unpaired surrogate: three bytes, the first ED and the second A0 or more.
bool holdsHalfAPair(std::string_view text)
{
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == '\xED' && static_cast<unsigned char>(text[i + 1]) >= 0xA0)
            return true;
    }
    return false;
}

bool holdsControl(std::string_view text)
{
    return std::ranges::any_of(
        text, [](char byte) { return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F; });
}

bool isOrHolds(const PropertyList& value, const std::function<bool(const PropertyList&)>& concerns)
{
    const auto isConcerned = [&](const PropertyList& element) { return isOrHolds(element, concerns); };
    if (concerns(value))
        return true;
    if (const auto* array = value.asArray())
        return std::ranges::any_of(*array, isConcerned);
    if (const auto* set = value.asSet())
        return std::ranges::any_of(set->elements, isConcerned);
    if (const auto* dictionary = value.asDictionary())
        return std::ranges::any_of(*dictionary, [&](const auto& entry) { return isConcerned(entry.value); });
    return false;
}

const std::vector<Difference> readingByPlistlib {
    { "a set is no type of plistlib's", [](const PropertyList& value) { return value.asSet() != nullptr; } },
    { "half a surrogate pair is no text to plistlib",
        [](const PropertyList& value) { return isKeyOrText(value, holdsHalfAPair); } },
    { "plistlib's dates are whole microseconds of the years 1 to 9999",
        [](const PropertyList& value) {
            const auto* date = value.asDate();
            return date
                && (std::abs(date->secondsSinceReferenceDate) > 6e10
                    || date->secondsSinceReferenceDate != std::floor(date->secondsSinceReferenceDate));
        } },
};

const std::vector<Difference> writingByPlistlib {
    { "plistlib has reals of eight bytes alone",
        [](const PropertyList& value) { return value.isSingleReal(); } },
    { "plistlib writes no integer beyond 64 bits",
        [](const PropertyList& value) { return value.asWideInteger() && value.asWideInteger()->high != 0; } },
    { "the zeros of both signs, and a NaN and another, are not told apart as plistlib does",
        [](const PropertyList& value) {
            return value.asReal() && (*value.asReal() == 0 || std::isnan(*value.asReal()));
        } },
};

const std::vector<Difference> readingByLibplist {
    { "libplist makes an array of a set, or nothing",
        [](const PropertyList& value) { return value.asSet() != nullptr; } },
    { "libplist ends a text at its first NUL",
        [](const PropertyList& value) { return isKeyOrText(value, holdsNul); } },
    { "libplist takes two halves of different pairs for a pair",
        [](const PropertyList& value) { return isKeyOrText(value, holdsHalfAPair); } },
    { "libplist's dates are seconds of 32 bits and microseconds",
        [](const PropertyList& value) {
            const auto* date = value.asDate();
            return date
                && (std::abs(date->secondsSinceReferenceDate) > 2e9
                    || date->secondsSinceReferenceDate != std::floor(date->secondsSinceReferenceDate));
        } },
};

/// Differences in the XML that plistlib writes.
const std::vector<Difference> readingXmlOfPlistlib {
    { "plistlib's XML has whole seconds", readingByPlistlib[2].concerns },
    { "a carriage return is a line feed to a reader of XML",
        [](const PropertyList& value) { return isKeyOrText(value, holdsControl); } },
};

/// The parts where both texts first differ; empty when they are equal.
std::string differenceOf(std::string_view theirs, std::string_view ours)
{
    constexpr std::size_t around = 30;
    if (theirs == ours)
        return "";
    const auto start = std::mismatch(theirs.begin(), theirs.end(), ours.begin(), ours.end()).first;
    const auto place = static_cast<std::size_t>(start - theirs.begin());
    const auto from = place - std::min(place, around);
    return "theirs …" + std::string(theirs.substr(from, 2 * around)) + "… ours …"
        + std::string(ours.substr(from, 2 * around)) + "…";
}

/// Whether one of the differences applies to the value.
bool isExcused(const std::vector<Difference>& differences, const PropertyList& value)
{
    return std::ranges::any_of(
        differences, [&](const Difference& difference) { return isOrHolds(value, difference.concerns); });
}

std::span<const std::byte> bytesOf(const std::string& text)
{
    return std::as_bytes(std::span(text));
}

std::string textOf(const PropertyList::Data& data)
{
    return { reinterpret_cast<const char*>(data.data()), data.size() };
}

void describeByPython(const fs::path& folder)
{
    desktop::ChildProcess python(
        { "python3", PLIST_DESCRIPTION, folder }, desktop::ChildProcess::Output::Piped);
    // The interpreter prints nothing; this waits until it ends.
    python.readLine(std::chrono::seconds(100));
}

/// Compares the results of each program for one file.
class Comparison {
public:
    explicit Comparison(const fs::path& file)
        : _name(file.filename())
        , _contents(readFile(file))
        , _description(readFile(file.string() + ".description"))
        , _xml(readFile(file.string() + ".xml"))
        , _binary(readFile(file.string() + ".binary"))
        , _value(desktop::parsePropertyList(bytesOf(_contents)))
    {
    }

    bool isRead() const { return _value.has_value(); }

    void expectThatOthersReadAlike() const
    {
        if (!isExcused(readingByPlistlib, *_value)) {
            EXPECT_EQ(differenceOf(_description, descriptionOf(*_value)), "") << _name << " by plistlib";
        }
        if (!isExcused(readingByLibplist, *_value) && isReadByLibplist()) {
            EXPECT_EQ(differenceOf(descriptionByLibplist(_contents), descriptionForLibplist(*_value)), "")
                << _name << " by libplist";
        }
    }

    void expectThatOutputOfPlistlibIsReadAlike() const
    {
        if (isExcused(readingByPlistlib, *_value))
            return;
        if (!_binary.empty())
            expectToRead(_binary, " in binary");
        if (!_xml.empty() && !isExcused(readingXmlOfPlistlib, *_value))
            expectToRead(_xml, " in XML");
    }

    /// Whether plistlib could write the file. Its bytes must then be the same.
    bool expectTheBytesOfPlistlib() const
    {
        if (_binary.empty() || isExcused(readingByPlistlib, *_value) || isExcused(writingByPlistlib, *_value))
            return false;
        EXPECT_TRUE(_binary == _contents) << _name;
        return true;
    }

    void expectToBeWrittenAlike() const
    {
        const auto written = desktop::writeBinaryPropertyList(*_value);
        ASSERT_TRUE(written) << _name;
        const auto again = desktop::parsePropertyList(*written);
        ASSERT_TRUE(again) << _name;
        EXPECT_TRUE(areAlike(*again, *_value)) << _name;
        EXPECT_EQ(differenceOf(descriptionOf(*again), descriptionOf(*_value)), "") << _name;
    }

    const std::string& name() const { return _name; }
    bool isReadByPlistlib() const { return _description != "unreadable"; }
    bool isReadByLibplist() const { return descriptionByLibplist(_contents) != "unreadable"; }

private:
    void expectToRead(const std::string& file, const char* format) const
    {
        const auto again = desktop::parsePropertyList(bytesOf(file));
        EXPECT_EQ(differenceOf(_description, again ? descriptionOf(*again) : "unreadable"), "")
            << _name << format;
    }

    std::string _name;
    std::string _contents;
    std::string _description;
    std::string _xml;
    std::string _binary;
    std::optional<PropertyList> _value;
};

constexpr int mostFiles = 400;

std::string nameOf(int number)
{
    return std::to_string(number) + ".plist";
}

TEST(AFileOfAnotherWriter, IsReadAsOthersReadIt)
{
    const TemporaryFolder folder;
    RandomPropertyLists random(1);
    for (int i = 0; i < mostFiles; ++i)
        writeFile(folder.path() / nameOf(i), random.file());
    describeByPython(folder.path());
    for (int i = 0; i < mostFiles; ++i) {
        const Comparison comparison(folder.path() / nameOf(i));
        ASSERT_TRUE(comparison.isRead()) << i;
        comparison.expectThatOthersReadAlike();
        comparison.expectThatOutputOfPlistlibIsReadAlike();
        comparison.expectToBeWrittenAlike();
    }
}

TEST(AFileWrittenHere, IsReadAlikeByOthersAndHasTheBytesOfPlistlib)
{
    const TemporaryFolder folder;
    RandomPropertyLists random(2);
    std::vector<PropertyList> values;
    for (int i = 0; i < mostFiles; ++i) {
        values.push_back(random.value());
        const auto written = desktop::writeBinaryPropertyList(values.back());
        ASSERT_TRUE(written) << i;
        writeFile(folder.path() / nameOf(i), textOf(*written));
    }
    describeByPython(folder.path());
    int compared = 0;
    for (int i = 0; i < mostFiles; ++i) {
        const Comparison comparison(folder.path() / nameOf(i));
        ASSERT_TRUE(comparison.isRead()) << i;
        const auto again = desktop::parsePropertyList(bytesOf(readFile(folder.path() / nameOf(i))));
        EXPECT_TRUE(areAlike(*again, values[static_cast<std::size_t>(i)])) << i;
        comparison.expectThatOthersReadAlike();
        comparison.expectThatOutputOfPlistlibIsReadAlike();
        compared += comparison.expectTheBytesOfPlistlib() ? 1 : 0;
    }
    EXPECT_GT(compared, mostFiles / 10);
}

/// The results of other programs for files of the corpus that they read differently.
const std::map<std::string, std::string> knownOfTheCorpus {
    { "doubling-references.plist", "its values have no end where objects that are shared stay shared" },
    { "nested-500.plist", "it is too deep for the interpreter" },
    { "no-text.xml", "libplist leaves bytes as they are that are no text, plistlib reads none" },
};

TEST(AFileOfTheCorpus, IsReadAsOthersReadItButForKnownDifferences)
{
    const TemporaryFolder folder;
    for (const auto& file : fs::directory_iterator(CORPUS)) {
        if (!knownOfTheCorpus.contains(file.path().filename()))
            fs::copy(file, folder.path());
    }
    describeByPython(folder.path());
    for (const auto& file : fs::directory_iterator(CORPUS)) {
        const Comparison comparison(folder.path() / file.path().filename());
        if (knownOfTheCorpus.contains(comparison.name()))
            continue;
        if (comparison.isRead())
            comparison.expectThatOthersReadAlike();
        else
            EXPECT_FALSE(comparison.isReadByPlistlib() || comparison.isReadByLibplist()) << comparison.name();
    }
}

} // namespace
} // namespace brimsound::tests
