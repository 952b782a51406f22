// Finding a key of a dictionary: with a linear search, with a sorted index, with a hash table made at the
// first lookup, and with the dictionary itself.
#include "platform/Foundation/PropertyList.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace brimsound::bench {

namespace {

/// Names like those of presets.
std::vector<PropertyListDictionary::Entry> entriesFor(const benchmark::State& state)
{
    std::vector<PropertyListDictionary::Entry> entries;
    entries.reserve(static_cast<std::size_t>(state.range(0)));
    for (int i = 0; i < state.range(0); ++i)
        entries.push_back({ "Preset " + std::to_string(i), PropertyList(i) });
    return entries;
}

class FlatSearch {
public:
    explicit FlatSearch(const std::vector<PropertyListDictionary::Entry>& entries)
        : _entries(entries)
    {
    }

    const PropertyList* find(std::string_view key) const
    {
        const auto found = std::find_if(
            _entries.begin(), _entries.end(), [&](const auto& entry) { return entry.key == key; });
        return found == _entries.end() ? nullptr : &found->value;
    }

private:
    const std::vector<PropertyListDictionary::Entry>& _entries;
};

class SortedIndex {
public:
    explicit SortedIndex(const std::vector<PropertyListDictionary::Entry>& entries)
        : _entries(entries)
        , _index(entries.size())
    {
        std::iota(_index.begin(), _index.end(), 0u);
        std::sort(_index.begin(), _index.end(),
            [&](std::uint32_t a, std::uint32_t b) { return _entries[a].key < _entries[b].key; });
    }

    const PropertyList* find(std::string_view key) const
    {
        const auto place = std::lower_bound(_index.begin(), _index.end(), key,
            [&](std::uint32_t position, std::string_view wanted) { return _entries[position].key < wanted; });
        return place != _index.end() && _entries[*place].key == key ? &_entries[*place].value : nullptr;
    }

private:
    const std::vector<PropertyListDictionary::Entry>& _entries;
    std::vector<std::uint32_t> _index;
};

class HashTable {
public:
    explicit HashTable(const std::vector<PropertyListDictionary::Entry>& entries)
        : _entries(entries)
    {
        for (std::size_t position = 0; position < entries.size(); ++position)
            _index.emplace(entries[position].key, position);
    }

    const PropertyList* find(std::string_view key) const
    {
        const auto found = _index.find(key);
        return found == _index.end() ? nullptr : &_entries[found->second].value;
    }

private:
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };

    const std::vector<PropertyListDictionary::Entry>& _entries;
    std::unordered_map<std::string, std::size_t, Hash, std::equal_to<>> _index;
};

class Dictionary {
public:
    explicit Dictionary(const std::vector<PropertyListDictionary::Entry>& entries)
        : _dictionary(entries)
    {
    }

    const PropertyList* find(std::string_view key) const { return _dictionary.find(key); }

private:
    PropertyListDictionary _dictionary;
};

/// Finds all keys in turn, with the index or table already made.
template <typename Search> void findingAKey(benchmark::State& state)
{
    const auto entries = entriesFor(state);
    const Search search(entries);
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(search.find(entries[next].key));
        next = (next + 7) % entries.size();
    }
}

/// Finds the first key, including the time to make the index or table: the cost of a dictionary that is read,
/// used once and dropped.
template <typename Search> void findingTheFirstKey(benchmark::State& state)
{
    const auto entries = entriesFor(state);
    const auto& key = entries[entries.size() / 2].key;
    for (auto _ : state) {
        const Search search(entries);
        benchmark::DoNotOptimize(search.find(key));
    }
}

void forEverySize(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(5)->Arg(16)->Arg(1000)->Arg(10000)->Unit(benchmark::kNanosecond);
}

BENCHMARK(findingAKey<FlatSearch>)->Apply(forEverySize);
BENCHMARK(findingAKey<SortedIndex>)->Apply(forEverySize);
BENCHMARK(findingAKey<HashTable>)->Apply(forEverySize);
BENCHMARK(findingAKey<Dictionary>)->Apply(forEverySize);
BENCHMARK(findingTheFirstKey<FlatSearch>)->Apply(forEverySize);
BENCHMARK(findingTheFirstKey<SortedIndex>)->Apply(forEverySize);
BENCHMARK(findingTheFirstKey<HashTable>)->Apply(forEverySize);

} // namespace

} // namespace brimsound::bench
