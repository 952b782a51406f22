// Reading and converting preset files, also the largest and the most hostile ones.
#include "presets/Conversion.h"
#include "presets/Reading.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

using namespace brimsound::presets;

std::string repeated(const std::string& start, const std::string& part, std::size_t count = largestFile)
{
    auto text = start;
    for (std::size_t i = 0; i < count && text.size() + part.size() <= largestFile; ++i)
        text += part;
    return text;
}

void import(benchmark::State& state, const std::string& file)
{
    for (auto _ : state) {
        for (const auto& preset : readPresets(file, {}, {})) {
            Findings findings;
            if (!preset.findings.haveErrors())
                benchmark::DoNotOptimize(convert(preset.target, Copying::Allowed, findings));
        }
    }
    state.counters["bytes"] = static_cast<double>(file.size());
}

std::string equalizerOf(std::size_t bands)
{
    auto text = R"({"output":{"plugins_order":["equalizer#0"],"equalizer#0":{"num-bands":)"
        + std::to_string(bands) + R"(,"left":{)";
    for (std::size_t i = 0; i < bands; ++i)
        text += (i > 0 ? ",\"band" : "\"band") + std::to_string(i) + R"(":{"gain":1,"frequency":100,"q":1})";
    return text + "}}}}";
}

std::string curveOf(std::size_t points)
{
    std::string text = "GraphicEQ: ";
    for (std::size_t i = 0; i < points; ++i)
        text += std::to_string(20 + i * 19000 / points) + "." + std::to_string(i % 10) + " "
            + std::to_string(i % 7) + "; ";
    return text;
}

const std::string filter = "Filter: ON PK Fc 1000 Hz Gain 3.0 dB Q 1.41\n";

} // namespace

BENCHMARK_CAPTURE(import, TenFilters, repeated("", filter, 10));
BENCHMARK_CAPTURE(import, ACurveOf127Points, curveOf(127));
BENCHMARK_CAPTURE(import, TenThousandFilters, repeated("", filter, 10000));
BENCHMARK_CAPTURE(import, TenThousandCurves, repeated("", "GraphicEQ: 100 1\n", 10000));
BENCHMARK_CAPTURE(import, ACurveOfTenThousandPoints, curveOf(10000));
BENCHMARK_CAPTURE(import, TenThousandBandsInJson, equalizerOf(10000));
BENCHMARK_CAPTURE(import, AMebibyteOfBadLines, repeated(filter, "x\n"));
BENCHMARK_CAPTURE(import, AMebibyteOfUnknownCommands, repeated(filter, "x:\n"));
BENCHMARK_CAPTURE(import, AMebibyteOfFilters, repeated("", filter));
BENCHMARK_CAPTURE(import, AMebibyteOfPoints, repeated("GraphicEQ: ", "1 1;"));
BENCHMARK_CAPTURE(import, AMebibyteOfBrackets, repeated("", "["));
BENCHMARK_CAPTURE(import, AMebibyteOfJsonValues, repeated("[0", ",0") + "]");
BENCHMARK_CAPTURE(import, AMebibyteOfJsonObjects, repeated("{\"output\":[0", ",{\"\":0}") + "]}");
BENCHMARK_CAPTURE(import, AMebibyteOfSections, repeated("[Presets]\nPreset0=A\n", "[A]\n"));
BENCHMARK_CAPTURE(import, AMebibyteOfMissingPresets, repeated("[Presets]\n", "Preset=A\n"));
BENCHMARK_CAPTURE(import, AMebibyteOfNumbers, repeated("", "1 "));
BENCHMARK_CAPTURE(import, AMebibyteOfText, repeated("", "no preset at all "));
BENCHMARK_CAPTURE(
    import, AMebibyteOfRecords, repeated("Winamp EQ library file v1.1\x1a!--", std::string(268, '\x01')));
BENCHMARK_CAPTURE(import, AMebibyteOfEmptyLines, repeated("", "\n"));
