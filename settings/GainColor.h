#pragma once

#include "platform/UIKit/UIColor.h"

namespace brimsound {

/// Red and green of a gain's color, from 0 to 1; blue is always 0.
struct GainColor {
    float red;
    float green;
};

/// From green at -12 dB through yellow at 0 dB to red at +12 dB:
/// red = 1 above 0 dB, else (gain + 12) / 12; green = 1 below 0 dB, else (12 - gain) / 12.
GainColor gainColor(float gain);

/// The same, but fading to black between 12 dB and 24 dB in either direction.
GainColor fadingGainColor(float gain);

RetainPtr<UIColor> uiColor(const GainColor&);

} // namespace brimsound
