#include "presets/TargetPoints.h"

#include <algorithm>
#include <cmath>

namespace brimsound::presets {

namespace {

constexpr double lowest = 20;
constexpr double highest = 20000;
constexpr double limit = 24;
constexpr double weightOutside = 0.1;

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
    return points.size() > dense ? points : std::vector<TargetPoint> {};
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

} // namespace

std::vector<TargetPoint> pointsOf(const Response& response)
{
    auto points = ownPoints(response);
    if (points.empty())
        points = evenPoints(response);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const auto& below = points[i > 0 ? i - 1 : i];
        const auto& above = points[i + 1 < points.size() ? i + 1 : i];
        auto& point = points[i];
        point.gain = std::clamp(point.gain, -limit, limit);
        point.weight = std::log(above.frequency / below.frequency) * (point.isReported() ? 1 : weightOutside);
    }
    return points;
}

} // namespace brimsound::presets
