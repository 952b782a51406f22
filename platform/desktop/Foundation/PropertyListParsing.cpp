#include "platform/desktop/Foundation/PropertyListParsing.h"

#include "platform/desktop/Foundation/PlistNode.h"
#include "platform/desktop/Foundation/PropertyListBounds.h"
#include "platform/desktop/Foundation/UnicodeText.h"

#include <algorithm>
#include <cmath>

namespace brimsound::desktop {

namespace {

std::optional<PropertyList> fromNode(plist_t node);

std::optional<PropertyList> fromArray(plist_t node)
{
    plist_array_iter position = nullptr;
    plist_array_new_iter(node, &position);
    const Allocated<void> iterator(position);

    PropertyList::Array array;
    array.reserve(plist_array_get_size(node));
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
        dictionary.set(textFrom(key.get()), std::move(*value));
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
    // The library takes the sign from the fraction, and makes one up outside its range.
    const double fraction = std::min(std::abs(microseconds / 1e6), 0.999999);
    return { seconds < 0 ? seconds - fraction : seconds + fraction };
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
        std::uint64_t length = 0;
        const char* text = plist_get_string_ptr(node, &length);
        return text ? textFrom({ text, static_cast<std::size_t>(length) }) : "";
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

// Null when the bytes are neither the binary format nor XML. The library's newer releases guess at more
// formats when they are asked for any.
plist_t parse(std::span<const std::byte> contents)
{
    const auto* bytes = reinterpret_cast<const char*>(contents.data());
    const auto length = static_cast<std::uint32_t>(contents.size());
    plist_t parsed = nullptr;
    if (plist_is_binary(bytes, length))
        plist_from_bin(bytes, length, &parsed);
    else
        plist_from_xml(bytes, length, &parsed);
    return parsed;
}

} // namespace

std::optional<PropertyList> parsePropertyList(std::span<const std::byte> contents)
{
    if (!isWithinBounds(contents))
        return std::nullopt;
    const PlistNode node(parse(contents));
    return node ? fromNode(node.get()) : std::nullopt;
}

} // namespace brimsound::desktop
