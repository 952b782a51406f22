// The presets that a user finds before saving any.
#pragma once

#include "platform/Foundation/PropertyList.h"

namespace brimsound {

/// Sixteen presets in the order of the table, each a name with ten band gains in dB from 60 Hz up.
PropertyList::Dictionary builtin_presets();

} // namespace brimsound
