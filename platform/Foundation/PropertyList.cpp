#include "platform/Foundation/PropertyList.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#if __has_include(<xlocale.h>)
#include <xlocale.h> // where the device's C library declares locales as values
#else
#include <clocale>
#endif

namespace brimsound {

namespace {

std::string_view withoutLeadingBlanks(std::string_view text)
{
    text.remove_prefix(std::min(text.size(), text.find_first_not_of(" \t\n\v\f\r")));
    return text;
}

double doubleValueOf(const std::string& string)
{
    const std::string number(withoutLeadingBlanks(string));
    // strtod would also accept hexadecimal numbers, infinities and NaN.
    const auto digits = number.find_first_not_of("+-");
    if (digits == std::string::npos || number.find_first_not_of("0123456789.", digits) == digits)
        return 0;
    if (number.compare(digits, 2, "0x") == 0 || number.compare(digits, 2, "0X") == 0)
        return 0;
    // Numbers in property lists do not depend on the locale.
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(number.c_str(), nullptr, plain);
}

bool boolValueOf(const std::string& string)
{
    auto text = withoutLeadingBlanks(string);
    if (text.starts_with('+') || text.starts_with('-'))
        text.remove_prefix(1);
    const auto first = text.find_first_not_of('0');
    return first != std::string_view::npos
        && std::string_view("YyTt123456789").find(text[first]) != std::string_view::npos;
}

std::int64_t integerValueOf(const std::string& string)
{
    auto text = withoutLeadingBlanks(string);
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc::result_out_of_range)
        return value;
    using Limits = std::numeric_limits<std::int64_t>;
    return text.starts_with('-') ? Limits::min() : Limits::max();
}

std::int64_t integerValueOf(double real)
{
    using Limits = std::numeric_limits<std::int64_t>;
    if (std::isnan(real))
        return 0;
    if (real >= 0x1p63)
        return Limits::max();
    if (real < -0x1p63)
        return Limits::min();
    return static_cast<std::int64_t>(real);
}

} // namespace

PropertyList::PropertyList(bool value)
    : _value(value)
{
}

PropertyList::PropertyList(int value)
    : _value(std::int64_t { value })
{
}

PropertyList::PropertyList(std::int64_t value)
    : _value(value)
{
}

PropertyList::PropertyList(std::uint64_t value)
    : PropertyList(WideInteger { 0, value })
{
}

PropertyList::PropertyList(WideInteger value)
{
    const auto low = static_cast<std::int64_t>(value.low);
    if (value.high == (low < 0 ? -1 : 0))
        _value = low;
    else
        _value = value;
}

PropertyList::PropertyList(float value)
    : _value(Real { value, true })
{
}

PropertyList::PropertyList(double value)
    : _value(Real { value, false })
{
}

PropertyList::PropertyList(const char* value)
    : _value(std::string(value))
{
}

PropertyList::PropertyList(std::string_view value)
    : _value(std::string(value))
{
}

PropertyList::PropertyList(std::string value)
    : _value(std::move(value))
{
}

PropertyList::PropertyList(Data value)
    : _value(std::move(value))
{
}

PropertyList::PropertyList(Date value)
    : _value(value)
{
}

PropertyList::PropertyList(Uid value)
    : _value(value)
{
}

PropertyList::PropertyList(NullObject value)
    : _value(value)
{
}

PropertyList::PropertyList(Array value)
    : _value(std::move(value))
{
}

PropertyList::PropertyList(Set value)
    : _value(std::move(value))
{
}

PropertyList::PropertyList(Dictionary value)
    : _value(std::move(value))
{
}

bool PropertyList::Set::operator==(const Set& other) const
{
    return elements == other.elements;
}

float PropertyList::floatValue() const
{
    // Converting the integer directly rounds it only once.
    if (const auto* integer = asInteger())
        return static_cast<float>(*integer);
    if (const auto* wide = asWideInteger(); wide && wide->high == 0)
        return static_cast<float>(wide->low);
    return static_cast<float>(doubleValue());
}

double PropertyList::doubleValue() const
{
    if (const auto* boolean = asBoolean())
        return *boolean ? 1 : 0;
    if (const auto* integer = asInteger())
        return static_cast<double>(*integer);
    if (const auto* wide = asWideInteger())
        return std::ldexp(static_cast<double>(wide->high), 64) + static_cast<double>(wide->low);
    if (const auto* real = asReal())
        return *real;
    if (const auto* string = asString())
        return doubleValueOf(*string);
    return 0;
}

bool PropertyList::boolValue() const
{
    if (const auto* string = asString())
        return boolValueOf(*string);
    return doubleValue() != 0;
}

std::int64_t PropertyList::integerValue() const
{
    if (const auto* integer = asInteger())
        return *integer;
    if (const auto* wide = asWideInteger())
        return static_cast<std::int64_t>(wide->low);
    if (const auto* string = asString())
        return integerValueOf(*string);
    return integerValueOf(doubleValue());
}

float floatForKey(const PropertyListDictionary& dictionary, std::string_view key)
{
    const auto* value = dictionary.find(key);
    return value ? value->floatValue() : 0;
}

const PropertyList::Array* arrayForKey(const PropertyListDictionary& dictionary, std::string_view key)
{
    const auto* value = dictionary.find(key);
    return value ? value->asArray() : nullptr;
}

PropertyList::Array* arrayForKey(PropertyListDictionary& dictionary, std::string_view key)
{
    auto* value = dictionary.find(key);
    return value ? value->asArray() : nullptr;
}

const PropertyList::Dictionary* dictionaryForKey(
    const PropertyListDictionary& dictionary, std::string_view key)
{
    const auto* value = dictionary.find(key);
    return value ? value->asDictionary() : nullptr;
}

PropertyList::Dictionary* dictionaryForKey(PropertyListDictionary& dictionary, std::string_view key)
{
    auto* value = dictionary.find(key);
    return value ? value->asDictionary() : nullptr;
}

const std::string* stringForKey(const PropertyListDictionary& dictionary, std::string_view key)
{
    const auto* value = dictionary.find(key);
    return value ? value->asString() : nullptr;
}

} // namespace brimsound
