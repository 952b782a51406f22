#include "platform/desktop/Foundation/XmlPropertyListReader.h"
#include "platform/desktop/Foundation/XmlPropertyListWriter.h"

#include <gtest/gtest.h>

#include <cmath>

namespace brimsound::tests {
namespace {

using desktop::readXmlPropertyList;
using desktop::writeXmlPropertyList;

std::optional<PropertyList> reading(const std::string& contents)
{
    return readXmlPropertyList("<plist version=\"1.0\">" + contents + "</plist>");
}

std::optional<PropertyList> thereAndBack(const PropertyList& value)
{
    const auto data = writeXmlPropertyList(value);
    if (!data)
        return std::nullopt;
    return readXmlPropertyList({ reinterpret_cast<const char*>(data->data()), data->size() });
}

TEST(MarkupOfAnInteger, MayBeUnsignedOrHexadecimal)
{
    EXPECT_EQ(reading("<integer>18446744073709551615</integer>"), PropertyList(std::uint64_t { UINT64_MAX }));
    EXPECT_EQ(reading("<integer>-9223372036854775808</integer>"), PropertyList(std::int64_t { INT64_MIN }));
    EXPECT_EQ(reading("<integer> +0x10\n</integer>"), PropertyList(16));
    EXPECT_EQ(reading("<integer>-0x10</integer>"), PropertyList(-16));
    EXPECT_EQ(reading("<integer>-0</integer>"), PropertyList(0));
    EXPECT_EQ(reading("<integer>-18446744073709551615</integer>"),
        PropertyList(PropertyList::WideInteger { -1, 1 }));
    for (const auto* none : { "", " ", "-", "0x", "1.5", "18446744073709551616", "--1", "seven" })
        EXPECT_EQ(reading("<integer>" + std::string(none) + "</integer>"), std::nullopt) << none;
}

TEST(MarkupOfAReal, MayBeInfiniteOrNoNumber)
{
    EXPECT_EQ(reading("<real> -1.5e1 </real>"), PropertyList(-15.0));
    EXPECT_EQ(reading("<real>-infinity</real>"), PropertyList(-HUGE_VAL));
    EXPECT_TRUE(std::isnan(reading("<real>nan</real>")->doubleValue()));
    for (const auto* none : { "", "loud", "1.5 dB" })
        EXPECT_EQ(reading("<real>" + std::string(none) + "</real>"), std::nullopt) << none;
    for (const double real : { 0.1, 5e-324, 1.7976931348623157e308, -0.0, 5.8064516 })
        EXPECT_EQ(thereAndBack(real), PropertyList(real)) << real;
}

TEST(MarkupOfADate, CountsFrom2001)
{
    EXPECT_EQ(reading("<date>2001-01-01T00:00:00Z</date>"), PropertyList(PropertyList::Date { 0 }));
    EXPECT_EQ(reading("<date>2000-02-29T12:00:01Z</date>"), PropertyList(PropertyList::Date { -26'481'599 }));
    EXPECT_EQ(thereAndBack(PropertyList::Date { -0.5 }), PropertyList(PropertyList::Date { -1 }));
    EXPECT_EQ(
        thereAndBack(PropertyList::Date { 700'000'000 }), PropertyList(PropertyList::Date { 700'000'000 }));
    for (const auto* none : { "", "2001-02-29T00:00:00Z", "2001-01-01", "2001-01-01T00:00:00Z and more" })
        EXPECT_EQ(reading("<date>" + std::string(none) + "</date>"), std::nullopt) << none;
    EXPECT_EQ(thereAndBack(PropertyList::Date { 1e12 }), std::nullopt);
    EXPECT_EQ(thereAndBack(PropertyList::Date { std::nan("") }), std::nullopt);
}

TEST(MarkupOfText, MayHoldEntitiesAndSections)
{
    EXPECT_EQ(reading("<string>a &amp; &#x1F3A7;<![CDATA[<b>]]><!-- c --> d</string>"),
        PropertyList("a & \U0001F3A7<b> d"));
    EXPECT_EQ(thereAndBack("<&>\"'\t\n"), PropertyList("<&>\"'\t\n"));
    EXPECT_EQ(reading("<string/>"), PropertyList(""));
}

TEST(MarkupOfData, IsBase64)
{
    const PropertyList::Data data { std::byte { 0 }, std::byte { 255 }, std::byte { 7 } };
    EXPECT_EQ(reading("<data>\n\tAP8H\n</data>"), PropertyList(data));
    EXPECT_EQ(thereAndBack(data), PropertyList(data));
    EXPECT_EQ(thereAndBack(PropertyList::Data {}), PropertyList(PropertyList::Data {}));
}

TEST(MarkupOfADictionary, KeepsOfRepeatedKeysTheLast)
{
    EXPECT_EQ(reading("<dict><key>a</key><true/><key>a</key><false/></dict>"),
        PropertyList(PropertyList::Dictionary { { "a", false } }));
}

TEST(MarkupOfAUid, IsADictionaryOfOneKey)
{
    EXPECT_EQ(thereAndBack(PropertyList::Uid { 7 }), PropertyList(PropertyList::Uid { 7 }));
    EXPECT_EQ(reading("<dict><key>CF$UID</key><integer>-1</integer></dict>"),
        PropertyList(PropertyList::Dictionary { { "CF$UID", -1 } }));
}

TEST(Markup, ThatIsNotAPropertyListIsRejected)
{
    for (const auto* none : { "", "<true/><true/>", "text", "<true>text", "<dict><true/></dict>",
             "<dict><key>a</key></dict>", "<dict><key>a</key><key>b</key><true/></dict>", "<key>a</key>",
             "<array><key>a</key></array>", "<array>text</array>", "<unknown/>", "<string><true/></string>",
             "<array><plist><true/></plist></array>", "<string>&#0;</string>", "<string>&none;</string>" })
        EXPECT_EQ(reading(none), std::nullopt) << none;
    EXPECT_EQ(readXmlPropertyList("\xEF\xBB\xBF<plist><true/></plist>\n"), PropertyList(true));
    EXPECT_EQ(readXmlPropertyList("<plist><true/></plist> and more"), std::nullopt);
}

TEST(Markup, HasNoElementForSomeValues)
{
    for (const PropertyList& value :
        std::initializer_list<PropertyList> { {}, PropertyList::NullObject {}, PropertyList::Set {},
            PropertyList::WideInteger { 1, 0 }, std::string("a\0b", 3), "\xED\xA0\xBD" })
        EXPECT_EQ(writeXmlPropertyList(value), std::nullopt);
}

} // namespace
} // namespace brimsound::tests
