// The points of a "GraphicEQ:" line, as Equalizer APO, AutoEq, Wavelet and JamesDSP use it.
#pragma once

#include "presets/Curve.h"
#include "presets/ForeignPreset.h"

#include <optional>
#include <string_view>

namespace brimsound::presets {

/// Reads the pairs of a frequency in Hz and a gain in dB after the colon, and sorts them. Returns nothing
/// after a finding when there is no usable curve.
std::optional<Curve> readGraphicEq(std::string_view pairs, const std::string& place, Findings&);

/// The gains of a curve of exactly the equalizer's ten bands; nothing for any other curve.
std::optional<Positions> positionsOf(const Curve&);

} // namespace brimsound::presets
