// Applying the equalizer to a sound file.
#pragma once

#include "desktop/engine/audio/Bands.h"

#include <filesystem>

namespace brimsound::render {

/// The gains of the equalizer, in dB.
struct Setting {
    audio::BandGains gains {};
    double preamp = 0;
    bool limiter = true;
};

/// Applies the equalizer to the file `in` and writes `out`. The paths may be the same. Throws
/// std::runtime_error and then leaves `out` unchanged.
void renderFile(const std::filesystem::path& in, const std::filesystem::path& out, const Setting&);

} // namespace brimsound::render
