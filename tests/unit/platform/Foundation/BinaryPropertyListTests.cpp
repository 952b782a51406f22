// The binary format byte by byte: reading objects that were built by hand, and the bytes that are written.
#include "platform/desktop/Foundation/BinaryPropertyListReader.h"
#include "platform/desktop/Foundation/BinaryPropertyListWriter.h"
#include "tests/support/Alike.h"
#include "tests/support/BinaryPropertyList.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <span>

namespace brimsound::tests {
namespace {

using desktop::readBinaryPropertyList;
using desktop::writeBinaryPropertyList;

std::string bytes(std::initializer_list<unsigned> values)
{
    std::string text;
    for (const unsigned value : values)
        text += static_cast<char>(value);
    return text;
}

std::optional<PropertyList> reading(const std::string& file)
{
    return readBinaryPropertyList(std::as_bytes(std::span(file)));
}

std::optional<PropertyList> readingObject(const std::string& object)
{
    return reading(binaryFile({ object }));
}

std::string writing(const PropertyList& value)
{
    const auto data = writeBinaryPropertyList(value);
    return data ? std::string(reinterpret_cast<const char*>(data->data()), data->size()) : "";
}

/// The bytes between the magic number and the table of a file with one object.
std::string objectOf(const PropertyList& value)
{
    const auto file = writing(value);
    return file.empty() ? "" : file.substr(8, file.size() - 8 - 1 - 32);
}

TEST(ABinaryInteger, HasNoSignUpToFourBytes)
{
    EXPECT_EQ(readingObject(bytes({ 0x10, 0xff })), PropertyList(255));
    EXPECT_EQ(readingObject(bytes({ 0x11, 0xff, 0xff })), PropertyList(65535));
    EXPECT_EQ(
        readingObject(bytes({ 0x12, 0xff, 0xff, 0xff, 0xff })), PropertyList(std::int64_t { 4294967295 }));
    EXPECT_EQ(readingObject("\x13" + std::string(8, '\xff')), PropertyList(-1));
    EXPECT_EQ(readingObject("\x14" + std::string(16, '\xff')), PropertyList(-1));
    EXPECT_EQ(readingObject("\x14" + std::string(8, '\0') + std::string(8, '\xff')),
        PropertyList(std::numeric_limits<std::uint64_t>::max()));
    EXPECT_EQ(readingObject("\x15" + std::string(32, '\0')), std::nullopt);
}

TEST(ABinaryInteger, IsWrittenInItsSmallestSize)
{
    const std::pair<std::int64_t, std::size_t> sizes[] { { 0, 1 }, { 255, 1 }, { 256, 2 }, { 65535, 2 },
        { 65536, 4 }, { 4294967295, 4 }, { 4294967296, 8 }, { INT64_MAX, 8 }, { -1, 8 }, { INT64_MIN, 8 } };
    for (const auto& [value, size] : sizes)
        EXPECT_EQ(objectOf(value).size(), 1 + size) << value;
    EXPECT_EQ(objectOf(std::uint64_t { UINT64_MAX }), "\x14" + std::string(8, '\0') + std::string(8, '\xff'));
    const PropertyList wide = PropertyList::WideInteger { INT64_MIN, 7 };
    EXPECT_EQ(objectOf(wide), "\x14\x80" + std::string(14, '\0') + "\7");
    EXPECT_EQ(readingObject(objectOf(wide)), wide);
}

TEST(ABinaryReal, KeepsItsPrecision)
{
    const auto single = bytes({ 0x22, 0x40, 0xb9, 0xce, 0x74 });
    const auto twice = bytes({ 0x23, 0x3f, 0xf8, 0, 0, 0, 0, 0, 0 });
    EXPECT_EQ(objectOf(*readingObject(single)), single);
    EXPECT_EQ(objectOf(*readingObject(twice)), twice);
    EXPECT_EQ(objectOf(-0.0), bytes({ 0x23, 0x80, 0, 0, 0, 0, 0, 0, 0 }));
}

TEST(ABinaryUid, IsOneByteLongerThanItsMarkerSays)
{
    EXPECT_EQ(readingObject(bytes({ 0x80, 7 })), PropertyList(PropertyList::Uid { 7 }));
    EXPECT_EQ(readingObject(bytes({ 0x82, 1, 0, 0 })), PropertyList(PropertyList::Uid { 65536 }));
    EXPECT_EQ(objectOf(PropertyList::Uid { 65536 }), bytes({ 0x83, 0, 1, 0, 0 }));
    EXPECT_EQ(readingObject("\x88" + std::string(9, '\0')), std::nullopt);
}

TEST(ABinaryText, KeepsEveryUnit)
{
    const std::pair<std::string, std::string> texts[] {
        { bytes({ 0x53, 'a', 0, 'b' }), std::string("a\0b", 3) },
        { bytes({ 0x62, 0xd8, 0x3c, 0xdf, 0xa7 }), "\U0001F3A7" },
        { bytes({ 0x61, 0xd8, 0x3c }), "\xED\xA0\xBC" },
        { bytes({ 0x62, 0xdf, 0xa7, 0xd8, 0x3c }), "\xED\xBE\xA7\xED\xA0\xBC" },
        { bytes({ 0x61, 0xff, 0xff }), "\uFFFF" },
        { bytes({ 0x61, 0x07, 0xff }), "\u07FF" },
        { bytes({ 0x61, 0x08, 0x00 }), "\u0800" },
    };
    for (const auto& [object, text] : texts) {
        EXPECT_EQ(readingObject(object), PropertyList(text)) << text;
        EXPECT_EQ(objectOf(text), object) << text;
    }
    EXPECT_EQ(objectOf(PropertyList(std::string(15, 'a'))), bytes({ 0x5f, 0x10, 15 }) + std::string(15, 'a'));
}

TEST(ABinaryText, IsWrittenInAsciiWhereItCanBe)
{
    EXPECT_EQ(objectOf(*readingObject(bytes({ 0x62, 0, 'a', 0, 'b' }))), bytes({ 0x52, 'a', 'b' }));
}

TEST(ABinaryFile, HoldsEachEqualValueOnce)
{
    const PropertyList::Array same { 1, 1, "a", "a", 1.5f, 1.5f, true, true, PropertyList::Uid { 1 },
        PropertyList::Uid { 1 } };
    EXPECT_EQ(writing(same).at(8 + 1 + 10), '\x10') << "not an array of ten references";
    const auto file = writing(same);
    EXPECT_EQ(file.at(file.size() - 32 + 15), '\6') << "not the array and five others";

    // Equal in value, but with different types or bits.
    const PropertyList::Array different { 1, true, 1.0, 1.0f, PropertyList::Uid { 1 },
        PropertyList::Date { 1 }, "1", PropertyList::Data { std::byte { '1' } }, 0.0, -0.0 };
    const auto other = writing(different);
    EXPECT_EQ(other.at(other.size() - 32 + 15), '\x0b');
    EXPECT_TRUE(areAlike(*reading(other), different));
}

TEST(ABinaryFile, HasReferencesOfTheSizeThatItNeeds)
{
    for (const std::size_t count : { 254u, 255u, 256u, 65534u, 65536u }) {
        PropertyList::Array numbers;
        for (std::size_t i = 0; i < count; ++i)
            numbers.emplace_back(static_cast<std::int64_t>(i));
        const auto file = writing(numbers);
        const auto referenceSize = file.at(file.size() - 32 + 7);
        EXPECT_EQ(referenceSize, count + 1 <= 0xff ? 1 : count + 1 <= 0xffff ? 2 : 4) << count;
        EXPECT_EQ(reading(file), PropertyList(numbers)) << count;
    }
}

TEST(ABinaryDictionary, KeepsOfRepeatedKeysTheLastValueInTheFirstPlace)
{
    const auto file = binaryFile({ dictionaryOf({ 1, 2, 3 }, { 4, 5, 6 }), stringOf("a"), stringOf("b"),
        stringOf("a"), bytes({ 0x10, 1 }), bytes({ 0x10, 2 }), bytes({ 0x10, 3 }) });
    const auto value = reading(file);
    ASSERT_TRUE(value && value->asDictionary());
    EXPECT_EQ(value->asDictionary()->size(), 2u);
    EXPECT_EQ(value->asDictionary()->begin()->key, "a");
    EXPECT_EQ(value->asDictionary()->begin()->value, PropertyList(3));
}

TEST(ABinaryDictionary, HasTextsForKeys)
{
    EXPECT_EQ(reading(binaryFile({ dictionaryOf(1, 1), "\x09" })), std::nullopt);
    EXPECT_EQ(reading(binaryFile({ dictionaryOf(1, 1), arrayOf({}) })), std::nullopt);
    EXPECT_EQ(reading(binaryFile({ dictionaryOf(1, 1), bytes({ 0x41, 'a' }) })), std::nullopt);
}

TEST(ABinaryObject, ThatEndsAfterTheObjectsIsInvalid)
{
    for (const auto& object : { bytes({ 0x13, 0, 0 }), bytes({ 0x22, 0, 0, 0 }), bytes({ 0x23, 0, 0, 0 }),
             bytes({ 0x33, 0 }), bytes({ 0x42, 0 }), bytes({ 0x52, 'a' }), bytes({ 0x61, 0 }),
             bytes({ 0x81, 0 }), bytes({ 0xa1, 0 }), bytes({ 0xc1, 0 }), bytes({ 0xd1, 0, 0, 0 }),
             bytes({ 0x4f }), bytes({ 0x4f, 0x10 }), bytes({ 0x4f, 0x22, 0, 0, 0, 0 }),
             bytes({ 0x4f, 0x14 }) + std::string(16, '\0') })
        EXPECT_EQ(readingObject(object), std::nullopt) << testing::PrintToString(object);
}

TEST(ABinaryContainer, HasNoReferencesAfterTheObjects)
{
    // The table that follows starts with zeros, which would be references to the first object.
    for (const auto& container : { bytes({ 0xa1 }), bytes({ 0xc1 }), bytes({ 0xd1, 0, 0 }) }) {
        auto file = binaryFile({ stringOf("a"), container });
        file[file.size() - 32 + 23] = 1;
        EXPECT_EQ(reading(file), std::nullopt) << testing::PrintToString(container);
    }
}

TEST(ABinaryObject, OfAnUnknownKindIsInvalid)
{
    for (const unsigned marker :
        { 0x01u, 0x07u, 0x0au, 0x0fu, 0x20u, 0x21u, 0x24u, 0x30u, 0x32u, 0x70u, 0x90u, 0xb0u, 0xe0u, 0xf0u })
        EXPECT_EQ(readingObject(bytes({ marker }) + std::string(40, '\0')), std::nullopt) << marker;
}

TEST(ABinaryFile, WithAWrongTrailerIsInvalid)
{
    const auto good = binaryFile({ "\x09" });
    ASSERT_TRUE(reading(good));
    const auto trailer = good.size() - 32;
    const std::pair<std::size_t, char> wrong[] { { 6, 0 }, { 6, 9 }, { 7, 0 }, { 7, 9 }, { 8, 1 },
        { 8, '\xff' }, { 15, 0 }, { 15, 2 }, { 16, 1 }, { 23, 1 }, { 24, '\xff' }, { 31, 7 },
        { 31, '\xff' } };
    for (const auto& [offset, value] : wrong) {
        auto file = good;
        file[trailer + offset] = value;
        EXPECT_EQ(reading(file), std::nullopt) << offset;
    }
    // The magic number would be read as a text.
    auto early = good;
    early[trailer - 1] = 0;
    EXPECT_EQ(reading(early), std::nullopt) << "an object within the magic number";
    auto other = good;
    other[7] = '1';
    EXPECT_EQ(reading(other), std::nullopt) << "of another version";
}

TEST(ABinaryFile, IsReadAndWrittenUnchanged)
{
    const PropertyList::Array odd { PropertyList::NullObject {}, std::uint64_t { UINT64_MAX },
        PropertyList::WideInteger { 1, 2 }, PropertyList::Uid { 9 },
        PropertyList::Set { PropertyList::Array { 1, "two" } }, PropertyList::Date { std::nan("") },
        PropertyList::Date { 1e300 }, std::string("\0", 1) };
    const auto file = writing(odd);
    const auto again = reading(file);
    ASSERT_TRUE(again);
    EXPECT_TRUE(areAlike(*again, odd));
    EXPECT_EQ(writing(*again), file);
}

} // namespace
} // namespace brimsound::tests
