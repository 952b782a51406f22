// The time to read the worst preferences files.
#include "benchmarks/World.h"
#include "settings/store/preferences.h"
#include "tests/support/BinaryPropertyList.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <functional>

namespace brimsound::bench {

namespace {

using namespace tests;

/// A dictionary with an array of that many copies of one object.
std::string copiesOf(std::size_t count, const std::string& object)
{
    return binaryFile({ dictionaryOf(1, 2), stringOf("k"), arrayOfCopies(count, 3), object });
}

std::string keysThatCollide()
{
    std::string entries;
    for (const auto& key : collidingKeys())
        entries += "<key>" + key + "</key><true/>";
    return "<plist><dict>" + entries + "</dict></plist>";
}

/// Arrays of two references to the next array.
std::string doublingReferences()
{
    constexpr int depth = 500;
    std::vector<std::string> objects { dictionaryOf(1, 2), stringOf("k") };
    for (int place = 2; place < depth; ++place)
        objects.push_back(arrayOf({ place + 1, place + 1 }));
    objects.emplace_back("\x09");
    return binaryFile(objects);
}

/// Containers of the maximum depth, and many of them.
std::string nestedArrays()
{
    constexpr std::size_t depth = 511;
    return "<plist><dict><key>k</key>" + repeat("<array>" + repeat("<true/>", 400), depth)
        + repeat("</array>", depth) + "</dict></plist>";
}

std::string countBeyondTheFile()
{
    return binaryFile({ dictionaryOf(1, 2), stringOf("k"), "\xaf\x13\x7f\xff\xff\xff\xff\xff\xff\xff" });
}

std::string manyTags()
{
    return "<plist><dict><key>k</key><array>" + repeat("<real>1</real>", 150'000) + "</array></dict></plist>";
}

void readingTheWorst(benchmark::State& state, const std::function<std::string()>& contents)
{
    const World world;
    write_preferences({});
    std::ofstream(world.preferencesFile(), std::ios::trunc | std::ios::binary) << contents();
    for (auto _ : state)
        benchmark::DoNotOptimize(get_preferences());
}

void addBenchmark(const std::string& name, const std::function<std::string()>& contents)
{
    benchmark::RegisterBenchmark(("readingTheWorst/" + name).c_str(), readingTheWorst, contents)
        ->Unit(benchmark::kMillisecond);
}

const bool added = [] {
    addBenchmark("copiesOfABoolean", [] { return copiesOf(100'000, "\x09"); });
    addBenchmark("copiesOfAnArray", [] { return copiesOf(150'000, "\xa0"); });
    addBenchmark("copiesOfALongText", [] { return copiesOf(50, stringOf(std::string(100'000, 'x'))); });
    addBenchmark("keysThatCollide", keysThatCollide);
    addBenchmark("referencesThatDouble", doublingReferences);
    addBenchmark("deepAndWide", nestedArrays);
    addBenchmark("aCountBeyondTheFile", countBeyondTheFile);
    addBenchmark("objectsThatOverlap", [] { return overlappingFile(std::string(50'000, '\xae')); });
    addBenchmark("manyTags", manyTags);
    return true;
}();

} // namespace

} // namespace brimsound::bench
