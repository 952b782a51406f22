#pragma once

#include "platform/Foundation/PropertyList.h"

namespace brimsound {

/// The sixteen presets that a user starts with, in the order of the table. Each is a name with ten band gains
/// in dB from 60 Hz up.
PropertyList::Dictionary builtin_presets();

/// Moves the presets out of the preferences: names, each with a value that should be ten gains. Returns the
/// built-in presets when the preferences have none.
PropertyList::Dictionary take_presets(PropertyList::Dictionary& preferences);

} // namespace brimsound
