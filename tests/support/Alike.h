// Comparing property lists that may hold no numbers.
#pragma once

#include "platform/Foundation/PropertyList.h"

namespace brimsound::tests {

/// Whether the values are equal, every NaN being like every other, and a date like one a microsecond
/// away, which is as fine as the file keeps them.
bool areAlike(const PropertyList&, const PropertyList&);

} // namespace brimsound::tests
