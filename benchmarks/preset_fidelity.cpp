// How exactly presets are converted, as two tables in Markdown.
#include "tests/support/ExampleResponses.h"
#include "tests/support/RoundTrips.h"

#include <cstdio>

using namespace brimsound;
using namespace brimsound::presets;
using namespace brimsound::tests;

namespace {

constexpr std::size_t randomSetCount = 1000;

void printFits()
{
    std::puts("| Target | Sampled: rms | largest | Fitted: rms | largest |");
    std::puts("|---|---|---|---|---|");
    for (const auto& [name, response] : exampleResponses()) {
        const auto points = pointsOf(response);
        const auto level = response.levelIsKnown ? Level::Counts : Level::IsFree;
        const auto sampled = compare(points, level, sampleAtCenters(points));
        const auto fitted = compare(points, level, fit(points, level));
        std::printf("| %s | %.2f | %.2f | %.2f | %.2f |\n", name, sampled.rms, sampled.largest, fitted.rms,
            fitted.largest);
    }
}

void printRoundTrips()
{
    std::puts("| Format | Built-in presets | All sliders at an end | 1,000 random sets |");
    std::puts("|---|---|---|---|");
    for (const auto& trip : roundTrips) {
        std::printf("| %s | %.4f | %.4f | %.4f |\n", trip.name, largestError(builtInSets(), trip.format),
            largestError({ allSlidersAt(-12), allSlidersAt(12) }, trip.format),
            largestError(randomSets(randomSetCount), trip.format));
    }
}

} // namespace

int main()
{
    printFits();
    std::puts("");
    printRoundTrips();
}
