#pragma once

#include "platform/Foundation/PropertyList.h"

#include <optional>

namespace brimsound::desktop {

/// The value in the binary format, version 00, with the same layout as the platform's own writer: an object
/// comes before the objects that it refers to, a dictionary's keys before its values, equal values other than
/// containers are written once, and all numbers have their smallest size. Nothing when the value is null,
/// contains null or text that is not UTF-8, or exceeds the limits for reading it again.
std::optional<PropertyList::Data> writeBinaryPropertyList(const PropertyList&);

} // namespace brimsound::desktop
