// The gains of a rendering.
#pragma once

#include "desktop/engine/audio/Bands.h"

#include <string>

namespace brimsound::render {

/// The gains of a preset in the preferences, or of a built-in one while none is saved. Throws
/// std::runtime_error when there is no such preset, or it is not ten numbers.
audio::BandGains gainsOfPreset(const std::string& name);

/// What the pane's Auto Preamp makes of band gains: minus the highest, in dB.
double autoPreamp(const audio::BandGains&);

} // namespace brimsound::render
