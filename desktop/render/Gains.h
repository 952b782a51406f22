// The gains for rendering a file.
#pragma once

#include "desktop/engine/audio/Bands.h"

#include <string>

namespace brimsound::render {

/// The gains of a preset in the preferences, or of a built-in preset when none is saved. Throws
/// std::runtime_error when there is no such preset, or when it is not ten numbers.
audio::BandGains gainsOfPreset(const std::string& name);

/// The preamp that the pane's Auto Preamp sets for these gains: the negated highest gain, in dB.
double autoPreamp(const audio::BandGains&);

} // namespace brimsound::render
