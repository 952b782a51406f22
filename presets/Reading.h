// Reading a file of any known format.
#pragma once

#include "presets/ForeignPreset.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace brimsound::presets {

enum class Format { Eqf, EqualizerApo, GraphicEq, EasyEffects, Xmms, TenNumbers, BrimsoundJson };

/// The largest file that is read, in bytes.
constexpr std::size_t largestFile = std::size_t { 1 } << 20;

/// The format of a name on a command line: "eqf", "apo", "graphiceq", "easyeffects", "xmms", "numbers" or
/// "json"; nothing for any other name.
std::optional<Format> formatNamed(std::string_view name);

/// The presets of a file, of the format that its contents show unless one is given. Never empty: a file
/// without any readable preset gives one preset that is refused.
ForeignPresets readPresets(std::string_view contents, std::optional<Format>, const ReadingOptions&);

} // namespace brimsound::presets
