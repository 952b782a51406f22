#pragma once

#include "platform/Foundation/PropertyList.h"

#include <optional>
#include <string_view>

namespace brimsound::desktop {

/// Reads an XML property list. Dictionaries keep the order of the file. Bytes that are not UTF-8 are replaced
/// by U+FFFD. Nothing when the markup is not a property list or exceeds the limits.
std::optional<PropertyList> readXmlPropertyList(std::string_view markup);

} // namespace brimsound::desktop
