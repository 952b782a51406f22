// Reading and writing the preferences file, compared with plain libplist and Python's plistlib.
#include "benchmarks/Paired.h"
#include "benchmarks/PythonPlistlib.h"
#include "benchmarks/World.h"
#include "settings/store/preferences.h"

#include <plist/plist.h>

#include <cstdlib>
#include <memory>

namespace brimsound::bench {

namespace {

using Nodes = std::unique_ptr<void, decltype(&plist_free)>;

Nodes nodesOf(const std::string& bytes)
{
    plist_t root = nullptr;
    plist_from_bin(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &root);
    return { root, plist_free };
}

void reading(benchmark::State& state)
{
    const World world;
    write_preferences(preferencesWithPresets(static_cast<std::size_t>(state.range(0))));
    const auto file = world.preferencesFile();
    PythonPlistlib python(file);
    std::vector<double> pythonTimes;
    const auto bare = [&] { benchmark::DoNotOptimize(nodesOf(bytesOf(file))); };
    Paired().run(
        state, [] { benchmark::DoNotOptimize(get_preferences()); }, bare,
        [&] {
            pythonTimes.push_back(python.read());
            // So that the bare action does not always find cold caches.
            bare();
        });
    state.counters["python_p50_us"] = percentile(pythonTimes, 0.5);
    state.SetComplexityN(state.range(0));
}
BENCHMARK(reading)->Arg(16)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond)->MinTime(1);

void writing(benchmark::State& state)
{
    const World world;
    const auto preferences = preferencesWithPresets(static_cast<std::size_t>(state.range(0)));
    write_preferences(preferences);
    const auto file = world.preferencesFile();
    const auto nodes = nodesOf(bytesOf(file));
    PythonPlistlib python(file);
    std::vector<double> pythonTimes;
    auto copy = preferences;
    const auto bare = [&] {
        char* bytes = nullptr;
        std::uint32_t size = 0;
        plist_to_bin(nodes.get(), &bytes, &size);
        writeBare(file, std::string(bytes, size));
        std::free(bytes);
    };
    // The pane moves its value into the call, so copying is not part of the measurement.
    Paired().run(
        state, [&] { write_preferences(std::move(copy)); }, bare,
        [&] {
            pythonTimes.push_back(python.write());
            copy = preferences;
            bare();
        });
    state.counters["python_p50_us"] = percentile(pythonTimes, 0.5);
    state.SetComplexityN(state.range(0));
}
BENCHMARK(writing)->Arg(16)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond)->MinTime(1);

} // namespace

} // namespace brimsound::bench
