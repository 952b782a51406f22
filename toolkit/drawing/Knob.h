// The round knob of sliders and switches.
#pragma once

#include "toolkit/drawing/Canvas.h"

namespace brimsound::toolkit {

/// How far a knob's shadow reaches beyond it, in points.
inline constexpr double knobShadowReach = 4;

/// Draws a white disc that fills the rectangle, and its soft shadow below and around it.
void drawKnob(Canvas&, const Rect&);

} // namespace brimsound::toolkit
