// Preset files of XMMS and Audacious: sections of keys and values.
#pragma once

#include "presets/ForeignPreset.h"

#include <string_view>

namespace brimsound::presets {

/// Reads a file of one preset, "[Equalizer preset]", or a library that begins with a list, "[Presets]". Both
/// programs use the same keys: XMMS for the bands of this equalizer, Audacious for octaves.
ForeignPresets readXmms(std::string_view text, const ReadingOptions&);

} // namespace brimsound::presets
