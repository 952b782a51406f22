// From what a preset asks for to slider gains.
#pragma once

#include "desktop/engine/audio/Bands.h"
#include "presets/Findings.h"
#include "presets/Fit.h"
#include "presets/Target.h"

#include <optional>

namespace brimsound::presets {

enum class Copying {
    /// Positions of the equalizer's own bands are copied.
    Allowed,
    /// They are fitted, as a curve through the bands.
    Forbidden,
};

struct Conversion {
    /// In dB, from -12 to 12.
    audio::BandGains gains {};
    /// Between what the preset asks for and what is heard; nothing when the positions were copied.
    std::optional<Difference> difference;
};

/// The sliders for a target. Adds a warning for everything that they cannot do.
Conversion convert(const Target&, Copying, Findings&);

/// "60 Hz" or "12 kHz".
std::string frequencyText(double frequency);

} // namespace brimsound::presets
