#pragma once

#include "platform/Foundation/PropertyList.h"

#include <array>

namespace brimsound {

/// Band gains in dB, from 60 Hz up.
using TenGains = std::array<float, 10>;

/// Whether a preset is an array of at least ten elements.
bool hasTenGains(const PropertyList& preset);

/// The first ten elements of a preset, each converted by PropertyList::floatValue. A missing element is 0 dB;
/// all ten are 0 dB when the preset is not an array.
TenGains tenGains(const PropertyList& preset);

} // namespace brimsound
