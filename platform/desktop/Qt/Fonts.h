// Replacements for the platform's fonts.
#pragma once

#include "toolkit/drawing/Font.h"

#include <QFont>

namespace brimsound::desktop {

/// The font to draw with. Its size in points is used as pixels of a canvas at scale 1.
QFont qFont(const toolkit::Font&);

} // namespace brimsound::desktop
