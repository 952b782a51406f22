#pragma once

#include <string_view>

namespace brimsound {

/// Writes one line to the system log. The text is not a format string.
void NSLog(std::string_view text);

} // namespace brimsound
