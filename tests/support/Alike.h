// Comparing property lists that may contain NaN.
#pragma once

#include "platform/Foundation/PropertyList.h"

namespace brimsound::tests {

/// Whether the values have the same types and are equal. All NaNs are equal.
bool areAlike(const PropertyList&, const PropertyList&);

} // namespace brimsound::tests
