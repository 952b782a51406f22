// The effects on the outside world.
#pragma once

#include <string>
#include <vector>

namespace brimsound::doubles {

/// Adds a line: "post NAME", "write PATH" …
void record(const std::string& line);

/// The lines since the last call, in order.
std::vector<std::string> takeTrace();

} // namespace brimsound::doubles
