// The gains for rendering a file.
#pragma once

#include "desktop/engine/audio/Bands.h"

#include <string>
#include <vector>

namespace brimsound::render {

/// The names of the presets in the preferences, or of the built-in presets when none is saved.
std::vector<std::string> presetNames();

/// The gains of one of these presets. Throws std::runtime_error when there is no such preset, or when it is
/// not ten numbers.
audio::BandGains gainsOfPreset(const std::string& name);

/// The preamp that the pane's Auto Preamp sets for these gains: the negated highest gain, in dB.
double autoPreamp(const audio::BandGains&);

} // namespace brimsound::render
