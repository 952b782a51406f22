#include "tests/support/PropertyListDescription.h"

#include <plist/plist.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace brimsound::tests {

namespace {

__extension__ using Wide = __int128;

std::string hexadecimal(std::string_view bytes)
{
    std::string text;
    for (const char byte : bytes) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02x", static_cast<unsigned char>(byte));
        text += digits;
    }
    return text;
}

std::string decimal(Wide number)
{
    if (number == 0)
        return "0";
    const bool isNegative = number < 0;
    std::string digits;
    for (; number != 0; number /= 10) {
        const auto digit = static_cast<int>(number % 10);
        digits.insert(digits.begin(), static_cast<char>('0' + std::abs(digit)));
    }
    return (isNegative ? "-" : "") + digits;
}

std::string realText(const char* format, double real)
{
    if (std::isnan(real))
        return "nan";
    char text[400];
    std::snprintf(text, sizeof text, format, real);
    return text;
}

std::string realDescription(double real)
{
    return "r" + realText("%.17g", real);
}

std::string dateDescription(double seconds)
{
    return "d" + realText("%.6f", seconds);
}

class Describer {
public:
    explicit Describer(bool integersHave64Bits)
        : _integersHave64Bits(integersHave64Bits)
    {
    }

    std::string describe(const PropertyList& value) const
    {
        if (value.asNullObject())
            return "N";
        if (const auto* boolean = value.asBoolean())
            return *boolean ? "T" : "F";
        if (const auto* integer = value.asInteger())
            return integerText(*integer);
        if (const auto* wide = value.asWideInteger())
            return integerText(static_cast<Wide>(wide->high) * (Wide { 1 } << 64) + wide->low);
        if (const auto* real = value.asReal())
            return realDescription(*real);
        if (const auto* string = value.asString())
            return "s" + hexadecimal(*string);
        if (const auto* data = value.asData())
            return "b" + hexadecimal({ reinterpret_cast<const char*>(data->data()), data->size() });
        if (const auto* date = value.asDate())
            return dateDescription(date->secondsSinceReferenceDate);
        if (const auto* uid = value.asUid())
            return "u" + decimal(uid->value);
        if (const auto* array = value.asArray())
            return "[" + elements(*array) + "]";
        if (const auto* set = value.asSet())
            return "{" + elements(set->elements) + "}";
        if (const auto* dictionary = value.asDictionary())
            return "<" + entries(*dictionary) + ">";
        return "nothing";
    }

private:
    std::string integerText(Wide integer) const
    {
        return "i" + decimal(_integersHave64Bits ? static_cast<std::uint64_t>(integer) : integer);
    }

    std::string elements(const PropertyList::Array& array) const
    {
        std::string text;
        for (const auto& element : array)
            text += describe(element) + ",";
        return text;
    }

    std::string entries(const PropertyList::Dictionary& dictionary) const
    {
        std::string text;
        for (const auto& [key, value] : dictionary)
            text += hexadecimal(key) + "=" + describe(value) + ",";
        return text;
    }

    bool _integersHave64Bits;
};

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};
using Memory = std::unique_ptr<void, Free>;

std::string describeNode(plist_t node);

std::string describeElements(plist_t node)
{
    std::string text = "[";
    for (std::uint32_t i = 0; i < plist_array_get_size(node); ++i)
        text += describeNode(plist_array_get_item(node, i)) + ",";
    return text + "]";
}

std::string describeEntries(plist_t node)
{
    plist_dict_iter position = nullptr;
    plist_dict_new_iter(node, &position);
    const Memory iterator(position);
    std::vector<std::pair<std::string, std::string>> entries;
    for (;;) {
        char* text = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(node, position, &text, &value);
        const Memory owner(text);
        if (!value)
            break;
        const auto key = hexadecimal(text ? text : "");
        // libplist keeps repeated keys.
        const auto before = std::find_if(
            entries.begin(), entries.end(), [&](const auto& entry) { return entry.first == key; });
        if (before != entries.end())
            before->second = describeNode(value);
        else
            entries.emplace_back(key, describeNode(value));
    }
    std::string all = "<";
    for (const auto& [key, value] : entries)
        all += key + "=" + value + ",";
    return all + ">";
}

std::string describeNode(plist_t node)
{
    std::uint64_t number = 0;
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        std::uint8_t boolean = 0;
        plist_get_bool_val(node, &boolean);
        return boolean != 0 ? "T" : "F";
    }
    case PLIST_UINT:
        plist_get_uint_val(node, &number);
        return "i" + decimal(number);
    case PLIST_UID:
        plist_get_uid_val(node, &number);
        return "u" + decimal(number);
    case PLIST_REAL: {
        double real = 0;
        plist_get_real_val(node, &real);
        return realDescription(real);
    }
    case PLIST_STRING: {
        const char* text = plist_get_string_ptr(node, &number);
        return "s" + hexadecimal({ text ? text : "", text ? number : 0 });
    }
    case PLIST_DATA: {
        const char* bytes = plist_get_data_ptr(node, &number);
        return "b" + hexadecimal({ bytes, number });
    }
    case PLIST_DATE: {
        std::int32_t seconds = 0;
        std::int32_t microseconds = 0;
        plist_get_date_val(node, &seconds, &microseconds);
        return dateDescription(seconds + microseconds / 1e6);
    }
    case PLIST_ARRAY:
        return describeElements(node);
    case PLIST_DICT:
        return describeEntries(node);
    default:
        return "N";
    }
}

} // namespace

std::string descriptionOf(const PropertyList& value)
{
    return Describer(false).describe(value);
}

std::string descriptionForLibplist(const PropertyList& value)
{
    return Describer(true).describe(value);
}

std::string descriptionByLibplist(const std::string& file)
{
    plist_t root = nullptr;
    const auto size = static_cast<std::uint32_t>(file.size());
    if (file.starts_with("bplist"))
        plist_from_bin(file.data(), size, &root);
    else
        plist_from_xml(file.data(), size, &root);
    const std::unique_ptr<void, decltype(&plist_free)> owner(root, plist_free);
    return root ? describeNode(root) : "unreadable";
}

} // namespace brimsound::tests
