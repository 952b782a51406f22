// The output of brimsound-presets.
#pragma once

#include "desktop/presets/Import.h"
#include "presets/OwnPreset.h"

#include <string>

namespace brimsound::presets {

class PresetStore;

/// All of these are without a line feed at the end.

/// A line with a bar for each band, and one with the highest gain of the response.
std::string tableOf(const OwnPreset&);
/// {"name": …, "gains": […], "peak": …}
std::string presetInJson(const OwnPreset&);
/// {"selected": …, "presets": [{"name": …, "gains": […]}, …]}; the gains of a preset that is not ten gains
/// are null, and so is a missing selection.
std::string listInJson(const PresetStore&);
/// The name of an imported preset, and how close it is to the original.
std::string resultOf(const ImportedPreset&);
/// "+5.8 -0.4 …"
std::string gainsInLine(const audio::BandGains&);

} // namespace brimsound::presets
