#pragma once

#include "presets/Reading.h"

#include <optional>
#include <string_view>

namespace brimsound::tests {

/// Reads bytes as a preset file of that format, or of the one that they show, and evaluates what it asks for.
/// Throws std::logic_error when a preset has numbers that cannot be.
void tryPresetFile(std::string_view bytes, std::optional<presets::Format>);

/// Converts the presets too, which takes longer, and exports the results.
void tryConversion(std::string_view bytes);

} // namespace brimsound::tests
