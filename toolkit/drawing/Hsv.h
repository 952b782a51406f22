// Colors by their hue, saturation and value.
#pragma once

#include "toolkit/drawing/Color.h"

namespace brimsound::toolkit {

/// All from 0 to 1; the hue is a share of the color circle, which starts at red. Source of both conversions:
/// J. Foley, A. van Dam et al., "Computer Graphics: Principles and Practice".
struct Hsv {
    double hue = 0;
    double saturation = 0;
    double value = 0;
};

Color colorOf(const Hsv&, double alpha);
/// A gray has the hue 0. The alpha is left out.
Hsv hsvOf(const Color&);

} // namespace brimsound::toolkit
