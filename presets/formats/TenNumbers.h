// Ten bare gains, as VLC keeps them in its settings.
#pragma once

#include "presets/ForeignPreset.h"

#include <string_view>

namespace brimsound::presets {

/// Whether the text consists of numbers only, after an optional "equalizer-bands=".
bool isNumbers(std::string_view text);
/// Reads ten gains in dB from 60 Hz up, between blanks, commas or semicolons.
ForeignPresets readTenNumbers(std::string_view text);

} // namespace brimsound::presets
