// Conversion of values of every type to the platform's objects and back.
#include "platform/ios/Foundation/PropertyListConversion.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace brimsound::ios {
namespace {

/// Converts the value to a native one and back.
std::optional<PropertyList> thereAndBack(const PropertyList& value)
{
    return valueOf(nativeValue(value));
}

TEST(AConvertedValue, KeepsItsTypeAndValue)
{
    for (const PropertyList& value : std::initializer_list<PropertyList> { true, false, 0, 1, -1,
             std::int64_t { INT64_MIN }, std::int64_t { INT64_MAX }, std::uint64_t { UINT64_MAX },
             std::uint64_t { INT64_MAX } + 1, 1.5, 0.1f, "", "text", PropertyList::Data { std::byte { 7 } },
             PropertyList::Date { 1.5 }, PropertyList::Uid { 7 }, PropertyList::Uid { UINT32_MAX },
             PropertyList::NullObject {}, PropertyList::Array { 1, "two" },
             PropertyList::Set { PropertyList::Array { "one" } }, PropertyList::Dictionary { { "key", 1 } } })
        EXPECT_TRUE(thereAndBack(value) == value) << value.doubleValue();
}

TEST(AConvertedReal, KeepsItsPrecision)
{
    EXPECT_TRUE(thereAndBack(1.5f)->isSingleReal());
    EXPECT_FALSE(thereAndBack(1.5)->isSingleReal());
}

// Without unpaired surrogates, which GNUstep's strings do not support.
TEST(AConvertedText, KeepsNulsAndSurrogatePairs)
{
    for (const auto& text : { std::string("a\0b", 3), std::string("\U0001F3A7 B\u00e4sse") }) {
        EXPECT_TRUE(thereAndBack(text) == PropertyList(text)) << text;
        EXPECT_TRUE(thereAndBack(PropertyList::Dictionary { { text, 1 } })
            == PropertyList(PropertyList::Dictionary { { text, 1 } }))
            << text;
    }
}

TEST(AnUnsignedNumber, IsKeptOnlyAboveTheSignedRange)
{
    EXPECT_TRUE([nativeValue(std::uint64_t { UINT64_MAX }) unsignedLongLongValue] == UINT64_MAX);
    EXPECT_TRUE(valueOf([::NSNumber numberWithUnsignedLongLong:7]) == PropertyList(7));
    EXPECT_TRUE(valueOf([::NSNumber numberWithLongLong:-7]) == PropertyList(-7));
}

TEST(AnIntegerBeyond64Bits, HasNoNativeValue)
{
    EXPECT_EQ(nativeValue(PropertyList::WideInteger { 1, 0 }), nil);
    EXPECT_EQ(nativeValue(PropertyList::Uid { std::uint64_t { UINT32_MAX } + 1 }), nil);
}

TEST(ADictionaryOfAUid, IsAUidOnlyWithoutOtherKeys)
{
    const PropertyList::Dictionary two { { "CF$UID", 7 }, { "other", 1 } };
    EXPECT_TRUE(thereAndBack(two) == PropertyList(two));
    const PropertyList::Dictionary text { { "CF$UID", "7" } };
    EXPECT_TRUE(thereAndBack(text) == PropertyList(text));
}

} // namespace
} // namespace brimsound::ios
