#pragma once

#include "platform/Foundation/PropertyList.h"

#include <optional>

namespace brimsound::desktop {

/// The value as XML. Nothing for values without an element (null and null objects, sets, integers that exceed
/// 64 bits, text with a NUL or an unpaired surrogate, dates outside the years 0 to 9999) and for values that
/// could not be read again.
std::optional<PropertyList::Data> writeXmlPropertyList(const PropertyList&);

} // namespace brimsound::desktop
