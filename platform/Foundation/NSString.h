// Strings made from formats.
#pragma once

#include <string>

namespace brimsound {

/// The number printed with the format, which holds one conversion for a double. Not localized: the decimal
/// sign is a point whatever the user's language.
std::string stringWithFormat(const char* format, double number);

} // namespace brimsound
