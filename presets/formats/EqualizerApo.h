// Text of Equalizer APO: filters and curves. AutoEq, REW and squig.link write it too.
#pragma once

#include "presets/ForeignPreset.h"

#include <string_view>

namespace brimsound::presets {

/// Reads one preset. The text may be in any encoding that extends ASCII. Files that are included are not
/// read.
ForeignPresets readEqualizerApo(std::string_view text, const ReadingOptions&);

} // namespace brimsound::presets
