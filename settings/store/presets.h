// Presets: those that a user finds before saving any, and what is in one.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <array>
#include <string>

namespace brimsound {

/// Sixteen presets in the order of the table, each a name with ten band gains in dB from 60 Hz up.
PropertyList::Dictionary builtin_presets();

/// Takes the presets out of the preferences: names, each with what should be ten gains. The built-in ones
/// when the preferences have none.
PropertyList::Dictionary take_presets(PropertyList::Dictionary& preferences);

/// Band gains in dB, from 60 Hz up.
using TenGains = std::array<float, 10>;

/// Whether a preset is an array that starts with ten numbers.
bool hasTenGains(const PropertyList& preset);

/// A preset's first ten gains. Where one is missing or is no number it is 0 dB, and that is logged.
TenGains tenGains(const std::string& name, const PropertyList& preset);

} // namespace brimsound
