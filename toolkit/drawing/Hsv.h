#pragma once

#include "toolkit/drawing/Color.h"

namespace brimsound::toolkit {

/// A color by hue, saturation and value, all from 0 to 1. The hue is a fraction of the color circle, which
/// starts at red. Source of both conversions: J. Foley, A. van Dam et al., "Computer Graphics: Principles and
/// Practice".
struct Hsv {
    double hue = 0;
    double saturation = 0;
    double value = 0;
};

Color colorOf(const Hsv&, double alpha);
/// The hue of a gray is 0. The alpha is ignored.
Hsv hsvOf(const Color&);

} // namespace brimsound::toolkit
