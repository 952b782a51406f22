// What the preferences file says about the engine.
#pragma once

#include "desktop/mediaserverd/Equalizer.h"

#include <optional>

namespace brimsound::mediaserver {

/// The values of a file that has none of the keys.
struct Preferences {
    /// Whether there is an equalizer in the sound at all.
    bool enabled = true;
    /// Whether the sound passes unchanged, whatever the gains are.
    bool filterDisabled = false;
    /// Whether the output goes beyond full scale unchecked.
    bool checkingDisabled = false;
    Gains gains {};
};

/// Reads the file. Without one, the defaults; nothing when it is damaged or cannot be read, as while somebody
/// is writing it.
std::optional<Preferences> readPreferences();

} // namespace brimsound::mediaserver
