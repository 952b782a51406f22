// The system log.
#pragma once

#include <string_view>

namespace brimsound {

/// Writes one line to the system log. There is no format: the caller hands over the finished text.
void NSLog(std::string_view text);

} // namespace brimsound
