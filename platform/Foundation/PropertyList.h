// Property-list values: the contents of preferences, messages and bundle resources.
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

/// A dictionary with string keys. It keeps the order in which its keys were first set. A dictionary read from
/// a file has the file's order on the desktop. On a device it has the order in which Foundation enumerates
/// its keys.
class PropertyListDictionary {
public:
    struct Entry;

    PropertyListDictionary();
    PropertyListDictionary(std::initializer_list<Entry> entries);
    /// The keys of the entries may repeat: a key keeps its first position and its last value.
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

    /// The value under the key, owned by the dictionary and valid until the dictionary changes; null when
    /// there is none.
    const PropertyList* find(std::string_view key) const;
    PropertyList* find(std::string_view key);
    /// Sets the value under the key. A new key is added at the end.
    void set(std::string_view key, PropertyList value);
    /// Removes the key. Does nothing when the key is missing.
    void remove(std::string_view key);

    /// Equal when the same keys have equal values, in any order.
    bool operator==(const PropertyListDictionary&) const;

private:
    /// The positions of the entries, sorted by key.
    using Index = std::vector<std::uint32_t>;

    std::size_t positionOf(std::string_view key) const;
    const Index& index() const;
    Index::iterator placeInIndex(std::string_view key) const;
    void dropRepeatedKeys();

    std::vector<Entry> _entries;
    // Built at the first lookup in a dictionary that is too long for a linear search.
    mutable std::unique_ptr<Index> _index;
};

/// A property-list value with everything inside it. Copies are deep; everything can be changed in place. Null
/// (no value) stands for Foundation's nil: it converts to zero or false and cannot be serialized. Text is
/// UTF-8. A file may also contain an unpaired surrogate: it is kept as three bytes, encoded as if it were a
/// character.
class PropertyList {
public:
    using Array = std::vector<PropertyList>;
    using Dictionary = PropertyListDictionary;
    using Data = std::vector<std::byte>;
    /// A point in time, in seconds since the start of 2001 UTC.
    struct Date {
        double secondsSinceReferenceDate = 0;
        bool operator==(const Date&) const = default;
    };
    /// An integer that does not fit into 64 signed bits: the halves of its 128-bit two's complement.
    struct WideInteger {
        std::int64_t high = 0;
        std::uint64_t low = 0;
        bool operator==(const WideInteger&) const = default;
    };
    /// A reference to an object in a keyed archive. Not a number: it converts to zero.
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
    /// Becomes a plain integer when it fits into 64 signed bits.
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

    /// Assigns a real, with the type that the constructors would give it.
    template <std::floating_point Number> PropertyList& operator=(Number value)
    {
        _value = Real { value, std::is_same_v<Number, float> };
        return *this;
    }

    bool isNull() const { return std::holds_alternative<std::monostate>(_value); }

    /// The value if it has exactly that type (integers and reals are not converted here), otherwise null. A
    /// real is returned as a double whatever its precision.
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

    /// Foundation's conversions. Numbers and booleans convert to each other as in NSNumber. Strings convert
    /// as in NSString: the longest number after leading blanks, or 0 if there is none; for boolValue, true
    /// when blanks, a sign and zeros are followed by Y, y, T, t or a digit from 1 to 9. Everything else,
    /// including null, converts to zero or false. An integer that exceeds 64 bits converts by its lower half.
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

/// The float under the key in the dictionary; 0 when the key is missing.
float floatForKey(const PropertyListDictionary&, std::string_view key);
/// The value under the key if it has exactly that type, owned by the dictionary and valid until the
/// dictionary changes; null when the key is missing or its value has another type.
const PropertyList::Array* arrayForKey(const PropertyListDictionary&, std::string_view key);
PropertyList::Array* arrayForKey(PropertyListDictionary&, std::string_view key);
const PropertyList::Dictionary* dictionaryForKey(const PropertyListDictionary&, std::string_view key);
PropertyList::Dictionary* dictionaryForKey(PropertyListDictionary&, std::string_view key);
const std::string* stringForKey(const PropertyListDictionary&, std::string_view key);

} // namespace brimsound
