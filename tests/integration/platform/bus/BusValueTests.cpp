#include "platform/desktop/bus/BusValue.h"

#include "platform/desktop/bus/BusPointers.h"
#include "tests/support/TestBus.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <limits>
#include <vector>

namespace brimsound::desktop {

namespace {

class AMessage : public testing::Test {
protected:
    void SetUp() override
    {
        sd_bus_message* created = nullptr;
        ASSERT_GE(
            sd_bus_message_new_signal(connection.get(), &created, "/test", "test.Interface", "Test"), 0);
        message.reset(created);
    }

    // The message as the receiver gets it.
    sd_bus_message* received()
    {
        sd_bus_message_seal(message.get(), 1, 0);
        sd_bus_message_rewind(message.get(), 1);
        return message.get();
    }

    PropertyList::Dictionary reading()
    {
        PropertyList::Dictionary dictionary;
        EXPECT_GE(readDictionary(received(), dictionary), 0);
        return dictionary;
    }

    // The D-Bus signature of the value.
    std::string signatureOf(const PropertyList& value)
    {
        EXPECT_GE(appendDictionary(message.get(), { { "value", value } }), 0);
        auto* read = received();
        const char* key = nullptr;
        const char* signature = nullptr;
        sd_bus_message_enter_container(read, 'a', "{sv}");
        sd_bus_message_enter_container(read, 'e', "sv");
        sd_bus_message_read(read, "s", &key);
        sd_bus_message_peek_type(read, nullptr, &signature);
        return signature;
    }

    tests::TestBus bus;
    BusConnection connection = bus.connectAnother();
    BusMessage message;
};

} // namespace

TEST_F(AMessage, CarriesEveryTypeThereAndBack)
{
    const PropertyList::Dictionary dictionary {
        { "boolean", true },
        { "integer", std::numeric_limits<std::int64_t>::min() },
        { "real", 5.8064516f },
        { "text", "Bässe" },
        { "data", PropertyList::Data { std::byte { 0 }, std::byte { 255 } } },
        { "no data", PropertyList::Data {} },
        { "reals", PropertyList::Array { 1.5, -12.0 } },
        { "mixed", PropertyList::Array { 1, 1.5, "two", PropertyList::Array { true } } },
        { "nothing", PropertyList::Array {} },
        { "dictionary", PropertyList::Dictionary { { "inner", PropertyList::Dictionary {} } } },
    };
    ASSERT_GE(appendDictionary(message.get(), dictionary), 0);
    EXPECT_EQ(reading(), dictionary);
}

TEST_F(AMessage, CarriesRealsAsAnArrayOfDoubles)
{
    EXPECT_EQ(signatureOf(PropertyList::Array { 1.5f, 2.0 }), "ad");
}

TEST_F(AMessage, CarriesOtherArraysAsVariants)
{
    EXPECT_EQ(signatureOf(PropertyList::Array { 1.5, 2 }), "av");
}

TEST_F(AMessage, CarriesADateAsItsSeconds)
{
    ASSERT_GE(appendDictionary(message.get(), { { "date", PropertyList::Date { 1.5 } } }), 0);
    EXPECT_EQ(*reading().find("date"), PropertyList(1.5));
}

TEST_F(AMessage, CannotCarryNull)
{
    EXPECT_EQ(appendDictionary(message.get(), { { "null", {} } }), -EINVAL);
    EXPECT_LT(appendDictionary(message.get(), { { "a", PropertyList::Array { PropertyList() } } }), 0);
}

TEST_F(AMessage, IsReadWithNumbersOfEveryType)
{
    ASSERT_GE(sd_bus_message_append(message.get(), "a{sv}", 9, "y", "y", 1, "n", "n", -2, "q", "q", 3, "i",
                  "i", -4, "u", "u", 4'000'000'000u, "x", "x", std::int64_t { -6 }, "t", "t",
                  std::numeric_limits<std::uint64_t>::max(), "b", "b", 1, "d", "d", 0.5),
        0);
    EXPECT_EQ(reading(),
        (PropertyList::Dictionary { { "y", 1 }, { "n", -2 }, { "q", 3 }, { "i", -4 },
            { "u", std::int64_t { 4'000'000'000 } }, { "x", -6 },
            { "t", std::numeric_limits<std::int64_t>::max() }, { "b", true }, { "d", 0.5 } }));
}

TEST_F(AMessage, IsReadWithArraysAndNestedVariants)
{
    ASSERT_GE(sd_bus_message_append(message.get(), "a{sv}", 4, "ints", "ai", 2, 1, -1, "strings", "as", 1,
                  "one", "nested", "v", "v", "s", "deep", "arrays", "aad", 1, 2, 0.5, 1.5),
        0);
    EXPECT_EQ(reading(),
        (PropertyList::Dictionary { { "ints", PropertyList::Array { 1, -1 } },
            { "strings", PropertyList::Array { "one" } }, { "nested", "deep" },
            { "arrays", PropertyList::Array { PropertyList(PropertyList::Array { 0.5, 1.5 }) } } }));
}

TEST_F(AMessage, IsReadWithoutValuesThatHaveNoEquivalent)
{
    ASSERT_GE(sd_bus_message_append(message.get(), "a{sv}", 4, "struct", "(is)", 1, "one", "kept", "s", "yes",
                  "numbered", "a{is}", 1, 1, "one", "structs", "a(i)", 1, 5),
        0);
    EXPECT_EQ(reading(),
        (PropertyList::Dictionary {
            { "kept", "yes" }, { "structs", PropertyList::Array { PropertyList() } } }));
}

TEST_F(AMessage, WithoutADictionaryIsRejected)
{
    ASSERT_GE(sd_bus_message_append(message.get(), "s", "text"), 0);
    PropertyList::Dictionary dictionary;
    EXPECT_LT(readDictionary(received(), dictionary), 0);
}

TEST_F(AMessage, WithTooManyValuesIsRejected)
{
    for (const std::size_t count : { 4000u, 5000u }) {
        SetUp();
        const std::vector<std::int32_t> numbers(count, 7);
        sd_bus_message_open_container(message.get(), 'a', "{sv}");
        sd_bus_message_open_container(message.get(), 'e', "sv");
        sd_bus_message_append(message.get(), "s", "numbers");
        sd_bus_message_open_container(message.get(), 'v', "ai");
        sd_bus_message_append_array(message.get(), 'i', numbers.data(), count * sizeof numbers[0]);
        for (int container = 0; container < 3; ++container)
            sd_bus_message_close_container(message.get());
        PropertyList::Dictionary dictionary;
        EXPECT_EQ(readDictionary(received(), dictionary) >= 0, count == 4000);
    }
}

} // namespace brimsound::desktop
