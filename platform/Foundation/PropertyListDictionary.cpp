#include "platform/Foundation/PropertyList.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace brimsound {

namespace {

constexpr std::size_t longestToSearchThrough = 16;

} // namespace

PropertyListDictionary::PropertyListDictionary() = default;
PropertyListDictionary::PropertyListDictionary(PropertyListDictionary&&) noexcept = default;
PropertyListDictionary& PropertyListDictionary::operator=(PropertyListDictionary&&) noexcept = default;
PropertyListDictionary::~PropertyListDictionary() = default;

PropertyListDictionary::PropertyListDictionary(std::initializer_list<Entry> entries)
    : PropertyListDictionary(std::vector<Entry>(entries))
{
}

PropertyListDictionary::PropertyListDictionary(std::vector<Entry> entries)
{
    if (entries.size() > longestToSearchThrough) {
        _entries = std::move(entries);
        dropRepeatedKeys();
        return;
    }
    _entries.reserve(entries.size());
    for (auto& entry : entries) {
        if (auto* found = find(entry.key))
            *found = std::move(entry.value);
        else
            _entries.push_back(std::move(entry));
    }
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

const PropertyListDictionary::Index& PropertyListDictionary::index() const
{
    if (!_index) {
        _index = std::make_unique<Index>(_entries.size());
        std::iota(_index->begin(), _index->end(), 0u);
        // Equal keys, which can only occur during construction, keep their order.
        std::sort(_index->begin(), _index->end(), [this](std::uint32_t a, std::uint32_t b) {
            const int order = _entries[a].key.compare(_entries[b].key);
            return order < 0 || (order == 0 && a < b);
        });
    }
    return *_index;
}

PropertyListDictionary::Index::iterator PropertyListDictionary::placeInIndex(std::string_view key) const
{
    return std::lower_bound(_index->begin(), _index->end(), key,
        [this](std::uint32_t position, std::string_view wanted) { return _entries[position].key < wanted; });
}

std::size_t PropertyListDictionary::positionOf(std::string_view key) const
{
    if (_entries.size() <= longestToSearchThrough) {
        const auto found = std::find_if(begin(), end(), [&](const Entry& entry) { return entry.key == key; });
        return static_cast<std::size_t>(found - begin());
    }
    const auto last = index().end();
    const auto place = placeInIndex(key);
    return place != last && _entries[*place].key == key ? *place : _entries.size();
}

void PropertyListDictionary::dropRepeatedKeys()
{
    const auto& sorted = index();
    std::vector<bool> isRepeated(_entries.size());
    bool areUnique = true;
    for (std::size_t i = 1, first = 0; i < sorted.size(); ++i) {
        if (_entries[sorted[i]].key != _entries[sorted[first]].key) {
            first = i;
            continue;
        }
        areUnique = false;
        isRepeated[sorted[i]] = true;
        _entries[sorted[first]].value = std::move(_entries[sorted[i]].value);
    }
    if (areUnique)
        return;
    _index.reset();
    std::size_t kept = 0;
    for (std::size_t i = 0; i < _entries.size(); ++i) {
        if (isRepeated[i])
            continue;
        if (kept != i)
            _entries[kept] = std::move(_entries[i]);
        ++kept;
    }
    _entries.resize(kept);
}

const PropertyList* PropertyListDictionary::find(std::string_view key) const
{
    const auto position = positionOf(key);
    return position < _entries.size() ? &_entries[position].value : nullptr;
}

PropertyList* PropertyListDictionary::find(std::string_view key)
{
    return const_cast<PropertyList*>(std::as_const(*this).find(key));
}

void PropertyListDictionary::set(std::string_view key, PropertyList value)
{
    if (auto* found = find(key)) {
        *found = std::move(value);
        return;
    }
    if (_index)
        _index->insert(placeInIndex(key), static_cast<std::uint32_t>(_entries.size()));
    _entries.push_back({ std::string(key), std::move(value) });
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

} // namespace brimsound
