#pragma once

#include "desktop/engine/audio/Bands.h"

namespace brimsound::render {

/// The preamp that the pane's Auto Preamp sets for these gains: the negated highest gain, in dB.
double autoPreamp(const audio::BandGains&);

} // namespace brimsound::render
