// From one sound file to another.
#pragma once

#include "desktop/engine/audio/Bands.h"

#include <filesystem>

namespace brimsound::render {

/// What the equalizer is set to. In dB.
struct Setting {
    audio::BandGains gains {};
    double preamp = 0;
    bool limiter = true;
};

/// Writes `out` as the sound of `in` through the equalizer. The paths may be the same. Throws
/// std::runtime_error, and then leaves `out` as it was.
void renderFile(const std::filesystem::path& in, const std::filesystem::path& out, const Setting&);

} // namespace brimsound::render
