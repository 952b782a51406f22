// Reading the XML property-list format.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <optional>
#include <string_view>

namespace brimsound::desktop {

/// The property list that the markup is, its dictionaries in the order of the file. U+FFFD takes the place of
/// bytes that are not UTF-8. Nothing for what is no property list, and for one out of bounds.
std::optional<PropertyList> readXmlPropertyList(std::string_view markup);

} // namespace brimsound::desktop
