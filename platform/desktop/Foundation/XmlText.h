// Numbers, dates and data as text in an XML property list.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <optional>
#include <string>
#include <string_view>

namespace brimsound::desktop::xml {

// From text to values; blanks around a number or a date are skipped. Nothing for text that is none.

/// In decimal, or in hexadecimal after "0x"; of up to 64 bits, and a sign besides.
std::optional<PropertyList> integerFrom(std::string_view);
/// Infinite and NaN as well.
std::optional<PropertyList> realFrom(const std::string&);
/// As "2001-01-01T00:00:00Z".
std::optional<PropertyList> dateFrom(const std::string&);
/// From base64; characters that are none of it are skipped. Decodes in the text's own memory.
PropertyList::Data dataFrom(std::string&);

// From values to text. Nothing for what has none.

std::optional<std::string> textOf(PropertyList::WideInteger);
/// Gives the same number when it is read again.
std::string textOf(double real);
/// To the second before; of the years 0 to 9999.
std::optional<std::string> textOf(PropertyList::Date);
std::string textOf(const PropertyList::Data&);

} // namespace brimsound::desktop::xml
