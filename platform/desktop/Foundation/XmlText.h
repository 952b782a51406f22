// Conversion of numbers, dates and data to and from the text of an XML property list.
#pragma once

#include "platform/Foundation/PropertyList.h"

#include <optional>
#include <string>
#include <string_view>

namespace brimsound::desktop::xml {

// From text to values. Blanks around a number or a date are skipped. Nothing for invalid text.

/// Decimal, or hexadecimal after "0x"; up to 64 bits, with or without a sign.
std::optional<PropertyList> integerFrom(std::string_view);
/// Accepts infinite values and NaN as well.
std::optional<PropertyList> realFrom(const std::string&);
/// In the format "2001-01-01T00:00:00Z".
std::optional<PropertyList> dateFrom(const std::string&);
/// From base64; other characters are skipped. Decodes in place.
PropertyList::Data dataFrom(std::string&);

// From values to text. Nothing for values that cannot be written.

std::optional<std::string> textOf(PropertyList::WideInteger);
/// The text is read back as the same number.
std::string textOf(double real);
/// Rounded down to the second; for the years 0 to 9999.
std::optional<std::string> textOf(PropertyList::Date);
std::string textOf(const PropertyList::Data&);

} // namespace brimsound::desktop::xml
