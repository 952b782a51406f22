// The engine's part of the preferences file.
#pragma once

#include "desktop/mediaserverd/Equalizer.h"

#include <optional>

namespace brimsound::mediaserver {

/// The initial values are the defaults for missing keys.
struct Preferences {
    /// Whether the equalizer is on.
    bool enabled = true;
    /// Whether the sound passes unchanged, whatever the gains are.
    bool filterDisabled = false;
    /// Whether the output may exceed full scale.
    bool checkingDisabled = false;
    Gains gains {};
};

/// Reads the file. Returns the defaults when there is no file, and nothing when it is damaged or cannot be
/// read, for example while another process writes it.
std::optional<Preferences> readPreferences();

} // namespace brimsound::mediaserver
