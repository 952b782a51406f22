// Comparing property lists that may hold no numbers.
#pragma once

#include "platform/Foundation/PropertyList.h"

namespace brimsound::tests {

/// Whether the values are of the same types and equal, every NaN being like every other.
bool areAlike(const PropertyList&, const PropertyList&);

} // namespace brimsound::tests
