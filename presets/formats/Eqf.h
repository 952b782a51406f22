// Winamp's .eqf and .q1 files.
//
// 31 bytes of magic, then records of 268: a name of 257 bytes that ends at a NUL, ten bands from 60 Hz up,
// and the preamp. A band is a byte from 0, the top of the slider, to 63.
#pragma once

#include "presets/ForeignPreset.h"
#include "presets/OwnPreset.h"

#include <span>
#include <string_view>

namespace brimsound::presets {

bool isEqf(std::string_view bytes);
/// Reads all presets of a file. A record named "Entry1", Winamp's default, has no name.
ForeignPresets readEqf(std::string_view bytes);

/// A file with these presets. Gains become the nearest of 64 steps, 0.39 dB apart; names Windows-1252.
std::string writeEqf(std::span<const OwnPreset>, Findings&);

} // namespace brimsound::presets
