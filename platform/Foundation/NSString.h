#pragma once

#include <string>

namespace brimsound {

/// The number printed with the format, which contains one conversion for a double. Not localized: the decimal
/// separator is a point in every language.
std::string stringWithFormat(const char* format, double number);

} // namespace brimsound
