// The round knob of sliders and switches.
#pragma once

#include "platform/desktop/UIKit/Canvas.h"

namespace brimsound::desktop {

/// How far a knob's shadow reaches beyond it, in points.
inline constexpr double knobShadowReach = 4;

/// Draws a white disc that fills the rectangle, and its soft shadow below and around it.
void drawKnob(Canvas&, const CGRect&);

} // namespace brimsound::desktop
