// This equalizer's own format: {"format": "brimsound-presets", "version": 1, "presets": [{"name": …, "gains":
// […]}]}
#pragma once

#include "presets/ForeignPreset.h"
#include "presets/OwnPreset.h"

#include <nlohmann/json_fwd.hpp>

#include <span>
#include <string>
#include <string_view>

namespace brimsound::presets {

bool isBrimsoundJson(const nlohmann::json&);
ForeignPresets readBrimsoundJson(std::string_view text);
/// Ends with a line feed. All digits of the gains are kept.
std::string writeBrimsoundJson(std::span<const OwnPreset>);

} // namespace brimsound::presets
