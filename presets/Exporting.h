// Presets for other programs.
//
// A filter list has the filters that the equalizer solves for, not the sliders' gains, so that the other
// program sounds the same.
#pragma once

#include "presets/Findings.h"
#include "presets/OwnPreset.h"
#include "presets/Reading.h"

#include <span>
#include <string>

namespace brimsound::presets {

/// Whether presets can be written in that format.
bool canExport(Format);
/// Whether a file of that format has room for several presets.
bool holdsSeveral(Format);

/// The contents of a file with these presets: several only when the format holds several.
std::string exported(std::span<const OwnPreset>, Format, Findings&);

} // namespace brimsound::presets
