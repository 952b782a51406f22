// Property lists as the platform and as the product hold them.
#pragma once

#include "platform/Foundation/PropertyList.h"

#import <Foundation/Foundation.h>

#include <cstddef>
#include <limits>
#include <optional>

namespace brimsound::ios {

/// What is in a native value, copied. Nothing for what is no property list, nil among it; and for one that is
/// nested too deeply to be walked through, or that comes to more than `mostValues` with every container
/// counted wherever it is referred to.
std::optional<PropertyList> valueOf(
    id native, std::size_t mostValues = std::numeric_limits<std::size_t>::max());

/// The native value, autoreleased; nil for null, for text that is not UTF-8, and for numbers that the
/// platform does not have. A container that holds such a one holds an NSNull in its place, which no
/// property-list file can.
id nativeValue(const PropertyList&);

::NSDictionary* nativeDictionary(const PropertyList::Dictionary&);

} // namespace brimsound::ios
