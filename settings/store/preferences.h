// The preferences file, shared with the equalizer engine.
#pragma once

#include "platform/Foundation/PropertyList.h"

namespace brimsound {

/// The contents of the preferences file, unchecked and without defaults filled in. When the file cannot be
/// read as a dictionary, returns new preferences with ten zero gains and the built-in presets, and does not
/// write them. Every reader calls this each time: there is no copy in memory.
PropertyList::Dictionary get_preferences();

/// Overwrites the file in place with the preferences as a binary property list. A failure is not reported. It
/// leaves the old file unchanged where writeToFile can reserve the space for the new one first.
void write_preferences(PropertyList::Dictionary preferences);

/// The same, for a program that reports failures: returns whether the file was written.
bool try_write_preferences(PropertyList::Dictionary preferences);

} // namespace brimsound
