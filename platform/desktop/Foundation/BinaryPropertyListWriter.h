// Writing the binary property-list format.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <optional>

namespace brimsound::desktop {

/// The value in the binary format, version 00, as the platform's own writer does it: each object before those
/// that it refers to, the keys of a dictionary before its values, equal values but no containers written
/// once, all numbers as short as they can be. Nothing when the value is, or holds, null or text that is not
/// UTF-8, or when it is out of the bounds within which it could be read again.
std::optional<PropertyList::Data> writeBinaryPropertyList(const PropertyList&);

} // namespace brimsound::desktop
