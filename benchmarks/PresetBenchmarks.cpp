// The preset panel: choosing, opening, scrolling.
#include "benchmarks/Paired.h"
#include "benchmarks/World.h"
#include "desktop/brimsound/PaneHost.h"
#include "platform/desktop/Qt/Snapshot.h"
#include "platform/desktop/bus/SessionBus.h"
#include "settings/store/preferences.h"

namespace brimsound::bench {

namespace {

constexpr toolkit::Size windowSize { 320, 568 };
constexpr double scale = 2;
/// The distance of a flick in a sixtieth of a second, in points.
constexpr double scrollStep = 40;

/// Choosing a preset: ten messages and eleven writes by the pane, compared with ten calls with the same
/// payload and eleven writes of the same file.
void choosingAPreset(benchmark::State& state)
{
    const World world;
    write_preferences(preferencesWithPresets(static_cast<std::size_t>(state.range(0))));
    const desktop::PaneHost host(windowSize);
    host.controller()->showPresets();
    auto& panel = *host.controller()->saver();
    const auto file = world.preferencesFile();
    const std::vector<double> values(11, 1.5);
    std::size_t row = 0;
    std::string bytes = bytesOf(file);

    Paired().run(
        state,
        [&] {
            panel.tableViewDidSelectRowAtIndexPath(*panel.tableView(), { 1, row });
            row = (row + 1) % 16;
        },
        [&] {
            for (int band = 0; band < 10; ++band) {
                sendBare(values);
                writeBare(file, bytes);
            }
            writeBare(file, bytes);
        },
        [] { desktop::SessionBus::shared().drain(); });
}
BENCHMARK(choosingAPreset)->Arg(16)->Arg(1000)->Unit(benchmark::kMicrosecond)->MinTime(2);

/// The eleven notifications that choosing a preset also posts, and their effects: each reaches this process
/// and the media server, which reads the file before it handles the next message. Compared with the ten
/// messages and eleven writes alone.
void announcingBesides(benchmark::State& state)
{
    const World world;
    write_preferences(preferencesWithPresets(static_cast<std::size_t>(state.range(0))));
    const auto file = world.preferencesFile();
    const std::vector<double> values(11, 1.5);
    const std::string bytes = bytesOf(file);
    const auto carryOut = [&](bool announced) {
        for (int change = 0; change < 11; ++change) {
            if (change < 10)
                sendBare(values);
            writeBare(file, bytes);
            if (announced)
                announceBare();
        }
    };
    Paired().run(
        state, [&] { carryOut(true); }, [&] { carryOut(false); },
        [] { desktop::SessionBus::shared().drain(); });
}
BENCHMARK(announcingBesides)->Arg(16)->Arg(1000)->Unit(benchmark::kMicrosecond)->MinTime(2);

/// From the tap to the painted list.
void openingThePanel(benchmark::State& state)
{
    const World world;
    write_preferences(preferencesWithPresets(static_cast<std::size_t>(state.range(0))));
    const desktop::PaneHost host(windowSize);
    for (auto _ : state) {
        host.controller()->showPresets();
        benchmark::DoNotOptimize(desktop::pictureOf(host.window(), scale));
    }
}
BENCHMARK(openingThePanel)->Arg(16)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

/// One step of a flick: builds new rows and paints everything in the window.
void scrollingTheList(benchmark::State& state)
{
    const World world;
    write_preferences(preferencesWithPresets(static_cast<std::size_t>(state.range(0))));
    const desktop::PaneHost host(windowSize);
    host.controller()->showPresets();
    auto& list = *host.controller()->saver()->tableView();
    double offset = 0;
    for (auto _ : state) {
        offset += scrollStep;
        list.setContentOffset({ 0, offset });
        if (list.contentOffset().y < offset)
            offset = 0;
        benchmark::DoNotOptimize(desktop::pictureOf(host.window(), scale));
    }
}
BENCHMARK(scrollingTheList)->Arg(16)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace brimsound::bench
