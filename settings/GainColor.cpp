#include "settings/GainColor.h"

#include <cmath>

namespace brimsound {

GainColor gainColor(float gain)
{
    return { gain > 0 ? 1 : (gain + 12) / 12, gain < 0 ? 1 : (12 - gain) / 12 };
}

GainColor fadingGainColor(float gain)
{
    auto color = gainColor(gain);
    if (std::abs(gain) <= 12)
        return color;
    const auto excess = static_cast<float>((std::abs(static_cast<double>(gain)) - 12) / 12);
    if (gain > 0)
        return { color.red - excess, 0 };
    return { 0, color.green - excess };
}

RetainPtr<UIColor> uiColor(const GainColor& color)
{
    return UIColor::colorWithRedGreenBlueAlpha(color.red, color.green, 0, 1);
}

} // namespace brimsound
