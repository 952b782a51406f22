// Writing the XML property-list format.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <optional>

namespace brimsound::desktop {

/// The value as markup. Nothing for what it has no element for: null and null objects, sets, integers beyond
/// 64 bits, text with a NUL or half a surrogate pair, dates beyond the years 0 to 9999; and for what could
/// not be read again.
std::optional<PropertyList::Data> writeXmlPropertyList(const PropertyList&);

} // namespace brimsound::desktop
