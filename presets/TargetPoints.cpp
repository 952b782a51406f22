#include "presets/TargetPoints.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>

namespace brimsound::presets {

namespace {

constexpr double lowest = 20;
constexpr double highest = 20000;
constexpr double limit = 24;
constexpr double weightOutside = 0.1;

/// Whether the points leave no band without a point near it.
bool coverTheBands(const std::vector<TargetPoint>& points)
{
    constexpr double widestStep = std::numbers::sqrt2; // half an octave
    const auto isWide = [](const TargetPoint& below, const TargetPoint& above) {
        return above.frequency > widestStep * below.frequency;
    };
    return points.front().frequency <= lowestReported && points.back().frequency >= highestReported
        && std::ranges::adjacent_find(points, isWide) == points.end();
}

/// The points of a curve inside the range if they are dense enough to be used as they are.
std::vector<TargetPoint> ownPoints(const Response& response)
{
    constexpr std::size_t dense = 60;
    if (response.curves.size() != 1 || !response.filters.empty())
        return {};
    std::vector<TargetPoint> points;
    for (const auto& [frequency, gain] : response.curves.front()) {
        if (lowest <= frequency && frequency <= highest)
            points.push_back({ frequency, gain });
    }
    const bool isDense = points.size() > dense && coverTheBands(points);
    return isDense ? points : std::vector<TargetPoint> {};
}

std::vector<TargetPoint> evenPoints(const Response& response)
{
    constexpr std::size_t count = 240;
    std::vector<double> frequencies;
    for (std::size_t i = 0; i < count; ++i)
        frequencies.push_back(lowest * std::pow(highest / lowest, static_cast<double>(i) / (count - 1)));
    std::vector<double> gains(count);
    for (const auto& filter : response.filters)
        addResponse(filter, frequencies, gains);
    std::vector<TargetPoint> points;
    for (std::size_t i = 0; i < count; ++i) {
        for (const auto& curve : response.curves)
            gains[i] += gainAt(curve, frequencies[i]);
        points.push_back({ frequencies[i], gains[i] });
    }
    return points;
}

/// The median gain, which is finite.
double middleOf(const std::vector<TargetPoint>& points)
{
    constexpr double farthest = 1000;
    std::vector<double> gains;
    std::ranges::transform(points, std::back_inserter(gains), &TargetPoint::gain);
    const auto middle = gains.begin() + static_cast<std::ptrdiff_t>(gains.size() / 2);
    std::ranges::nth_element(gains, middle);
    return std::clamp(*middle, -farthest, farthest);
}

} // namespace

std::vector<TargetPoint> pointsOf(const Response& response)
{
    auto points = ownPoints(response);
    if (points.empty())
        points = evenPoints(response);
    const double level = response.levelIsKnown ? 0 : middleOf(points);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const auto& below = points[i > 0 ? i - 1 : i];
        const auto& above = points[i + 1 < points.size() ? i + 1 : i];
        auto& point = points[i];
        point.gain = std::clamp(point.gain - level, -limit, limit);
        point.weight = std::log(above.frequency / below.frequency) * (point.isReported() ? 1 : weightOutside);
    }
    return points;
}

} // namespace brimsound::presets
