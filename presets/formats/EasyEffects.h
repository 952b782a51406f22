// Presets of EasyEffects 6 to 8 and PulseEffects 4.
#pragma once

#include "presets/ForeignPreset.h"

#include <nlohmann/json_fwd.hpp>

#include <string_view>

namespace brimsound::presets {

bool isEasyEffects(const nlohmann::json&);
/// Reads one preset: the equalizers of its output, or of its input when it has no output. PulseEffects writes
/// numbers and booleans as strings.
ForeignPresets readEasyEffects(std::string_view text, const ReadingOptions&);

} // namespace brimsound::presets
