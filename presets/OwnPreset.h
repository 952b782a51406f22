#pragma once

#include "desktop/engine/audio/Bands.h"

#include <string>

namespace brimsound::presets {

/// A preset of this equalizer.
struct OwnPreset {
    /// UTF-8.
    std::string name;
    audio::BandGains gains {};
};

} // namespace brimsound::presets
