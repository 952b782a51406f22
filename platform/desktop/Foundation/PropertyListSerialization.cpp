#include "platform/Foundation/PropertyListSerialization.h"

#include "platform/desktop/Foundation/DeviceRoot.h"
#include "platform/desktop/Foundation/FileContents.h"
#include "platform/desktop/Foundation/PropertyListBounds.h"
#include "platform/desktop/effects/Effects.h"

#include <plist/plist.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <type_traits>

namespace brimsound {

namespace {

struct NodeDeleter {
    void operator()(void* node) const { plist_free(node); }
};
using Node = std::unique_ptr<void, NodeDeleter>;

struct FreeDeleter {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename T> using Allocated = std::unique_ptr<T, FreeDeleter>;

std::optional<PropertyList> fromNode(plist_t node);

std::optional<PropertyList> fromArray(plist_t node)
{
    plist_array_iter position = nullptr;
    plist_array_new_iter(node, &position);
    const Allocated<void> iterator(position);

    PropertyList::Array array;
    for (;;) {
        plist_t item = nullptr;
        plist_array_next_item(node, iterator.get(), &item);
        if (!item)
            return array;
        auto value = fromNode(item);
        if (!value)
            return std::nullopt;
        array.push_back(std::move(*value));
    }
}

std::optional<PropertyList> fromDictionary(plist_t node)
{
    plist_dict_iter position = nullptr;
    plist_dict_new_iter(node, &position);
    const Allocated<void> iterator(position);

    PropertyList::Dictionary dictionary;
    for (;;) {
        char* text = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, iterator.get(), &text, &item);
        const Allocated<char> key(text);
        if (!item)
            return dictionary;
        auto value = fromNode(item);
        if (!key || !value)
            return std::nullopt;
        dictionary.set(key.get(), std::move(*value));
    }
}

PropertyList::Data fromData(plist_t node)
{
    std::uint64_t length = 0;
    const auto* bytes = reinterpret_cast<const std::byte*>(plist_get_data_ptr(node, &length));
    return { bytes, bytes + length };
}

PropertyList::Date fromDate(plist_t node)
{
    std::int32_t seconds = 0;
    std::int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    return { seconds + microseconds / 1e6 };
}

// Nothing for a kind of node that is no property list. The depth has been checked before parsing.
std::optional<PropertyList> fromNode(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        std::uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT: {
        std::uint64_t value = 0;
        plist_get_uint_val(node, &value);
        // The library has no negative numbers: they come as their two's complement.
        return static_cast<std::int64_t>(value);
    }
    case PLIST_UID: {
        std::uint64_t value = 0;
        plist_get_uid_val(node, &value);
        return static_cast<std::int64_t>(value);
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_STRING: {
        const char* text = plist_get_string_ptr(node, nullptr);
        return text ? text : "";
    }
    case PLIST_DATA:
        return fromData(node);
    case PLIST_DATE:
        return fromDate(node);
    case PLIST_ARRAY:
        return fromArray(node);
    case PLIST_DICT:
        return fromDictionary(node);
    default:
        return std::nullopt;
    }
}

Node toNode(const PropertyList&, std::size_t depth);

// The library's strings end at a NUL, and it writes nonsense for what is not UTF-8.
bool isText(const std::string& string)
{
    const auto isContinuation
        = [&](std::size_t i) { return i < string.size() && (string[i] & 0xc0) == 0x80; };
    for (std::size_t i = 0; i < string.size();) {
        const auto first = static_cast<unsigned char>(string[i++]);
        const int continuations = first < 0x80 ? 0 : first < 0xe0 ? 1 : first < 0xf0 ? 2 : 3;
        if (first == 0 || (first >= 0x80 && first < 0xc2) || first > 0xf4)
            return false;
        for (int n = 0; n < continuations; ++n) {
            if (!isContinuation(i++))
                return false;
        }
    }
    return true;
}

Node arrayToNode(const PropertyList::Array& array, std::size_t depth)
{
    Node node(plist_new_array());
    for (const auto& item : array) {
        auto child = toNode(item, depth + 1);
        if (!child)
            return nullptr;
        plist_array_append_item(node.get(), child.release());
    }
    return node;
}

Node dictionaryToNode(const PropertyList::Dictionary& dictionary, std::size_t depth)
{
    Node node(plist_new_dict());
    for (const auto& [key, value] : dictionary) {
        auto child = isText(key) ? toNode(value, depth + 1) : nullptr;
        if (!child)
            return nullptr;
        plist_dict_set_item(node.get(), key.c_str(), child.release());
    }
    return node;
}

Node dateToNode(PropertyList::Date date)
{
    using Limits = std::numeric_limits<std::int32_t>;
    const auto seconds = std::floor(date.secondsSinceReferenceDate);
    if (!(seconds >= Limits::min() && seconds <= Limits::max()))
        return nullptr;
    const auto microseconds = (date.secondsSinceReferenceDate - seconds) * 1e6;
    return Node(plist_new_date(static_cast<std::int32_t>(seconds), static_cast<std::int32_t>(microseconds)));
}

// Null for what cannot be written.
Node toNode(const PropertyList& value, std::size_t depth)
{
    if (depth > desktop::deepestPropertyList)
        return nullptr;
    if (const auto* boolean = value.asBoolean())
        return Node(plist_new_bool(*boolean));
    if (const auto* integer = value.asInteger())
        return Node(plist_new_uint(static_cast<std::uint64_t>(*integer)));
    if (const auto* real = value.asReal())
        return Node(plist_new_real(*real));
    if (const auto* string = value.asString())
        return Node(isText(*string) ? plist_new_string(string->c_str()) : nullptr);
    if (const auto* data = value.asData())
        return Node(plist_new_data(reinterpret_cast<const char*>(data->data()), data->size()));
    if (const auto* date = value.asDate())
        return dateToNode(*date);
    if (const auto* array = value.asArray())
        return arrayToNode(*array, depth);
    if (const auto* dictionary = value.asDictionary())
        return dictionaryToNode(*dictionary, depth);
    return nullptr;
}

} // namespace

std::optional<PropertyList> readPropertyListFile(const std::string& path)
{
    const auto contents
        = desktop::readRegularFile(desktop::resolveDevicePath(path), desktop::largestPropertyList);
    if (!contents || !desktop::isWithinBounds(*contents))
        return std::nullopt;

    plist_t parsed = nullptr;
    plist_from_memory(reinterpret_cast<const char*>(contents->data()),
        static_cast<std::uint32_t>(contents->size()), &parsed);
    const Node node(parsed);
    return node ? fromNode(node.get()) : std::nullopt;
}

std::optional<PropertyList::Data> dataWithPropertyList(
    const PropertyList& value, NSPropertyListFormat format, NSPropertyListWriteOptions)
{
    const auto node = toNode(value, 0);
    if (!node)
        return std::nullopt;

    // The library writes nothing unless the pointer starts null.
    char* text = nullptr;
    std::uint32_t length = 0;
    if (format == NSPropertyListFormat::BinaryFormat_v1_0)
        plist_to_bin(node.get(), &text, &length);
    else
        plist_to_xml(node.get(), &text, &length);
    const Allocated<char> bytes(text);
    if (!bytes)
        return std::nullopt;
    const auto* first = reinterpret_cast<const std::byte*>(bytes.get());
    return PropertyList::Data(first, first + length);
}

bool writeToFile(const PropertyList::Data& data, const std::string& path, Atomically atomically)
{
    const auto place = desktop::resolveDevicePath(path);
    const bool written = atomically == Atomically::Yes ? desktop::replaceFile(place, data)
                                                       : desktop::overwriteFile(place, data);
    if (written)
        desktop::effects().fileWritten(path);
    return written;
}

} // namespace brimsound
