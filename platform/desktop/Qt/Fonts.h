// The fonts that stand in for the platform's.
#pragma once

#include "toolkit/drawing/Font.h"

#include <QFont>

namespace brimsound::desktop {

/// The font to draw with; its size in points is taken as pixels of a canvas at scale 1.
QFont qFont(const toolkit::Font&);

} // namespace brimsound::desktop
