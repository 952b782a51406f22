// A preset's gains as the panel uses them.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <array>

namespace brimsound {

/// Band gains in dB, from 60 Hz up.
using TenGains = std::array<float, 10>;

/// Whether a preset is an array of at least ten elements.
bool hasTenGains(const PropertyList& preset);

/// The first ten elements of a preset, each as a float (PropertyList::floatValue). Where an element is absent
/// it is 0 dB, as all ten are in a preset that is no array.
TenGains tenGains(const PropertyList& preset);

} // namespace brimsound
