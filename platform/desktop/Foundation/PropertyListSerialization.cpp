#include "platform/Foundation/PropertyListSerialization.h"

#include "platform/desktop/Foundation/DeviceRoot.h"
#include "platform/desktop/Foundation/FileContents.h"
#include "platform/desktop/Foundation/PlistNode.h"
#include "platform/desktop/Foundation/PropertyListBounds.h"
#include "platform/desktop/Foundation/PropertyListParsing.h"
#include "platform/desktop/Foundation/UnicodeText.h"
#include "platform/desktop/effects/Effects.h"

#include <cmath>
#include <limits>
#include <span>

namespace brimsound {

namespace {

using desktop::Allocated;
using desktop::isText;
using Node = desktop::PlistNode;

Node toNode(const PropertyList&, std::size_t depth);

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
    const auto seconds = std::trunc(date.secondsSinceReferenceDate);
    if (!(seconds >= Limits::min() && seconds <= Limits::max()))
        return nullptr;
    const auto microseconds = std::round((date.secondsSinceReferenceDate - seconds) * 1e6);
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
        = desktop::readRegularFile(desktop::resolveDevicePath(path), desktop::longestPropertyListFile);
    return contents ? desktop::parsePropertyList(*contents) : std::nullopt;
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
    const auto written = std::as_bytes(std::span(bytes.get(), length));
    // Better the old file than one that could not be read again.
    if (!desktop::isWithinBounds(written))
        return std::nullopt;
    return PropertyList::Data(written.begin(), written.end());
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
