// The presets that a user finds before saving any.
#pragma once

#include "platform/Foundation/PropertyList.h"

namespace brimsound {

/// Sixteen presets in the order of the table, each a name with ten band gains in dB from 60 Hz up.
PropertyList::Dictionary builtin_presets();

/// Takes the presets out of the preferences: names, each with what should be ten gains. The built-in ones
/// when the preferences have none.
PropertyList::Dictionary take_presets(PropertyList::Dictionary& preferences);

} // namespace brimsound
