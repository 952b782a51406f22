#include "presets/formats/GraphicEq.h"

#include "presets/Text.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace brimsound::presets {

namespace {

/// A comma is a decimal separator only in a line without a point, as in Equalizer APO.
std::vector<double> numbersOf(std::string_view text)
{
    std::string line(text);
    const bool hasPoint = line.find('.') != std::string::npos;
    std::ranges::replace(line, ',', hasPoint ? ' ' : '.');
    std::vector<double> numbers;
    for (auto word : wordsOf(line, " \t;")) {
        if (const auto number = takeNumber(word))
            numbers.push_back(*number);
    }
    return numbers;
}

} // namespace

std::optional<Curve> readGraphicEq(std::string_view pairs, const std::string& place, Findings& findings)
{
    const auto numbers = numbersOf(pairs);
    if (numbers.size() % 2 != 0)
        findings.warn(place, "the last frequency has no gain, point skipped");
    Curve curve;
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2) {
        const CurvePoint point { numbers[i], numbers[i + 1] };
        if (!std::isfinite(point.frequency) || !std::isfinite(point.gain) || point.frequency <= 0) {
            findings.refuse(
                place, "point " + std::to_string(i / 2 + 1) + " is not a frequency above 0 and a gain");
            return std::nullopt;
        }
        curve.push_back(point);
    }
    if (curve.empty()) {
        findings.refuse(place, "\"GraphicEQ:\" has no points");
        return std::nullopt;
    }
    std::ranges::stable_sort(curve, {}, &CurvePoint::frequency);
    // Of several points at one frequency the last one stays.
    const auto rest = std::unique(curve.rbegin(), curve.rend(),
        [](const CurvePoint& a, const CurvePoint& b) { return a.frequency == b.frequency; });
    if (rest != curve.rend()) {
        findings.warn(place, "a frequency has several gains, the last one is taken");
        curve.erase(curve.begin(), rest.base());
    }
    return curve;
}

std::optional<Positions> positionsOf(const Curve& curve)
{
    if (!std::ranges::equal(curve, audio::centers, {}, &CurvePoint::frequency))
        return std::nullopt;
    Positions positions;
    std::ranges::transform(curve, positions.gains.begin(), &CurvePoint::gain);
    return positions;
}

} // namespace brimsound::presets
