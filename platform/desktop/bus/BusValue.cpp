#include "platform/desktop/bus/BusValue.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <string_view>

namespace brimsound::desktop {

namespace {

constexpr std::size_t mostValues = 4096;

int appendContainer(sd_bus_message* message, char type, const char* contents, auto appendContents)
{
    int result = sd_bus_message_open_container(message, type, contents);
    if (result >= 0)
        result = appendContents();
    return result < 0 ? result : sd_bus_message_close_container(message);
}

bool holdsRealsOnly(const PropertyList::Array& array)
{
    return !array.empty()
        && std::all_of(array.begin(), array.end(), [](const PropertyList& item) { return item.asReal(); });
}

int appendVariant(sd_bus_message*, const PropertyList&);

int appendReals(sd_bus_message* message, const PropertyList::Array& array)
{
    return appendContainer(message, 'a', "d", [&] {
        int result = 0;
        for (auto item = array.begin(); item != array.end() && result >= 0; ++item)
            result = sd_bus_message_append_basic(message, 'd', item->asReal());
        return result;
    });
}

int appendVariants(sd_bus_message* message, const PropertyList::Array& array)
{
    return appendContainer(message, 'a', "v", [&] {
        int result = 0;
        for (auto item = array.begin(); item != array.end() && result >= 0; ++item)
            result = appendVariant(message, *item);
        return result;
    });
}

const char* signatureOf(const PropertyList& value)
{
    if (value.asBoolean())
        return "b";
    if (value.asInteger())
        return "x";
    if (value.asReal() || value.asDate())
        return "d";
    if (value.asString())
        return "s";
    if (value.asData())
        return "ay";
    if (const auto* array = value.asArray())
        return holdsRealsOnly(*array) ? "ad" : "av";
    if (value.asDictionary())
        return "a{sv}";
    return nullptr;
}

int appendContents(sd_bus_message* message, const PropertyList& value)
{
    if (const auto* boolean = value.asBoolean())
        return sd_bus_message_append(message, "b", int { *boolean });
    if (const auto* integer = value.asInteger())
        return sd_bus_message_append_basic(message, 'x', integer);
    if (const auto* real = value.asReal())
        return sd_bus_message_append_basic(message, 'd', real);
    if (const auto* date = value.asDate())
        return sd_bus_message_append_basic(message, 'd', &date->secondsSinceReferenceDate);
    if (const auto* string = value.asString())
        return sd_bus_message_append_basic(message, 's', string->c_str());
    if (const auto* data = value.asData())
        return sd_bus_message_append_array(message, 'y', data->data(), data->size());
    if (const auto* array = value.asArray())
        return holdsRealsOnly(*array) ? appendReals(message, *array) : appendVariants(message, *array);
    return appendDictionary(message, *value.asDictionary());
}

int appendVariant(sd_bus_message* message, const PropertyList& value)
{
    const char* signature = signatureOf(value);
    if (!signature)
        return -EINVAL;
    return appendContainer(message, 'v', signature, [&] { return appendContents(message, value); });
}

/// A message that is being read. Values take more memory than in the message, so their number is limited.
struct Reading {
    sd_bus_message* message;
    std::size_t valuesLeft = mostValues;
};

// These functions return a positive number for a value, 0 at the end of a container and a negative errno on
// failure.

int readContainer(Reading& reading, char type, const char* contents, auto readContents)
{
    int result = sd_bus_message_enter_container(reading.message, type, contents);
    if (result <= 0)
        return result;
    result = readContents();
    if (result >= 0)
        result = sd_bus_message_exit_container(reading.message);
    return result < 0 ? result : 1;
}

template <typename Wire> int readBasic(Reading& reading, char type, auto convert)
{
    Wire wire {};
    const int result = sd_bus_message_read_basic(reading.message, type, &wire);
    if (result > 0)
        convert(wire);
    return result;
}

int readBytes(Reading& reading, PropertyList& value)
{
    const void* bytes = nullptr;
    std::size_t size = 0;
    const int result = sd_bus_message_read_array(reading.message, 'y', &bytes, &size);
    if (result < 0)
        return result;
    const auto* first = static_cast<const std::byte*>(bytes);
    value = PropertyList::Data(first, first + size);
    return 1;
}

int readValue(Reading&, PropertyList&);
int readDictionary(Reading&, PropertyList::Dictionary&);

int readItems(Reading& reading, const char* contents, PropertyList& value)
{
    PropertyList::Array array;
    const int result = readContainer(reading, 'a', contents, [&] {
        for (;;) {
            PropertyList item;
            const int itemResult = readValue(reading, item);
            if (itemResult <= 0)
                return itemResult;
            array.push_back(std::move(item));
        }
    });
    value = std::move(array);
    return result;
}

int readArray(Reading& reading, std::string_view contents, PropertyList& value)
{
    if (contents == "y")
        return readBytes(reading, value);
    if (contents.starts_with("{s")) {
        PropertyList::Dictionary dictionary;
        const int result = readDictionary(reading, dictionary);
        value = std::move(dictionary);
        return result < 0 ? result : 1;
    }
    if (contents.starts_with('{'))
        return sd_bus_message_skip(reading.message, nullptr);
    return readItems(reading, std::string(contents).c_str(), value);
}

// Leaves the value null for a type without an equivalent.
int readValue(Reading& reading, PropertyList& value)
{
    char type = 0;
    const char* contents = nullptr;
    const int result = sd_bus_message_peek_type(reading.message, &type, &contents);
    if (result <= 0)
        return result;
    if (reading.valuesLeft == 0)
        return -E2BIG;
    --reading.valuesLeft;

    const auto set = [&](auto wire) { value = wire; };
    const auto setInteger = [&](auto wire) { value = std::int64_t { wire }; };
    switch (type) {
    case SD_BUS_TYPE_BOOLEAN:
        return readBasic<int>(reading, type, [&](int wire) { value = wire != 0; });
    case SD_BUS_TYPE_BYTE:
        return readBasic<std::uint8_t>(reading, type, setInteger);
    case SD_BUS_TYPE_INT16:
        return readBasic<std::int16_t>(reading, type, setInteger);
    case SD_BUS_TYPE_UINT16:
        return readBasic<std::uint16_t>(reading, type, setInteger);
    case SD_BUS_TYPE_INT32:
        return readBasic<std::int32_t>(reading, type, setInteger);
    case SD_BUS_TYPE_UINT32:
        return readBasic<std::uint32_t>(reading, type, setInteger);
    case SD_BUS_TYPE_INT64:
        return readBasic<std::int64_t>(reading, type, setInteger);
    case SD_BUS_TYPE_UINT64:
        return readBasic<std::uint64_t>(reading, type, [&](std::uint64_t wire) {
            constexpr std::uint64_t largest = std::numeric_limits<std::int64_t>::max();
            value = static_cast<std::int64_t>(std::min(wire, largest));
        });
    case SD_BUS_TYPE_DOUBLE:
        return readBasic<double>(reading, type, set);
    case SD_BUS_TYPE_STRING:
    case SD_BUS_TYPE_OBJECT_PATH:
    case SD_BUS_TYPE_SIGNATURE:
        return readBasic<const char*>(reading, type, set);
    case SD_BUS_TYPE_VARIANT:
        return readContainer(reading, type, contents, [&] { return readValue(reading, value); });
    case SD_BUS_TYPE_ARRAY:
        return readArray(reading, contents, value);
    default:
        return sd_bus_message_skip(reading.message, nullptr);
    }
}

int readEntry(Reading& reading, const char* contents, PropertyList::Dictionary& dictionary)
{
    return readContainer(reading, SD_BUS_TYPE_DICT_ENTRY, contents, [&] {
        const char* key = nullptr;
        int result = sd_bus_message_read_basic(reading.message, SD_BUS_TYPE_STRING, &key);
        if (result <= 0)
            return result;
        PropertyList value;
        result = readValue(reading, value);
        if (result > 0 && !value.isNull())
            dictionary.set(key, std::move(value));
        return result;
    });
}

int readDictionary(Reading& reading, PropertyList::Dictionary& dictionary)
{
    char type = 0;
    const char* peeked = nullptr;
    const int result = sd_bus_message_peek_type(reading.message, &type, &peeked);
    const std::string contents = result > 0 && peeked ? peeked : "";
    if (type != SD_BUS_TYPE_ARRAY || !contents.starts_with("{s"))
        return result < 0 ? result : -EINVAL;
    // The contents of an entry are between the braces.
    const auto entry = contents.substr(1, contents.size() - 2);
    return readContainer(reading, SD_BUS_TYPE_ARRAY, contents.c_str(), [&] {
        int entryResult = 1;
        while (entryResult > 0)
            entryResult = readEntry(reading, entry.c_str(), dictionary);
        return entryResult;
    });
}

} // namespace

int appendDictionary(sd_bus_message* message, const PropertyList::Dictionary& dictionary)
{
    return appendContainer(message, 'a', "{sv}", [&] {
        int result = 0;
        for (auto entry = dictionary.begin(); entry != dictionary.end() && result >= 0; ++entry) {
            result = appendContainer(message, 'e', "sv", [&] {
                const int appended = sd_bus_message_append_basic(message, 's', entry->key.c_str());
                return appended < 0 ? appended : appendVariant(message, entry->value);
            });
        }
        return result;
    });
}

int readDictionary(sd_bus_message* message, PropertyList::Dictionary& dictionary)
{
    Reading reading { message };
    return readDictionary(reading, dictionary);
}

} // namespace brimsound::desktop
