#pragma once

#include <string>

namespace brimsound {

/// Writes "Brimsound: " and the text to the system log.
void logLine(const std::string& text);

} // namespace brimsound
