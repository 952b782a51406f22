// Parsing of untrusted JSON.
#pragma once

#include "presets/Findings.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <string_view>

namespace brimsound::presets {

/// The value of a text; nothing after a finding when it is not JSON or is nested more than 64 deep.
std::optional<nlohmann::json> parseJson(std::string_view text, Findings&);

/// The number of a JSON number, or of a string as PulseEffects writes it. Infinite when a string holds a
/// number that is too large; nothing when it is no number.
std::optional<double> numberOf(const nlohmann::json&);

} // namespace brimsound::presets
