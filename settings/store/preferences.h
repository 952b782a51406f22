// The preferences file, shared with the equalizer engine.
#pragma once

#include "platform/Foundation/PropertyList.h"

namespace brimsound {

/// The preferences as the file has them, nothing added and nothing checked; when the file cannot be read as a
/// dictionary, fresh ones with ten zero gains and the built-in presets, which are not written. Every reader
/// calls this anew: the file is the only store.
PropertyList::Dictionary get_preferences();

/// Overwrites the file in place with the preferences as a binary property list. A failure is not reported,
/// and leaves the file as it was wherever writeToFile reserves the room for the new one first.
void write_preferences(PropertyList::Dictionary preferences);

} // namespace brimsound
