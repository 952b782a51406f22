#include "toolkit/drawing/Hsv.h"

#include <algorithm>
#include <cmath>

namespace brimsound::toolkit {

Color colorOf(const Hsv& hsv, double alpha)
{
    // Each component equals the value over a third of the circle, and goes down and up beside it.
    const auto component = [&](double peakOfFall) {
        const double sixth = std::fmod(peakOfFall + 6 * hsv.hue, 6);
        const double below = std::clamp(std::min(sixth, 4 - sixth), 0.0, 1.0);
        return hsv.value * (1 - hsv.saturation * below);
    };
    return { component(5), component(3), component(1), alpha };
}

Hsv hsvOf(const Color& color)
{
    const auto& [red, green, blue, alpha] = color;
    const double highest = std::max({ red, green, blue });
    const double range = highest - std::min({ red, green, blue });
    double sixths = 0;
    if (range > 0 && highest == red)
        sixths = (green - blue) / range;
    else if (range > 0 && highest == green)
        sixths = 2 + (blue - red) / range;
    else if (range > 0)
        sixths = 4 + (red - green) / range;
    return { (sixths < 0 ? sixths + 6 : sixths) / 6, highest > 0 ? range / highest : 0, highest };
}

} // namespace brimsound::toolkit
