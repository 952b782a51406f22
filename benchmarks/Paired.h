// Measuring two actions in alternation.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <functional>
#include <vector>

namespace brimsound::bench {

/// The time that this share of the times does not exceed; 0.5 gives the median.
inline double percentile(std::vector<double> times, double share)
{
    const auto nth
        = times.begin() + static_cast<std::ptrdiff_t>(share * static_cast<double>(times.size() - 1));
    std::nth_element(times.begin(), nth, times.end());
    return *nth;
}

/// Runs two actions alternately, so that both are affected by the same noise. The benchmark's own time is
/// that of both together. The results are in the counters: medians and 99th percentiles in microseconds, and
/// the ratios of ours to the bare action.
class Paired {
public:
    /// `prepare` runs before each pair and is not measured.
    template <typename Ours, typename Bare>
    void run(benchmark::State& state, const Ours& ours, const Bare& bare,
        const std::function<void()>& prepare = {})
    {
        for (auto _ : state) {
            if (prepare)
                prepare();
            _bare.push_back(timeOf(bare));
            _ours.push_back(timeOf(ours));
        }
        state.counters["ours_p50_us"] = percentile(_ours, 0.5);
        state.counters["bare_p50_us"] = percentile(_bare, 0.5);
        state.counters["ratio_p50"] = percentile(_ours, 0.5) / percentile(_bare, 0.5);
        state.counters["ours_p99_us"] = percentile(_ours, 0.99);
        state.counters["bare_p99_us"] = percentile(_bare, 0.99);
        state.counters["ratio_p99"] = percentile(_ours, 0.99) / percentile(_bare, 0.99);
    }

private:
    template <typename Action> static double timeOf(const Action& action)
    {
        const auto start = std::chrono::steady_clock::now();
        action();
        return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
    }

    std::vector<double> _ours;
    std::vector<double> _bare;
};

} // namespace brimsound::bench
