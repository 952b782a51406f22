// Conversion of property lists between the platform and the product.
#pragma once

#include "platform/Foundation/PropertyList.h"

#import <Foundation/Foundation.h>

#include <cstddef>
#include <limits>
#include <optional>

namespace brimsound::ios {

/// A copy of the native value. Nothing when it is nil or not a property list, when it is nested too deeply,
/// or when it has more than `mostValues` values. A container counts once for each reference to it.
std::optional<PropertyList> valueOf(
    id native, std::size_t mostValues = std::numeric_limits<std::size_t>::max());

/// The native value, autoreleased; nil for null, for text that is not UTF-8, and for numbers that the
/// platform does not support. In a container such a value becomes an NSNull, which cannot be written to a
/// property-list file.
id nativeValue(const PropertyList&);

::NSDictionary* nativeDictionary(const PropertyList::Dictionary&);

} // namespace brimsound::ios
