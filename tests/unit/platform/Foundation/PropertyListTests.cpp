#include "platform/Foundation/PropertyList.h"

#include <gmock/gmock.h>

#include <clocale>
#include <cmath>
#include <limits>

namespace brimsound {

namespace {

constexpr auto largestInteger = std::numeric_limits<std::int64_t>::max();
constexpr auto smallestInteger = std::numeric_limits<std::int64_t>::min();

} // namespace

TEST(ANumber, ConvertsAsFoundationsDo)
{
    EXPECT_EQ(PropertyList(true).floatValue(), 1);
    EXPECT_EQ(PropertyList(-3).doubleValue(), -3);
    EXPECT_EQ(PropertyList(-2.75).integerValue(), -2);
    EXPECT_EQ(PropertyList(5.8064516f).floatValue(), 5.8064516f);
    EXPECT_TRUE(PropertyList(0.25).boolValue());
    EXPECT_FALSE(PropertyList(0).boolValue());
    EXPECT_TRUE(PropertyList(std::nan("")).boolValue());
    EXPECT_EQ(PropertyList(largestInteger).integerValue(), largestInteger);
    // Rounded once: converting by way of a double would give the next lower value.
    EXPECT_EQ(PropertyList((std::int64_t { 1 } << 60) + (std::int64_t { 1 } << 36) + 1).floatValue(),
        0x1p60f + 0x1p37f);
}

TEST(ANumber, OutOfRangeConvertsToTheNearestValue)
{
    EXPECT_EQ(PropertyList(1e300).integerValue(), largestInteger);
    EXPECT_EQ(PropertyList(-1e300).integerValue(), smallestInteger);
    EXPECT_EQ(PropertyList(0x1p63).integerValue(), largestInteger);
    EXPECT_EQ(PropertyList(std::nan("")).integerValue(), 0);
    EXPECT_EQ(PropertyList(1e300).floatValue(), std::numeric_limits<float>::infinity());
}

TEST(ANumber, Beyond64BitsConvertsToTheNearestValue)
{
    const PropertyList largest(std::uint64_t { UINT64_MAX });
    EXPECT_TRUE(largest.asWideInteger());
    EXPECT_EQ(largest.doubleValue(), 0x1p64);
    EXPECT_EQ(largest.floatValue(), 0x1p64f);
    EXPECT_EQ(largest.integerValue(), -1);
    EXPECT_TRUE(largest.boolValue());
    EXPECT_EQ(PropertyList(PropertyList::WideInteger { -2, 0 }).doubleValue(), -0x1p65);
    // Rounded once: converting by way of a double would give the next lower value.
    EXPECT_EQ(PropertyList((std::uint64_t { 1 } << 63) + (std::uint64_t { 1 } << 39) + 1).floatValue(),
        0x1p63f + 0x1p40f);
}

TEST(ANumber, OfFewBitsIsAPlainInteger)
{
    EXPECT_EQ(PropertyList(std::uint64_t { 7 }), PropertyList(7));
    EXPECT_EQ(PropertyList(PropertyList::WideInteger { -1, UINT64_MAX }), PropertyList(-1));
    EXPECT_TRUE(PropertyList(PropertyList::WideInteger { 0, std::uint64_t { 1 } << 63 }).asWideInteger());
    EXPECT_TRUE(PropertyList(PropertyList::WideInteger { -1, 0 }).asWideInteger());
}

TEST(AReal, EqualsOneOfAnotherPrecision)
{
    EXPECT_EQ(PropertyList(0.5f), PropertyList(0.5));
    EXPECT_TRUE(PropertyList(0.5f).isSingleReal());
    EXPECT_FALSE(PropertyList(0.5).isSingleReal());
    EXPECT_FALSE(PropertyList(1).isSingleReal());
}

TEST(AString, ConvertsToTheNumberAtItsStart)
{
    EXPECT_EQ(PropertyList("4.5 dB").doubleValue(), 4.5);
    EXPECT_EQ(PropertyList(" \t-12").floatValue(), -12);
    EXPECT_EQ(PropertyList("+1.5e1").doubleValue(), 15);
    EXPECT_EQ(PropertyList(".5").doubleValue(), 0.5);
    EXPECT_EQ(PropertyList("+42.9").integerValue(), 42);
    EXPECT_EQ(PropertyList("-7up").integerValue(), -7);
    EXPECT_EQ(PropertyList("99999999999999999999").integerValue(), largestInteger);
    EXPECT_EQ(PropertyList("-99999999999999999999").integerValue(), smallestInteger);
}

TEST(AString, ThatStartsWithNoDecimalNumberConvertsToZero)
{
    for (auto* text :
        { "", " ", "loud", "inf", "-infinity", "nan", "0x10", "-0x10", "+-5", "--5", "- 5", "." }) {
        EXPECT_EQ(PropertyList(text).doubleValue(), 0) << text;
        EXPECT_EQ(PropertyList(text).integerValue(), 0) << text;
    }
}

TEST(AString, ConvertsToANumberWhateverTheLocale)
{
    ASSERT_TRUE(std::setlocale(LC_NUMERIC, "de_DE.UTF-8"));
    EXPECT_EQ(PropertyList("4.5").doubleValue(), 4.5);
    std::setlocale(LC_NUMERIC, "C");
}

TEST(AString, IsTrueWhenItStartsWithAYesOrANumber)
{
    for (auto* text : { "YES", "yes", "True", "t", "1", " 7", "-2", "+001", "0005" })
        EXPECT_TRUE(PropertyList(text).boolValue()) << text;
    for (auto* text : { "", "NO", "false", "0", "000", "-", "+0", "on", "0.5", " + 1" })
        EXPECT_FALSE(PropertyList(text).boolValue()) << text;
}

TEST(AnythingElse, ConvertsToZero)
{
    const PropertyList others[] = { {}, PropertyList::Data { std::byte { 1 } }, PropertyList::Date { 5 },
        PropertyList::Array { 1 }, PropertyList::Dictionary { { "one", 1 } }, PropertyList::Uid { 1 },
        PropertyList::NullObject {}, PropertyList::Set { PropertyList::Array { 1 } } };
    for (const auto& other : others) {
        EXPECT_EQ(other.floatValue(), 0);
        EXPECT_EQ(other.doubleValue(), 0);
        EXPECT_EQ(other.integerValue(), 0);
        EXPECT_FALSE(other.boolValue());
    }
}

TEST(AValue, IsOfOneTypeOnly)
{
    EXPECT_FALSE(PropertyList(1) == PropertyList(1.0));
    EXPECT_FALSE(PropertyList(1) == PropertyList(true));
    EXPECT_EQ(PropertyList(1).asReal(), nullptr);
    EXPECT_EQ(PropertyList(1.0).asInteger(), nullptr);
    EXPECT_EQ(PropertyList("text").asBoolean(), nullptr);
}

TEST(ACopy, HasItsOwnContents)
{
    const PropertyList original = PropertyList::Array { PropertyList::Dictionary { { "gain", 1.0 } } };
    auto copy = original;
    copy.asArray()->front().asDictionary()->set("gain", 2.0);
    EXPECT_EQ(original.asArray()->front().asDictionary()->find("gain")->doubleValue(), 1.0);
}

} // namespace brimsound
