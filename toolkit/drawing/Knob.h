#pragma once

#include "toolkit/drawing/Canvas.h"

namespace brimsound::toolkit {

/// How far a knob's shadow reaches beyond it, in points.
inline constexpr double knobShadowReach = 4;

/// Draws the knob of a slider or switch: a white disc that fills the rectangle, with a soft shadow below and
/// around it.
void drawKnob(Canvas&, const Rect&);

} // namespace brimsound::toolkit
