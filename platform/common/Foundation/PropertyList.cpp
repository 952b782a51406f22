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

constexpr std::size_t longestToSearchThrough = 16;

std::string_view withoutLeadingBlanks(std::string_view text)
{
    text.remove_prefix(std::min(text.size(), text.find_first_not_of(" \t\n\v\f\r")));
    return text;
}

double doubleValueOf(const std::string& string)
{
    const std::string number(withoutLeadingBlanks(string));
    // strtod would take hexadecimal numbers, infinities and NaN as well.
    const auto digits = number.find_first_not_of("+-");
    if (digits == std::string::npos || number.find_first_not_of("0123456789.", digits) == digits)
        return 0;
    if (number.compare(digits, 2, "0x") == 0 || number.compare(digits, 2, "0X") == 0)
        return 0;
    // Numbers in property lists know no locale.
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

PropertyListDictionary::PropertyListDictionary() = default;
PropertyListDictionary::PropertyListDictionary(PropertyListDictionary&&) noexcept = default;
PropertyListDictionary& PropertyListDictionary::operator=(PropertyListDictionary&&) noexcept = default;
PropertyListDictionary::~PropertyListDictionary() = default;

PropertyListDictionary::PropertyListDictionary(std::initializer_list<Entry> entries)
{
    for (const auto& entry : entries)
        set(entry.key, entry.value);
}

PropertyListDictionary::PropertyListDictionary(const PropertyListDictionary& other)
    : _entries(other._entries)
{
}

PropertyListDictionary& PropertyListDictionary::operator=(const PropertyListDictionary& other)
{
    return *this = PropertyListDictionary(other);
}

std::size_t PropertyListDictionary::size() const
{
    return _entries.size();
}

const PropertyListDictionary::Entry* PropertyListDictionary::begin() const
{
    return _entries.data();
}

const PropertyListDictionary::Entry* PropertyListDictionary::end() const
{
    return _entries.data() + _entries.size();
}

std::size_t PropertyListDictionary::positionOf(std::string_view key) const
{
    if (_entries.size() <= longestToSearchThrough) {
        const auto found = std::find_if(begin(), end(), [&](const Entry& entry) { return entry.key == key; });
        return static_cast<std::size_t>(found - begin());
    }
    if (!_index) {
        _index = std::make_unique<Index>();
        for (std::size_t position = 0; position < _entries.size(); ++position)
            _index->emplace(_entries[position].key, position);
    }
    const auto found = _index->find(key);
    return found == _index->end() ? _entries.size() : found->second;
}

const PropertyList* PropertyListDictionary::find(std::string_view key) const
{
    const auto position = positionOf(key);
    return position < _entries.size() ? &_entries[position].value : nullptr;
}

PropertyList* PropertyListDictionary::find(std::string_view key)
{
    const auto position = positionOf(key);
    return position < _entries.size() ? &_entries[position].value : nullptr;
}

void PropertyListDictionary::set(std::string_view key, PropertyList value)
{
    const auto position = positionOf(key);
    if (position < _entries.size()) {
        _entries[position].value = std::move(value);
        return;
    }
    _entries.push_back({ std::string(key), std::move(value) });
    if (_index)
        _index->emplace(key, position);
}

void PropertyListDictionary::remove(std::string_view key)
{
    const auto position = positionOf(key);
    if (position == _entries.size())
        return;
    _entries.erase(_entries.begin() + static_cast<std::ptrdiff_t>(position));
    _index.reset();
}

bool PropertyListDictionary::operator==(const PropertyListDictionary& other) const
{
    return size() == other.size() && std::all_of(begin(), end(), [&](const Entry& entry) {
        const auto* value = other.find(entry.key);
        return value && *value == entry.value;
    });
}

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

PropertyList::PropertyList(float value)
    : _value(double { value })
{
}

PropertyList::PropertyList(double value)
    : _value(value)
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

PropertyList::PropertyList(Array value)
    : _value(std::move(value))
{
}

PropertyList::PropertyList(Dictionary value)
    : _value(std::move(value))
{
}

float PropertyList::floatValue() const
{
    if (const auto* integer = asInteger())
        return static_cast<float>(*integer);
    return static_cast<float>(doubleValue());
}

double PropertyList::doubleValue() const
{
    if (const auto* boolean = asBoolean())
        return *boolean ? 1 : 0;
    if (const auto* integer = asInteger())
        return static_cast<double>(*integer);
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
