// Property-list values: what preferences, messages and bundle resources are made of.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
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
    /// From entries whose keys may repeat: a key keeps its first place and its last value.
    explicit PropertyListDictionary(std::vector<Entry> entries);
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
    /// The positions of the entries, in the order of their keys.
    using Index = std::vector<std::uint32_t>;

    std::size_t positionOf(std::string_view key) const;
    const Index& index() const;
    Index::iterator placeInIndex(std::string_view key) const;
    void dropRepeatedKeys();

    std::vector<Entry> _entries;
    // Made at the first look-up in a dictionary that is too long to be searched through.
    mutable std::unique_ptr<Index> _index;
};

/// One property-list value, with everything inside it; copies are deep, everything can be changed in place.
/// Null (no value) stands for Foundation's nil: it converts to zero or false and cannot be serialized.
/// Text is UTF-8. A file may hold half a surrogate pair as well: it is kept as three bytes, encoded as if it
/// were a character.
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
    /// An integer beyond 64 bits with a sign: the halves of its two's complement of 128 bits.
    struct WideInteger {
        std::int64_t high = 0;
        std::uint64_t low = 0;
        bool operator==(const WideInteger&) const = default;
    };
    /// What a keyed archive refers to its objects by. Not a number: it converts to zero.
    struct Uid {
        std::uint64_t value = 0;
        bool operator==(const Uid&) const = default;
    };
    /// The null object of a binary file, Foundation's NSNull.
    struct NullObject {
        bool operator==(const NullObject&) const = default;
    };
    /// A set, in the order of the file.
    struct Set {
        Array elements;
        bool operator==(const Set&) const;
    };

    PropertyList() = default;
    PropertyList(bool);
    PropertyList(int);
    PropertyList(std::int64_t);
    PropertyList(std::uint64_t);
    /// Becomes a plain integer when it fits into one.
    PropertyList(WideInteger);
    /// A real of single precision, which takes four bytes in a binary file.
    PropertyList(float);
    /// A real of double precision. It equals one of single precision that has the same value.
    PropertyList(double);
    PropertyList(const char*);
    PropertyList(std::string_view);
    PropertyList(std::string);
    PropertyList(Data);
    PropertyList(Date);
    PropertyList(Uid);
    PropertyList(NullObject);
    PropertyList(Array);
    PropertyList(Set);
    PropertyList(Dictionary);

    /// A real in place, as the constructors make it.
    template <std::floating_point Number> PropertyList& operator=(Number value)
    {
        _value = Real { value, std::is_same_v<Number, float> };
        return *this;
    }

    bool isNull() const { return std::holds_alternative<std::monostate>(_value); }

    /// The value when it is of exactly that type (integers and reals do not mix here), else null. A real is
    /// given as a double whatever its precision.
    const bool* asBoolean() const { return std::get_if<bool>(&_value); }
    const std::int64_t* asInteger() const { return std::get_if<std::int64_t>(&_value); }
    const WideInteger* asWideInteger() const { return std::get_if<WideInteger>(&_value); }
    const double* asReal() const
    {
        const auto* real = std::get_if<Real>(&_value);
        return real ? &real->value : nullptr;
    }
    /// Whether it is a real of single precision.
    bool isSingleReal() const
    {
        const auto* real = std::get_if<Real>(&_value);
        return real && real->isSingle;
    }
    const std::string* asString() const { return std::get_if<std::string>(&_value); }
    const Data* asData() const { return std::get_if<Data>(&_value); }
    const Date* asDate() const { return std::get_if<Date>(&_value); }
    const Uid* asUid() const { return std::get_if<Uid>(&_value); }
    const NullObject* asNullObject() const { return std::get_if<NullObject>(&_value); }
    const Array* asArray() const { return std::get_if<Array>(&_value); }
    Array* asArray() { return std::get_if<Array>(&_value); }
    const Set* asSet() const { return std::get_if<Set>(&_value); }
    Set* asSet() { return std::get_if<Set>(&_value); }
    const Dictionary* asDictionary() const { return std::get_if<Dictionary>(&_value); }
    Dictionary* asDictionary() { return std::get_if<Dictionary>(&_value); }

    /// Foundation's conversions. Numbers and booleans convert to one another as NSNumber's do. Strings
    /// convert as NSString's do: after leading blanks the longest number at the start, else 0; for boolValue,
    /// true when blanks, a sign and zeros are followed by Y, y, T, t or a digit from 1 to 9. Everything else,
    /// null included, is zero or false. An integer beyond 64 bits becomes one by its lower half.
    float floatValue() const;
    double doubleValue() const;
    bool boolValue() const;
    std::int64_t integerValue() const;

    bool operator==(const PropertyList&) const = default;

private:
    struct Real {
        double value;
        bool isSingle;
        bool operator==(const Real& other) const { return value == other.value; }
    };

    std::variant<std::monostate, bool, std::int64_t, WideInteger, Real, std::string, Data, Date, Uid,
        NullObject, Array, Set, Dictionary>
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
