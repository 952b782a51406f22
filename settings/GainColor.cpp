#include "settings/GainColor.h"

#include "settings/GainLimit.h"

#include <cmath>

namespace brimsound {

GainColor gainColor(float gain)
{
    return { gain > 0 ? 1 : (gain + gainLimit) / gainLimit, gain < 0 ? 1 : (gainLimit - gain) / gainLimit };
}

GainColor fadingGainColor(float gain)
{
    auto color = gainColor(gain);
    if (std::abs(gain) <= gainLimit)
        return color;
    const auto excess = static_cast<float>((std::abs(static_cast<double>(gain)) - gainLimit) / gainLimit);
    if (gain > 0)
        return { color.red - excess, 0 };
    return { 0, color.green - excess };
}

RetainPtr<UIColor> uiColor(const GainColor& color)
{
    return UIColor::colorWithRedGreenBlueAlpha(color.red, color.green, 0, 1);
}

} // namespace brimsound
