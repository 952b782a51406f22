// Property-list values: what preferences, messages and bundle resources are made of.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

namespace brimsound {

class PropertyList;

/// A dictionary from strings to values that keeps the order in which its keys were first set. One that was
/// read from a file has the file's order where the platform knows it, as the desktop does; on a device it is
/// whatever order Foundation hands the keys out in.
class PropertyListDictionary {
public:
    struct Entry;

    PropertyListDictionary();
    PropertyListDictionary(std::initializer_list<Entry> entries);
    PropertyListDictionary(const PropertyListDictionary&);
    PropertyListDictionary(PropertyListDictionary&&) noexcept;
    PropertyListDictionary& operator=(const PropertyListDictionary&);
    PropertyListDictionary& operator=(PropertyListDictionary&&) noexcept;
    ~PropertyListDictionary();

    std::size_t size() const;
    bool empty() const { return size() == 0; }
    const Entry* begin() const;
    const Entry* end() const;

    /// The value under the key, owned by the dictionary and valid until it next changes; null when there is
    /// none.
    const PropertyList* find(std::string_view key) const;
    PropertyList* find(std::string_view key);
    /// Sets the value under the key: in the key's place when it is there, else at the end.
    void set(std::string_view key, PropertyList value);
    /// Removes the key; nothing happens when it is not there.
    void remove(std::string_view key);

    /// Alike when the same keys have equal values, whatever their order.
    bool operator==(const PropertyListDictionary&) const;

private:
    std::size_t positionOf(std::string_view key) const;

    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };
    using Index = std::unordered_map<std::string, std::size_t, Hash, std::equal_to<>>;

    std::vector<Entry> _entries;
    // Where each key stands; made at the first look-up in a dictionary too long to be searched through.
    mutable std::unique_ptr<Index> _index;
};

/// One property-list value, with everything inside it; copies are deep, everything can be changed in place.
/// Null (no value) stands for Foundation's nil: it converts to zero or false and cannot be serialised.
class PropertyList {
public:
    using Array = std::vector<PropertyList>;
    using Dictionary = PropertyListDictionary;
    using Data = std::vector<std::byte>;
    /// A moment, in seconds since the first instant of 2001 UTC.
    struct Date {
        double secondsSinceReferenceDate = 0;
        bool operator==(const Date&) const = default;
    };

    PropertyList() = default;
    PropertyList(bool);
    PropertyList(int);
    PropertyList(std::int64_t);
    /// A single-precision number keeps its exact value; the serialiser writes a real in four bytes when that
    /// loses nothing.
    PropertyList(float);
    PropertyList(double);
    PropertyList(const char*);
    PropertyList(std::string_view);
    PropertyList(std::string);
    PropertyList(Data);
    PropertyList(Date);
    PropertyList(Array);
    PropertyList(Dictionary);

    bool isNull() const { return std::holds_alternative<std::monostate>(_value); }

    /// The value when it is of exactly that type (integers and reals do not mix here), else null.
    const bool* asBoolean() const { return std::get_if<bool>(&_value); }
    const std::int64_t* asInteger() const { return std::get_if<std::int64_t>(&_value); }
    const double* asReal() const { return std::get_if<double>(&_value); }
    const std::string* asString() const { return std::get_if<std::string>(&_value); }
    const Data* asData() const { return std::get_if<Data>(&_value); }
    const Date* asDate() const { return std::get_if<Date>(&_value); }
    const Array* asArray() const { return std::get_if<Array>(&_value); }
    Array* asArray() { return std::get_if<Array>(&_value); }
    const Dictionary* asDictionary() const { return std::get_if<Dictionary>(&_value); }
    Dictionary* asDictionary() { return std::get_if<Dictionary>(&_value); }

    /// Foundation's conversions. Numbers and booleans convert to one another as NSNumber's do. Strings
    /// convert as NSString's do: after leading blanks the longest number at the start, else 0; for boolValue,
    /// true when blanks, a sign and zeros are followed by Y, y, T, t or a digit from 1 to 9. Everything else,
    /// null included, is zero or false.
    float floatValue() const;
    double doubleValue() const;
    bool boolValue() const;
    std::int64_t integerValue() const;

    bool operator==(const PropertyList&) const = default;

private:
    std::variant<std::monostate, bool, std::int64_t, double, std::string, Data, Date, Array, Dictionary>
        _value;
};

struct PropertyListDictionary::Entry {
    std::string key;
    PropertyList value;

    bool operator==(const Entry&) const = default;
};

/// The float in the dictionary under the key: 0 when the key is missing.
float floatForKey(const PropertyListDictionary&, std::string_view key);
/// The value in the dictionary under the key when it is of exactly that type, owned by the dictionary and
/// valid until it next changes; null when the key is missing or holds something else.
const PropertyList::Array* arrayForKey(const PropertyListDictionary&, std::string_view key);
PropertyList::Array* arrayForKey(PropertyListDictionary&, std::string_view key);
const PropertyList::Dictionary* dictionaryForKey(const PropertyListDictionary&, std::string_view key);
PropertyList::Dictionary* dictionaryForKey(PropertyListDictionary&, std::string_view key);
const std::string* stringForKey(const PropertyListDictionary&, std::string_view key);

} // namespace brimsound
